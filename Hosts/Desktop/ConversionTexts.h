#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace Korvex
{
class ioPath;
} // namespace Korvex

namespace Korvex::Hosts
{
struct CarryProblem;
struct RewrittenTrack;
} // namespace Korvex::Hosts

/// What the user is told of one conversion, in sentences of their language.
namespace Korvex::Desktop
{

/// Why a film with this track cannot go out with all its tracks switchable, and what can be done.
[[nodiscard]] QString DescribeProblem(Hosts::CarryProblem const& problem, ioPath const& film,
                                      std::string const& formatId);

/// What became of a track that was written anew: the first sentence says as what, others what was lost.
[[nodiscard]] QStringList DescribeRewritten(Hosts::RewrittenTrack const& rewritten, std::string const& formatId);

} // namespace Korvex::Desktop
