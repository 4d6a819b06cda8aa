#pragma once

#include "Support/OnlineServer/RequestTarget.h"
#include "Support/OnlineServer/ServiceContext.h"

#include <QJsonObject>

namespace Korvex::Testing
{

struct Film;
struct Subtitle;

/// Whether a search's filters let the subtitle through.
[[nodiscard]] bool MatchesVersion1Search(Subtitle const& subtitle, RequestTarget const& target);

/// One element of `data` in the reply to a search. `movieHash` is that of the request, null when it had none.
[[nodiscard]] QJsonObject MakeVersion1Row(Subtitle const& subtitle, QString const& movieHash,
                                          ServiceContext const& context);

/// One element of `data` in the reply to a request for features.
[[nodiscard]] QJsonObject MakeVersion1Feature(Film const& film, ServiceContext const& context);

} // namespace Korvex::Testing
