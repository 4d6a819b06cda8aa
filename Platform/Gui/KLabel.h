#pragma once

#include "Gui/Export.h"

#include <QLabel>

/// A label that shortens a text of one line with an ellipsis where there is no room, and then tells the whole text in
/// its tool tip unless it has another one. `text()` is always the whole text. Rich text, wrapped text and pictures are
/// shown as a QLabel shows them.
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
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool IsOneLine() const;
    [[nodiscard]] QRect FindTextPlace() const;
    [[nodiscard]] QString MakeShortText() const;

    Qt::TextElideMode m_mode = Qt::ElideRight;
};
