#pragma once

#include "Gui/KFrame.h"

class QScrollArea;

namespace Korvex::Desktop
{

/// The window's right side: a column that scrolls, with the module's editing panel on top. GUI thread.
class SubtitlesSide final : public KFrame
{
    Q_OBJECT
public:
    /// Takes the panel in as a child; its owner may take it out again.
    explicit SubtitlesSide(QWidget& editingPanel, QWidget* parent = nullptr);
    ~SubtitlesSide() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollArea* m_scroll;
};

} // namespace Korvex::Desktop
