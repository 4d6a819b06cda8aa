#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include <set>
#include <string>

/// The rules that keep a collection's choice consistent with what the output can carry.
namespace Korvex::Converter::Subtitles::UseCases
{

/// Whether every track may go out as a switchable stream; false without tracks.
/// @param allowedCodecIds what the output container carries
[[nodiscard]] KVSUBTITLES_API bool IsSoftPossible(Entities::SubtitleCollection const& collection,
                                                  std::set<std::string> const& allowedCodecIds);

/// All soft subtitles that are not possible become no subtitles; where nothing was chosen yet and they are possible,
/// they become the choice.
KVSUBTITLES_API void ApplyModeRule(Entities::SubtitleCollection& collection, bool isSoftPossible);

/// Whether the collection asks for something that can be had.
[[nodiscard]] KVSUBTITLES_API bool IsCollectionValid(Entities::SubtitleCollection const& collection,
                                                     bool isSoftPossible);

/// Empties the implementation slot when it was filled for another media item, as it is after the collection was copied
/// from there: two items must not write into one settings holder.
KVSUBTITLES_API void DropForeignImpl(Entities::SubtitleCollection& collection);

} // namespace Korvex::Converter::Subtitles::UseCases
