#pragma once

#include <QAbstractButton>

namespace Korvex::Desktop
{

/// What the window shows without films: one large button that is also the place to drop on. GUI thread.
class EmptyPage final : public QAbstractButton
{
    Q_OBJECT
public:
    explicit EmptyPage(QWidget* parent = nullptr);
    ~EmptyPage() override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QString m_hint;
};

} // namespace Korvex::Desktop
