#include "Subtitles/UseCases/TitleFolding.h"

#include <QSet>
#include <QStringList>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

bool IsLeftOut(QString const& word)
{
    static QSet<QString> const WORDS = {QStringLiteral("the"), QStringLiteral("a"), QStringLiteral("an"),
                                        QStringLiteral("and")};
    return WORDS.contains(word);
}

} // namespace

QString FoldTitle(std::string const& title)
{
    QString const decomposed = QString::fromStdString(title).normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString letters;
    for (QChar const c : decomposed)
    {
        if (c.isLetterOrNumber() || c.isSurrogate())
            letters += c;
        else if (!c.isMark() && c != QLatin1Char('\'') && c != QLatin1Char('.') && c.unicode() != 0x2019)
            letters += QLatin1Char(' ');
        else if (c.category() == QChar::Mark_SpacingCombining)
            letters += c;
    }
    QStringList const words = letters.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QStringList kept;
    for (QString const& word : words)
    {
        if (!IsLeftOut(word))
            kept += word;
    }
    return (kept.isEmpty() ? words : kept).join(QLatin1Char(' '));
}

bool IsSameTitle(std::string const& a, std::string const& b)
{
    auto const withoutBlanks = [](std::string const& title) { return FoldTitle(title).remove(QLatin1Char(' ')); };
    QString const folded = withoutBlanks(a);
    return !folded.isEmpty() && folded == withoutBlanks(b);
}

} // namespace Korvex::Converter::Subtitles::UseCases
