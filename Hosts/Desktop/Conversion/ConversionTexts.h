#pragma once

#include <QStringList>

#include <string>

namespace Korvex::Hosts
{
struct RewrittenTrack;
} // namespace Korvex::Hosts

/// What the user is told of one conversion, in sentences of their language.
namespace Korvex::Desktop
{

/// What became of a track that was written anew: the first sentence says as what, others what was lost.
[[nodiscard]] QStringList DescribeRewritten(Hosts::RewrittenTrack const& rewritten, std::string const& formatId);

} // namespace Korvex::Desktop
