#pragma once

#include "Gui/Export.h"

#include <QColor>
#include <QPointer>
#include <QToolButton>

class QColorDialog;

namespace Korvex::GUI
{

/// A button that shows a colour as a swatch and opens a colour dialog without transparency. Its text, its tool tip and
/// its accessible name tell the colour as #rrggbb. GUI thread.
class KORVEX_GUI_API ColorPickerButton : public QToolButton
{
    Q_OBJECT
public:
    explicit ColorPickerButton(QWidget* parent = nullptr);
    ~ColorPickerButton() override;

    [[nodiscard]] QColor Color() const { return m_color; }
    /// Emits `ColorChanged` when the colour is another one than before. While the dialog is open, cancelling it goes
    /// back to this colour then.
    void SetColor(QColor const& color);
    /// What the colour is for, translated: it stands in front of the colour in the tool tip and the accessible name,
    /// and is the dialog's title.
    void SetCaption(QString const& caption);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// By the user, while the dialog is open too (it goes back when the dialog is cancelled), and by `SetColor`.
    void ColorChanged(QColor const& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void OpenDialog();
    void ShowColor(QColor const& color);
    void Retranslate();

    QColor m_color = Qt::white;
    QColor m_colorBefore; ///< the last one that was not chosen in the open dialog
    QString m_caption;
    QPointer<QColorDialog> m_dialog; ///< a child, deletes itself when it closes
};

} // namespace Korvex::GUI
