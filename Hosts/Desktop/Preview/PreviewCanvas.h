#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QWidget>

namespace Korvex::Desktop
{

/// The picture in the middle of a dark field, as large as fits, or a sentence in its place.
class PreviewCanvas final : public QWidget
{
    Q_OBJECT
public:
    explicit PreviewCanvas(QWidget* parent = nullptr);

    /// `shownSize`: of the picture with square samples. `scaled`: the same picture as it fits into the room; painted
    /// where it still does.
    void ShowPicture(QImage const& picture, QSize const& shownSize, QImage const& scaled);
    void ShowSentence(QString const& sentence);
    [[nodiscard]] QImage const& GetPicture() const { return m_picture; }
    /// In pixels of the screen.
    [[nodiscard]] QSize GetRoom() const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A picture scaled for it would look better.
    void RoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PaintPicture(QPainter& painter) const;
    void PaintSentence(QPainter& painter) const;

    QImage m_picture;
    QSize m_shownSize;
    QImage m_scaled;
    QString m_sentence;
};

} // namespace Korvex::Desktop
