#include "Subtitles/UseCases/ReleaseAtoms.h"

#include <QSet>

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

/// Names come from foreign disks and archives, too, where Latin-1 is the most likely of the other encodings.
QString Decode(std::string const& name)
{
    QString const text = QString::fromStdString(name);
    bool const isValid = !text.contains(QChar::ReplacementCharacter) || name.find("\xEF\xBF\xBD") != std::string::npos;
    return (isValid ? text : QString::fromLatin1(name.data(), static_cast<int>(name.size())))
        .normalized(QString::NormalizationForm_C);
}

bool IsDash(QChar c)
{
    constexpr ushort MINUS_SIGN = 0x2212;
    return (c.unicode() >= 0x2010 && c.unicode() <= 0x2015) || c.unicode() == MINUS_SIGN;
}

/// The plain sign for one of its many looks.
QChar Simplify(QChar c)
{
    switch (c.unicode())
    {
    case 0x3010: // black lenticular and full-width brackets
    case 0xFF3B:
        return QLatin1Char('[');
    case 0x3011:
    case 0xFF3D:
        return QLatin1Char(']');
    case 0xFF08:
        return QLatin1Char('(');
    case 0xFF09:
        return QLatin1Char(')');
    case 0x2018: // quotation marks and accents that stand for an apostrophe
    case 0x2019:
    case 0x00B4:
    case 0x0060:
        return QLatin1Char('\'');
    default:
        break;
    }
    if (IsDash(c))
        return QLatin1Char('-');
    bool const isBlank = c.isSpace() || c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
    return isBlank ? QLatin1Char(' ') : c;
}

NameKind KindOfExtension(QString const& extension)
{
    static QSet<QString> const FILMS = {
        QStringLiteral("mkv"),  QStringLiteral("mp4"), QStringLiteral("avi"), QStringLiteral("m4v"),
        QStringLiteral("mov"),  QStringLiteral("wmv"), QStringLiteral("flv"), QStringLiteral("webm"),
        QStringLiteral("mpg"),  QStringLiteral("ts"),  QStringLiteral("mts"), QStringLiteral("m2ts"),
        QStringLiteral("mpeg"), QStringLiteral("vob"), QStringLiteral("ogv"), QStringLiteral("ogm"),
        QStringLiteral("3gp"),  QStringLiteral("iso"), QStringLiteral("divx")};
    static QSet<QString> const SUBTITLES = {QStringLiteral("srt"), QStringLiteral("ass"), QStringLiteral("ssa"),
                                            QStringLiteral("sub"), QStringLiteral("idx"), QStringLiteral("vtt"),
                                            QStringLiteral("smi"), QStringLiteral("sup"), QStringLiteral("ttml")};
    static QSet<QString> const OTHERS = {QStringLiteral("nfo"), QStringLiteral("txt"), QStringLiteral("zip"),
                                         QStringLiteral("rar"), QStringLiteral("gz"),  QStringLiteral("part")};
    // In capitals these three are the recording of a cinema's screen, a film's last word and a remark.
    static QSet<QString> const AMBIGUOUS = {QStringLiteral("TS"), QStringLiteral("ASS"), QStringLiteral("SUB")};
    QString const lower = extension.toLower();
    if ((extension != lower && extension != extension.toUpper()) || AMBIGUOUS.contains(extension))
        return NameKind::Plain;
    if (FILMS.contains(lower))
        return NameKind::Film;
    if (SUBTITLES.contains(lower))
        return NameKind::Subtitle;
    return OTHERS.contains(lower) ? NameKind::Other : NameKind::Plain;
}

/// Takes a known extension off, and a film's in front of it ("Movie.mkv.srt").
NameKind TakeExtension(QString& name)
{
    constexpr int LONGEST = 4;
    NameKind kind = NameKind::Plain;
    for (int round = 0; round < 2; ++round)
    {
        int const dot = name.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0 || name.size() - dot - 1 > LONGEST)
            break;
        NameKind const found = KindOfExtension(name.mid(dot + 1));
        if (found == NameKind::Plain || (round > 0 && found != NameKind::Film))
            break;
        name.truncate(dot);
        kind = round == 0 ? found : kind;
    }
    return kind;
}

bool IsOpening(QChar c)
{
    return c == QLatin1Char('(') || c == QLatin1Char('[') || c == QLatin1Char('{');
}

bool IsClosing(QChar c)
{
    return c == QLatin1Char(')') || c == QLatin1Char(']') || c == QLatin1Char('}');
}

QString MakeKey(QString const& text)
{
    static QString const PUNCTUATION = QStringLiteral(".,;:!?~'\"#");
    int begin = 0;
    int end = text.size();
    while (begin < end && PUNCTUATION.contains(text.at(begin)))
        ++begin;
    while (end > begin && PUNCTUATION.contains(text.at(end - 1)))
        --end;
    return text.mid(begin, end - begin).toLower();
}

class Splitter
{
public:
    explicit Splitter(QString name) : m_name(std::move(name)) { m_split.kind = TakeExtension(m_name); }

    ReleaseAtoms Run()
    {
        for (int i = 0; i < m_name.size(); ++i)
            Read(Simplify(m_name.at(i)), i + 1 < m_name.size() ? Simplify(m_name.at(i + 1)) : QChar());
        EndWord();
        return std::move(m_split);
    }

private:
    void Read(QChar c, QChar next)
    {
        if (IsOpening(c) || IsClosing(c))
            ReadBracket(c);
        else if (c == QLatin1Char('.') && !(next == QLatin1Char(' ') && !m_word.isEmpty()))
            Separate(m_hasDot);
        else if (c == QLatin1Char(' ') || c == QLatin1Char('_') || (m_depth > 0 && c == QLatin1Char(',')))
            Separate(m_hasBlank);
        else if (c == QLatin1Char('-'))
            Separate(m_hasHyphen);
        else if (c == QLatin1Char('/') || c == QLatin1Char('\\') || c == QLatin1Char('|'))
            Separate(m_hasSlash);
        else
            m_word += c;
    }

    void ReadBracket(QChar c)
    {
        EndWord();
        if (IsClosing(c))
        {
            m_depth = std::max(0, m_depth - 1);
            return;
        }
        if (m_depth++ == 0)
        {
            ++m_brackets;
            m_kind = c;
        }
    }

    void Separate(bool& flag)
    {
        EndWord();
        flag = true;
    }

    void EndWord()
    {
        if (m_word.isEmpty())
            return;
        ReleaseAtom atom;
        atom.text = m_word;
        atom.key = MakeKey(m_word);
        atom.before = GetJoint();
        if (m_depth > 0)
        {
            atom.bracket = m_brackets;
            atom.bracketKind = m_kind;
        }
        else if (m_hasBlank && !m_split.atoms.empty())
        {
            m_split.hasBlanks = true;
        }
        m_split.atoms.push_back(std::move(atom));
        m_word.clear();
        m_hasBlank = m_hasDot = m_hasHyphen = m_hasSlash = false;
    }

    [[nodiscard]] Joint GetJoint() const
    {
        if (m_split.atoms.empty())
            return Joint::Blank;
        if (m_hasSlash)
            return Joint::Alternative;
        if (m_hasHyphen)
            return m_hasBlank || m_hasDot ? Joint::Dash : Joint::Hyphen;
        return m_hasDot && !m_hasBlank ? Joint::Dot : Joint::Blank;
    }

    QString m_name;
    ReleaseAtoms m_split;
    QString m_word;
    QChar m_kind;
    int m_depth = 0;
    int m_brackets = 0;
    bool m_hasBlank = false;
    bool m_hasDot = false;
    bool m_hasHyphen = false;
    bool m_hasSlash = false;
};

bool IsSingleLetter(QString const& text)
{
    return (text.size() == 1 || (text.size() == 2 && text.endsWith(QLatin1Char('.')))) && text.at(0).isLetter();
}

/// Whether the word goes on with an abbreviation of single letters: the "W" of "S.W.A.T.".
bool GoesOnWithInitials(std::vector<ReleaseAtom> const& atoms, std::size_t begin, std::size_t index, std::size_t end)
{
    return index > begin && index < end && atoms[index].before == Joint::Dot && IsSingleLetter(atoms[index].text) &&
           IsSingleLetter(atoms[index - 1].text);
}

/// "2.0" in a name whose words are set apart by blanks.
bool GoesOnWithFraction(ReleaseAtoms const& name, std::size_t index)
{
    return index > 0 && name.hasBlanks && name.atoms[index].before == Joint::Dot &&
           ParseSmallNumber(name.atoms[index].key) >= 0 && ParseSmallNumber(name.atoms[index - 1].key) >= 0;
}

} // namespace

ReleaseAtoms SplitReleaseName(std::string const& name)
{
    return Splitter(Decode(name)).Run();
}

QString JoinAsWritten(ReleaseAtoms const& name, std::size_t begin, std::size_t end)
{
    QString text;
    for (std::size_t i = begin; i < end; ++i)
    {
        Joint const joint = name.atoms[i].before;
        if (!text.isEmpty())
            text += QLatin1Char(joint == Joint::Hyphen ? '-' : joint == Joint::Dot ? '.' : ' ');
        text += name.atoms[i].text;
    }
    return text;
}

QString JoinAsTitle(ReleaseAtoms const& name, std::size_t begin, std::size_t end)
{
    QString text;
    for (std::size_t i = begin; i < end; ++i)
    {
        ReleaseAtom const& atom = name.atoms[i];
        bool const isAside = atom.bracket != 0 && atom.bracketKind != QLatin1Char('(');
        if (isAside && atom.bracket != name.atoms[begin].bracket)
            continue;
        bool const isInitial = GoesOnWithInitials(name.atoms, begin, i, end);
        bool const isDotKept = isInitial || GoesOnWithFraction(name, i);
        if (!text.isEmpty())
            text += QLatin1Char(atom.before == Joint::Hyphen ? '-' : isDotKept ? '.' : ' ');
        text += atom.text;
        if (isInitial && !GoesOnWithInitials(name.atoms, begin, i + 1, end) && !text.endsWith(QLatin1Char('.')))
            text += QLatin1Char('.');
    }
    return text;
}

int ParseSmallNumber(QString const& text)
{
    constexpr int MOST_DIGITS = 4;
    if (text.isEmpty() || text.size() > MOST_DIGITS)
        return -1;
    int number = 0;
    for (QChar const c : text)
    {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return -1;
        number = number * 10 + (c.unicode() - '0');
    }
    return number;
}

} // namespace Korvex::Converter::Subtitles::UseCases
