#pragma once

#include "Gui/Export.h"

#include <QColor>
#include <QToolButton>

namespace Korvex::GUI
{

/// A button that shows a colour as a swatch and opens a colour dialog without transparency. GUI thread.
class KORVEX_GUI_API ColorPickerButton : public QToolButton
{
    Q_OBJECT
public:
    explicit ColorPickerButton(QWidget* parent = nullptr);
    ~ColorPickerButton() override;

    [[nodiscard]] QColor Color() const { return m_color; }
    /// Emits `ColorChanged` when the colour is another one than before.
    void SetColor(QColor const& color);

Q_SIGNALS:
    /// By the user, while the dialog is open too (it goes back when the dialog is cancelled), and by `SetColor`.
    void ColorChanged(QColor const& color);

private:
    QColor m_color = Qt::white;
};

} // namespace Korvex::GUI
