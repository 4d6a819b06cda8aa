#include "Subtitles/Details/LanguageSelectorMemory.h"

#include <QLocale>
#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::Language::LanguageID;

namespace
{

constexpr char const* CHOSEN_KEY = "onlineSearch/languages";
constexpr char const* EARLIER_KEY = "onlineSearch/earlierLanguages";
constexpr int MOST_EARLIER = 8;

struct Settings : QSettings
{
    Settings() : QSettings(QStringLiteral("korvex"), QStringLiteral("subtitles")) {}
};

QString GetCode(LanguageID language)
{
    return QString::fromStdString(Entities::Language::GetLanguageData(language).shortNames.front());
}

void Append(QStringList const& codes, std::vector<LanguageID>& languages)
{
    for (QString const& code : codes)
    {
        LanguageID const language = Entities::Language::GetLanguageFromShortName(code.toStdString());
        bool const isListed = std::find(languages.begin(), languages.end(), language) != languages.end();
        if (language != LanguageID::None && !isListed)
            languages.push_back(language);
    }
}

std::vector<LanguageID> ListLanguages(QStringList const& codes)
{
    std::vector<LanguageID> languages;
    Append(codes, languages);
    return languages;
}

} // namespace

std::set<LanguageID> LanguageSelectorMemory::LoadChosen()
{
    Settings const settings;
    QStringList const codes =
        settings.contains(CHOSEN_KEY) ? settings.value(CHOSEN_KEY).toStringList() : QLocale::system().uiLanguages();
    std::vector<LanguageID> const languages = ListLanguages(codes);
    return {languages.begin(), languages.end()};
}

void LanguageSelectorMemory::SaveChosen(std::set<LanguageID> const& languages)
{
    Settings settings;
    QStringList codes;
    for (LanguageID const language : languages)
        codes << GetCode(language);
    settings.setValue(CHOSEN_KEY, codes);
    QStringList earlier = codes + settings.value(EARLIER_KEY).toStringList();
    earlier.removeDuplicates();
    settings.setValue(EARLIER_KEY, QStringList(earlier.mid(0, std::max(MOST_EARLIER, codes.size()))));
}

std::vector<LanguageID> LanguageSelectorMemory::ListLikely()
{
    std::vector<LanguageID> languages = ListLanguages(QLocale::system().uiLanguages());
    Append(Settings().value(EARLIER_KEY).toStringList(), languages);
    return languages;
}

} // namespace Korvex::Converter::Subtitles::Details
