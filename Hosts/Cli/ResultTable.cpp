#include "Cli/ResultTable.h"

#include "Cli/TextWidth.h"
#include "Common/SubtitleFileName.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <array>
#include <ostream>

namespace Korvex::Cli
{

using Converter::Subtitles::Entities::SearchTags;
using Converter::Subtitles::UseCases::MatchReason;
using Converter::Subtitles::UseCases::RankedResult;
using Converter::Subtitles::UseCases::SearchResult;
using Converter::Subtitles::UseCases::SearchResultFacts;
namespace Language = Converter::Subtitles::Entities::Language;

namespace
{

constexpr int GAP = 2;
constexpr int SHORTEST_NAME = 24;

struct Column
{
    char const* title;
    Alignment alignment;
};

/// The name stands last but one, where a reader of a long list finds it beside its marks.
constexpr std::array<Column, 7> COLUMNS{{
    {"No.", Alignment::Right},
    {"Id", Alignment::Left},
    {"Lang.", Alignment::Left},
    {"Format", Alignment::Left},
    {"Downloads", Alignment::Right},
    {"Name", Alignment::Left},
    {"Marks", Alignment::Left},
}};
constexpr std::size_t NAME_COLUMN = 5;

using Row = std::array<QString, COLUMNS.size()>;
using Widths = std::array<int, COLUMNS.size()>;

QString GetFormat(SearchResult const& result)
{
    auto const found = result.tags.find(SearchTags::FILE_FORMAT);
    return found == result.tags.end() ? QString() : QString::fromStdString(found->second);
}

QString GetLanguageCode(SearchResultFacts const& facts)
{
    std::string const shortName = Hosts::GetShortName(facts.language);
    return shortName.empty() ? facts.languageCode : QString::fromStdString(shortName);
}

bool IsMarked(RankedResult const& ranked, MatchReason reason)
{
    return std::find(ranked.reasons.begin(), ranked.reasons.end(), reason) != ranked.reasons.end();
}

QString DescribeMarks(RankedResult const& ranked)
{
    SearchResultFacts const& facts = ranked.result->facts;
    QStringList marks;
    auto const add = [&](bool isSet, char const* mark)
    {
        if (isSet)
            marks.append(QLatin1String(mark));
    };
    add(facts.isHashMatch, "fingerprint");
    add(facts.isForeignPartsOnly, "forced");
    add(facts.isHearingImpaired, "SDH");
    add(facts.isMachineTranslated, "machine");
    add(facts.isFromTrusted, "trusted");
    add(facts.isHighDefinition, "HD");
    if (facts.discCount > 1)
        marks.append(QStringLiteral("part %1 of %2").arg(facts.discNumber).arg(facts.discCount));
    add(IsMarked(ranked, MatchReason::OtherFilm), "other film");
    add(IsMarked(ranked, MatchReason::WrongEpisode), "other episode");
    return marks.join(QLatin1String(", "));
}

Row MakeRow(RankedResult const& ranked, int number)
{
    SearchResult const& result = *ranked.result;
    SearchResultFacts const& facts = result.facts;
    Row row{QString::number(number),
            facts.serviceId,
            GetLanguageCode(facts),
            GetFormat(result),
            facts.downloadCount ? QString::number(*facts.downloadCount) : QString(),
            result.fileName,
            DescribeMarks(ranked)};
    for (QString& cell : row)
        cell = ToSafeLine(cell);
    return row;
}

Widths Measure(std::vector<Row> const& rows)
{
    Widths widths{};
    for (Row const& row : rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], DisplayWidth(row[column]));
    return widths;
}

/// What the other columns leave to the name, but never less than one can read.
int GetNameRoom(Widths const& widths, int columns)
{
    int others = 0;
    for (std::size_t column = 0; column < widths.size(); ++column)
        others += column == NAME_COLUMN ? 0 : widths[column] + GAP;
    return std::max(SHORTEST_NAME, columns - others);
}

void PrintRow(Row const& row, Widths const& widths, std::ostream& out)
{
    QString line;
    for (std::size_t column = 0; column < row.size(); ++column)
    {
        if (column > 0)
            line += QString(GAP, QLatin1Char(' '));
        line += Padded(row[column], widths[column], COLUMNS[column].alignment);
    }
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    out << line.toStdString() << '\n';
}

void AddSwitches(RankedResult const& ranked, QJsonObject& object)
{
    SearchResultFacts const& facts = ranked.result->facts;
    object.insert(QStringLiteral("otherFilm"), IsMarked(ranked, MatchReason::OtherFilm));
    object.insert(QStringLiteral("otherEpisode"), IsMarked(ranked, MatchReason::WrongEpisode));
    object.insert(QStringLiteral("hearingImpaired"), facts.isHearingImpaired);
    object.insert(QStringLiteral("foreignPartsOnly"), facts.isForeignPartsOnly);
    object.insert(QStringLiteral("machineTranslated"), facts.isMachineTranslated);
    object.insert(QStringLiteral("fromTrusted"), facts.isFromTrusted);
    object.insert(QStringLiteral("highDefinition"), facts.isHighDefinition);
    object.insert(QStringLiteral("fingerprintMatch"), facts.isHashMatch);
    object.insert(QStringLiteral("part"), facts.discNumber);
    object.insert(QStringLiteral("partCount"), facts.discCount);
}

void AddText(QJsonObject& object, char const* key, QString const& text)
{
    if (!text.isEmpty())
        object.insert(QLatin1String(key), text);
}

template <typename Number>
void AddNumber(QJsonObject& object, char const* key, std::optional<Number> const& number)
{
    if (number)
        object.insert(QLatin1String(key), QJsonValue(*number));
}

} // namespace

void PrintResultTable(SearchResults const& results, int columns, std::ostream& out)
{
    std::vector<Row> rows(1);
    for (std::size_t column = 0; column < COLUMNS.size(); ++column)
        rows.front()[column] = QLatin1String(COLUMNS[column].title);
    for (RankedResult const& ranked : results)
        rows.push_back(MakeRow(ranked, static_cast<int>(rows.size())));

    if (columns > 0)
    {
        int const room = GetNameRoom(Measure(rows), columns);
        for (Row& row : rows)
            row[NAME_COLUMN] = Shortened(row[NAME_COLUMN], room);
    }
    Widths const widths = Measure(rows);
    for (Row const& row : rows)
        PrintRow(row, widths, out);
}

QJsonObject ResultToJson(RankedResult const& ranked, int number)
{
    SearchResult const& result = *ranked.result;
    SearchResultFacts const& facts = result.facts;
    QJsonObject object{{QStringLiteral("number"), number}, {QStringLiteral("name"), result.fileName}};
    AddText(object, "id", facts.serviceId);
    AddText(object, "language", GetLanguageCode(facts));
    AddText(object, "languageName", QString::fromStdString(Language::GetLanguageData(facts.language).displayName));
    AddText(object, "serviceLanguage", facts.languageCode);
    AddText(object, "format", GetFormat(result));
    AddText(object, "release", facts.release);
    AddText(object, "comment", facts.comment);
    AddText(object, "uploaded", facts.uploaded.toUTC().toString(Qt::ISODate));
    AddText(object, "title", facts.title);
    AddText(object, "imdbId", QString::fromStdString(facts.imdbId));
    AddNumber<qint64>(object, "downloads", facts.downloadCount);
    AddNumber(object, "rating", facts.rating);
    AddNumber(object, "votes", facts.voteCount);
    AddNumber(object, "framesPerSecond", facts.framesPerSecond);
    AddNumber(object, "year", facts.year);
    AddNumber(object, "season", facts.season);
    AddNumber(object, "episode", facts.episode);
    AddSwitches(ranked, object);
    return object;
}

} // namespace Korvex::Cli
