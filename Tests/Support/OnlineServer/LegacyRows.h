#pragma once

#include "Support/OnlineServer/ServiceContext.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <map>

namespace Korvex::Testing
{

struct Subtitle;
struct SubtitleFile;

/// A search's keys and decoded values.
using LegacyQuery = std::map<QByteArray, QString>;

/// Whether a search finds the subtitle; every key has to agree.
[[nodiscard]] bool MatchesLegacySearch(Subtitle const& subtitle, LegacyQuery const& query);

/// One row of a search's reply.
[[nodiscard]] QJsonObject MakeLegacyRow(Subtitle const& subtitle, SubtitleFile const& file, LegacyQuery const& query,
                                        ServiceContext const& context);

} // namespace Korvex::Testing
