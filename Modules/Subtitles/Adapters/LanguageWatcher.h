#pragma once

#include <QObject>

#include <functional>

namespace Korvex::Converter::Subtitles::Adapters
{

/// Calls back when the application's language has changed, for as long as it lives.
class LanguageWatcher final : public QObject
{
public:
    explicit LanguageWatcher(std::function<void()> onChanged);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_onChanged;
};

} // namespace Korvex::Converter::Subtitles::Adapters
