#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/SearchMetadataFiller.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IOnlineDownloaderController.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

using Entities::SearchTags;

SearchMetadataFiller::SearchMetadataFiller(std::shared_ptr<UseCases::IOnlineDownloaderController> const& controller)
    : m_controller(controller)
{
}

SearchMetadataFiller::~SearchMetadataFiller() = default;

void SearchMetadataFiller::FillMetadata(Entities::SubtitleSearchMediaInfoSettings const& media,
                                        UseCases::SearchRequest& request)
{
    auto const fingerprint = m_controller->DetermineFingerprint(media.path);
    if (!fingerprint)
        return;
    request.tags[SearchTags::MOVIE_HASH_OS] = fingerprint->hash;
    request.tags[SearchTags::MOVIE_BYTE_SIZE] = std::to_string(fingerprint->byteSize);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
