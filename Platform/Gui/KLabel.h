#pragma once

#include "Gui/Export.h"

#include <QLabel>

/// A label of one line that shortens its text with an ellipsis where there is no room, and then tells the whole text in
/// its tool tip. `text()` is always the whole text.
class KORVEX_GUI_API KLabel : public QLabel
{
    Q_OBJECT
public:
    explicit KLabel(QWidget* parent = nullptr);
    explicit KLabel(QString const& text, QWidget* parent = nullptr);
    ~KLabel() override;

    void SetElideMode(Qt::TextElideMode mode);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_mode = Qt::ElideRight;
};
