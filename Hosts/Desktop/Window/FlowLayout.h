#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace Korvex::Desktop
{

/// Puts its items one after the other and goes on in a new row where there is no room, as words do.
class FlowLayout final : public QLayout
{
    Q_OBJECT
public:
    FlowLayout();
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    [[nodiscard]] QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(QRect const& place) override;

private:
    enum class Pass
    {
        Measure,
        Move,
    };

    /// The height that it takes.
    int Arrange(QRect const& place, Pass pass) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace Korvex::Desktop
