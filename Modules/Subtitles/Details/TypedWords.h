#pragma once

#include <QString>
#include <QStringList>

namespace Korvex::Converter::Subtitles::Details
{

/// What the user types to narrow a list: each word has to be somewhere in an entry, whatever its case and accents.
class TypedWords final
{
public:
    TypedWords() = default;
    explicit TypedWords(QString const& typed);

    /// Without case and accents, as `AreIn` wants a text.
    [[nodiscard]] static QString Fold(QString const& text);
    [[nodiscard]] bool AreIn(QString const& foldedText) const;
    [[nodiscard]] bool IsEmpty() const { return m_words.isEmpty(); }

private:
    QStringList m_words;
};

} // namespace Korvex::Converter::Subtitles::Details
