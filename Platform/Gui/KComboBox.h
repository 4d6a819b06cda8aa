#pragma once

#include "Gui/Export.h"

#include <QComboBox>

/// A combo box in the host's look. A wheel turned over it scrolls the page it stands on unless the box has the focus,
/// and a text that has no room is shortened with an ellipsis and told in the tool tip, or else the tool tip of the
/// current item. Otherwise a QComboBox.
class KORVEX_GUI_API KComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit KComboBox(QWidget* parent = nullptr);
    ~KComboBox() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QString MakeShortText() const;
};
