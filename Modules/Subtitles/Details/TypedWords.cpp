#include "Subtitles/Details/TypedWords.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details
{

TypedWords::TypedWords(QString const& typed) : m_words(Fold(typed).simplified().split(QLatin1Char(' ')))
{
    m_words.removeAll(QString());
}

QString TypedWords::Fold(QString const& text)
{
    QString folded = text.normalized(QString::NormalizationForm_KD);
    auto const end = std::remove_if(folded.begin(), folded.end(), [](QChar letter) { return letter.isMark(); });
    folded.truncate(static_cast<int>(end - folded.begin()));
    return folded.toCaseFolded();
}

bool TypedWords::AreIn(QString const& foldedText) const
{
    return std::all_of(m_words.begin(), m_words.end(), [&](QString const& word) { return foldedText.contains(word); });
}

} // namespace Korvex::Converter::Subtitles::Details
