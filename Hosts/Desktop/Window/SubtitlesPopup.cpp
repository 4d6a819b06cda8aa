#include "Desktop/Window/SubtitlesPopup.h"

#include "Gui/ModalPopup.h"

#include <QRect>
#include <QWidget>

#include <algorithm>

namespace Korvex::Desktop
{

SubtitlesPopup::SubtitlesPopup(QWidget& panel, QWidget& window) : QObject(&window), m_panel(&panel), m_window(window) {}

SubtitlesPopup::~SubtitlesPopup() = default;

void SubtitlesPopup::Open(QRect const& anchor)
{
    if (m_popup || !m_panel)
        return;
    m_popup = new GUI::ModalPopup(&m_window);
    m_popup->setObjectName(QStringLiteral("subtitlesPopup"));
    connect(m_popup, &GUI::ModalPopup::Closed, this, [this] { Close(*m_popup); });
    m_popup->setGeometry(m_window.rect());
    m_popup->SetPopup(m_panel);
    // It hides itself when the user is done.
    m_panel->show();
    Place(*m_popup, anchor);
    m_popup->raise();
    m_popup->show();
}

void SubtitlesPopup::Place(GUI::ModalPopup& popup, QRect const& anchor) const
{
    constexpr int GAP = 4;
    QSize const size = popup.GetPopupGeometry().size();
    QPoint const topLeft = popup.mapFromGlobal(anchor.topLeft());
    int const below = topLeft.y() + anchor.height() + GAP;
    bool const fitsBelow = below + size.height() <= popup.height();
    int const above = std::max(0, topLeft.y() - GAP - size.height());
    popup.SetPopupPosition(QPoint(topLeft.x(), fitsBelow ? below : above));
}

void SubtitlesPopup::Close(GUI::ModalPopup& popup)
{
    if (m_panel)
    {
        m_panel->hide();
        m_panel->setParent(nullptr);
    }
    m_popup.clear();
    popup.deleteLater();
}

} // namespace Korvex::Desktop
