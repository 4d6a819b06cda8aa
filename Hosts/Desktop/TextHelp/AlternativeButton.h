#pragma once

#include <QPushButton>

class KLabel;

namespace Korvex::Proc
{
struct TextAlternative;
} // namespace Korvex::Proc

namespace Korvex::Desktop
{

/// Offers another encoding: its name, and under it what the text reads like in it.
class AlternativeButton final : public QPushButton
{
    Q_OBJECT
public:
    explicit AlternativeButton(QWidget* parent = nullptr);
    ~AlternativeButton() override;

    void SetAlternative(Proc::TextAlternative const& alternative);
    /// The core's name.
    [[nodiscard]] QString GetEncoding() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    KLabel* m_line;
    KLabel* m_name;
    QString m_encoding;
};

} // namespace Korvex::Desktop
