#pragma once

#include <QTranslator>

namespace Korvex::Testing
{

/// Stands for the languages that nobody thought of: every text of the program 40 % longer.
class LongerTexts final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(char const* context, char const* source, char const* /*comment*/,
                                    int /*number*/) const override
    {
        if (context[0] == 'Q')
            return {}; // the toolkit's dialogs care for themselves
        QString const text = QString::fromUtf8(source);
        static QString const FILLING = QStringLiteral("aus er den ung eine lich ver keit das ent sein ");
        int const more = (text.size() * 2 + 4) / 5;
        // A short text is one word, and its translation is, too.
        QString filling = FILLING.repeated(more / FILLING.size() + 1).left(more);
        if (text.size() < 16)
            filling.remove(QLatin1Char(' '));
        return text + filling;
    }
};

} // namespace Korvex::Testing
