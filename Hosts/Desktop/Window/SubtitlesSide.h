#pragma once

#include "Gui/KFrame.h"

class QScrollArea;

namespace Korvex::Desktop
{

/// The window's right side: a column that scrolls, with the module's editing panel on top and the help
/// with its texts below. GUI thread.
class SubtitlesSide final : public KFrame
{
    Q_OBJECT
public:
    /// Takes both in as children; the panel's owner may take it out again.
    SubtitlesSide(QWidget& editingPanel, QWidget& textHelp, QWidget* parent = nullptr);
    ~SubtitlesSide() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollArea* m_scroll;
};

} // namespace Korvex::Desktop
