#include "Cli/TextWidth.h"

#include <QChar>
#include <QVector>

#include <algorithm>
#include <array>

namespace Korvex::Cli
{

namespace
{

struct CharacterRange
{
    uint first;
    uint last;
};

/// What the Unicode tables call wide or full width, in whole blocks: letters of East Asia, full-width forms, pictures.
constexpr std::array<CharacterRange, 16> WIDE_RANGES{{
    {0x1100, 0x115F},
    {0x231A, 0x231B},
    {0x2329, 0x232A},
    {0x2E80, 0x303E},
    {0x3041, 0x33FF},
    {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF},
    {0xA960, 0xA97F},
    {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6},
    {0x1F300, 0x1FAFF},
    {0x20000, 0x3FFFD},
}};

int CharacterWidth(uint character)
{
    switch (QChar::category(character))
    {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    bool const isWide =
        std::any_of(WIDE_RANGES.begin(), WIDE_RANGES.end(),
                    [&](CharacterRange const& range) { return character >= range.first && character <= range.last; });
    return isWide ? 2 : 1;
}

bool TurnsDirection(QChar character)
{
    ushort const code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

/// As many characters from the beginning as fit; marks stay with what they stand on.
int CountFitting(QVector<uint> const& characters, int columns)
{
    int used = 0;
    int count = 0;
    for (; count < characters.size(); ++count)
    {
        used += CharacterWidth(characters[count]);
        if (used > columns)
            break;
    }
    return count;
}

QString ToText(QVector<uint> const& characters)
{
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace

QString ToSafeLine(QString const& text)
{
    QString line = text;
    for (QChar& character : line)
        if (character.category() == QChar::Other_Control || character.isSpace() || TurnsDirection(character))
            character = QLatin1Char(' ');
    return line.simplified();
}

int DisplayWidth(QString const& text)
{
    int width = 0;
    for (uint const character : text.toUcs4())
        width += CharacterWidth(character);
    return width;
}

QString Shortened(QString const& text, int columns)
{
    static QString const GAP = QStringLiteral("...");
    if (DisplayWidth(text) <= columns || columns <= GAP.size())
        return text;
    int const room = columns - GAP.size();
    QVector<uint> characters = text.toUcs4();
    QString const head = ToText(characters.mid(0, CountFitting(characters, room - room / 2)));
    std::reverse(characters.begin(), characters.end());
    QVector<uint> tail = characters.mid(0, CountFitting(characters, room / 2));
    std::reverse(tail.begin(), tail.end());
    return head + GAP + ToText(tail);
}

QString Padded(QString const& text, int columns, Alignment alignment)
{
    QString const blanks(std::max(0, columns - DisplayWidth(text)), QLatin1Char(' '));
    return alignment == Alignment::Left ? text + blanks : blanks + text;
}

} // namespace Korvex::Cli
