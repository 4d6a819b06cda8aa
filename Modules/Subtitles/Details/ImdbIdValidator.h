#pragma once

#include <QValidator>

namespace Korvex::Converter::Subtitles::Details
{

/// Accepts nothing, and "tt" or nothing followed by 7 to 10 digits. What is wrong can still be typed, so that the field
/// can say why; of a pasted link the number alone is kept.
class ImdbIdValidator final : public QValidator
{
    Q_OBJECT
public:
    enum class Fault
    {
        None,
        TooShort,
        TooLong,
        NotANumber,
    };

    static constexpr int FEWEST_DIGITS = 7;
    static constexpr int MOST_DIGITS = 10;

    explicit ImdbIdValidator(QObject* parent = nullptr);
    ~ImdbIdValidator() override;

    [[nodiscard]] static Fault FindFault(QString const& text);
    /// A sentence that says what is wrong and how it is right; empty for `Fault::None`.
    [[nodiscard]] static QString Explain(Fault fault);

    State validate(QString& input, int& cursorPosition) const override;
};

} // namespace Korvex::Converter::Subtitles::Details
