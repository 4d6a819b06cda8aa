#include "Desktop/Words/LanguageNames.h"

#include "Subtitles/Entities/Language.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace Korvex::Desktop
{

namespace Language = Converter::Subtitles::Entities::Language;

using Language::LanguageID;

namespace
{

/// What a language is found by, whatever the program's language.
struct Names
{
    LanguageID id = LanguageID::None;
    QString english;
    QString own; ///< what its speakers call it; empty where Qt does not know
    std::string shortName;
};

/// The shortest name that the language has anywhere: Qt's name of a country's kind of it may name the country too.
QString FindOwnName(std::string const& localeName)
{
    QLocale const locale(QString::fromStdString(localeName));
    if (locale.language() == QLocale::C)
        return {};
    QString name = locale.nativeLanguageName();
    for (QLocale const& other : QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyCountry))
    {
        QString const otherName = other.nativeLanguageName();
        if (!otherName.isEmpty() && otherName.size() < name.size())
            name = otherName;
    }
    return name;
}

Names MakeNames(LanguageID id)
{
    Language::LanguageData const& language = Language::GetLanguageData(id);
    return {id, QString::fromStdString(language.displayName), FindOwnName(language.locale),
            language.shortNames.front()};
}

/// In the order of the identifiers.
std::vector<Names> const& ListNames()
{
    static std::vector<Names> const LIST = []
    {
        std::vector<Names> list;
        for (LanguageID const id : Language::GetAllLanguages())
            list.push_back(MakeNames(id));
        return list;
    }();
    return LIST;
}

/// Null for `None`.
Names const* FindNames(LanguageID id)
{
    auto const& list = ListNames();
    auto const found = std::find_if(list.begin(), list.end(), [id](Names const& names) { return names.id == id; });
    return found == list.end() ? nullptr : &*found;
}

/// In the program's present language.
QString Translate(Names const& names)
{
    return QString::fromStdString(Language::GetDisplayText(names.id));
}

/// "German – Deutsch"; a name that both share stands once.
QString Describe(Names const& names)
{
    QString const translated = Translate(names);
    bool const isOneName = names.own.isEmpty() || names.own.compare(translated, Qt::CaseInsensitive) == 0;
    return isOneName ? translated : QStringLiteral("%1 \u2013 %2").arg(translated, names.own);
}

bool IsThreeLetters(QString const& text)
{
    return text.size() == 3 && std::all_of(text.begin(), text.end(),
                                           [](QChar c) { return c >= QLatin1Char('a') && c <= QLatin1Char('z'); });
}

} // namespace

QString DescribeLanguage(std::string const& shortName)
{
    Names const* const names = FindNames(Language::GetLanguageFromShortName(shortName));
    return names == nullptr ? QString::fromStdString(shortName) : Describe(*names);
}

QStringList ListUsersLanguages()
{
    QStringList languages;
    for (QString const& name : QLocale::system().uiLanguages())
    {
        if (Names const* const names = FindNames(Language::GetLanguageFromShortName(name.toStdString())))
            languages.append(Describe(*names));
    }
    languages.removeDuplicates();
    return languages;
}

QStringList ListAllLanguages()
{
    QStringList languages;
    for (Names const& names : ListNames())
        languages.append(Describe(names));
    std::sort(languages.begin(), languages.end(), QCollator());
    return languages;
}

std::optional<std::string> FindLanguage(QString const& written)
{
    QString const text = written.simplified();
    if (text.isEmpty())
        return std::string();
    // Kinds of one language share their speakers' name for it: the first counts.
    static constexpr QString (*NAMES[])(Names const&) = {Describe, Translate,
                                                         [](Names const& names) { return names.english; },
                                                         [](Names const& names) { return names.own; }};
    for (auto const name : NAMES)
    {
        for (Names const& names : ListNames())
        {
            if (text.compare(name(names), Qt::CaseInsensitive) == 0)
                return names.shortName;
        }
    }
    QString const shortName = text.toLower();
    if (Names const* const names = FindNames(Language::GetLanguageFromShortName(shortName.toStdString())))
        return names->shortName;
    return IsThreeLetters(shortName) ? std::optional(shortName.toStdString()) : std::nullopt;
}

} // namespace Korvex::Desktop
