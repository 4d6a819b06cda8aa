#include "Subtitles/UseCases/CollectionRules.h"

#include "Subtitles/Entities/ISubtitleImpl.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;

bool IsSoftPossible(SubtitleCollection const& collection, std::set<std::string> const& allowedCodecIds)
{
    auto const isAllowed = [&](auto const& entry) { return allowedCodecIds.count(entry.second.codecId) != 0; };
    return !collection.tracks.empty() && std::all_of(collection.tracks.begin(), collection.tracks.end(), isAllowed);
}

void ApplyModeRule(SubtitleCollection& collection, bool isSoftPossible)
{
    if (!isSoftPossible && collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
    {
        collection.withoutSubtitles = 1;
    }
    else if (isSoftPossible && collection.mode == SubtitleCollectionMode::ModeNone)
    {
        collection.mode = SubtitleCollectionMode::AllSoftSubtitles;
        collection.withoutSubtitles = 0;
    }
}

bool IsCollectionValid(SubtitleCollection const& collection, bool isSoftPossible)
{
    if (collection.mode == SubtitleCollectionMode::SelectedTrack && collection.tracks.empty())
        return false;
    if (!collection.currentTrack.IsEmpty() && collection.tracks.count(collection.currentTrack) == 0)
        return false;
    return isSoftPossible || collection.mode != SubtitleCollectionMode::AllSoftSubtitles;
}

void DropForeignImpl(SubtitleCollection& collection)
{
    if (collection.implCollection == 0 ||
        collection.implCollection == static_cast<std::uint32_t>(collection.collectionId))
        return;
    collection.impl.reset();
    collection.implCollection = 0;
}

} // namespace Korvex::Converter::Subtitles::UseCases
