#pragma once

#include <QStringList>

#include <string>

namespace Korvex::Hosts
{
struct RewrittenTrack;
} // namespace Korvex::Hosts

namespace Korvex::Proc
{
struct Warning;
} // namespace Korvex::Proc

/// What the user is told of one conversion, in sentences of their language.
namespace Korvex::Desktop
{

/// What became of a track that was written anew: the first sentence says as what, others what was lost.
[[nodiscard]] QStringList DescribeRewritten(Hosts::RewrittenTrack const& rewritten, std::string const& formatId);

/// Whether what the sentences tell of took something away, and not only gave it another form.
[[nodiscard]] bool IsLossy(Hosts::RewrittenTrack const& rewritten);
[[nodiscard]] bool IsLossy(Proc::Warning const& warning);

} // namespace Korvex::Desktop
