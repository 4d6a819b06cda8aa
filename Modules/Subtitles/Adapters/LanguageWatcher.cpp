#include "Subtitles/Adapters/LanguageWatcher.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace Korvex::Converter::Subtitles::Adapters
{

LanguageWatcher::LanguageWatcher(std::function<void()> onChanged) : m_onChanged(std::move(onChanged))
{
    if (QCoreApplication* const application = QCoreApplication::instance())
        application->installEventFilter(this);
}

bool LanguageWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance())
        m_onChanged();
    return QObject::eventFilter(watched, event);
}

} // namespace Korvex::Converter::Subtitles::Adapters
