#include "Desktop/Words/LanguageNames.h"

#include "Subtitles/Entities/Language.h"

#include <QLocale>

#include <algorithm>
#include <vector>

namespace Korvex::Desktop
{

namespace Language = Converter::Subtitles::Entities::Language;

using Language::LanguageID;

namespace
{

/// How a language is shown and found.
struct Names
{
    LanguageID id = LanguageID::None;
    QString english;
    QString own;  ///< what its speakers call it; empty where that is the same, or Qt does not know
    QString both; ///< "German – Deutsch"
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
    Names names{id, QString::fromStdString(language.displayName), FindOwnName(language.locale), {}, {}};
    names.shortName = language.shortNames.front();
    if (names.own.compare(names.english, Qt::CaseInsensitive) == 0)
        names.own.clear();
    names.both = names.own.isEmpty() ? names.english : QStringLiteral("%1 \u2013 %2").arg(names.english, names.own);
    return names;
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

bool IsThreeLetters(QString const& text)
{
    return text.size() == 3 && std::all_of(text.begin(), text.end(),
                                           [](QChar c) { return c >= QLatin1Char('a') && c <= QLatin1Char('z'); });
}

} // namespace

QString DescribeLanguage(std::string const& shortName)
{
    Names const* const names = FindNames(Language::GetLanguageFromShortName(shortName));
    return names == nullptr ? QString::fromStdString(shortName) : names->both;
}

QStringList ListUsersLanguages()
{
    QStringList languages;
    for (QString const& name : QLocale::system().uiLanguages())
    {
        if (Names const* const names = FindNames(Language::GetLanguageFromShortName(name.toStdString())))
            languages.append(names->both);
    }
    languages.removeDuplicates();
    return languages;
}

QStringList ListAllLanguages()
{
    QStringList languages;
    for (Names const& names : ListNames())
        languages.append(names.both);
    languages.sort();
    return languages;
}

std::optional<std::string> FindLanguage(QString const& written)
{
    QString const text = written.simplified();
    if (text.isEmpty())
        return std::string();
    // Kinds of one language share their speakers' name for it: the first counts.
    for (QString Names::*const name : {&Names::both, &Names::english, &Names::own})
    {
        for (Names const& names : ListNames())
        {
            if (text.compare(names.*name, Qt::CaseInsensitive) == 0)
                return names.shortName;
        }
    }
    QString const shortName = text.toLower();
    if (Names const* const names = FindNames(Language::GetLanguageFromShortName(shortName.toStdString())))
        return names->shortName;
    return IsThreeLetters(shortName) ? std::optional(shortName.toStdString()) : std::nullopt;
}

} // namespace Korvex::Desktop
