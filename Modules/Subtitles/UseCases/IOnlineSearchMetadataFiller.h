#pragma once

#include "Subtitles/UseCases/SearchRequest.h"

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleSearchMediaInfoSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Adds to a query what a particular service understands about the file itself (fingerprint, size). Optional: a service
/// that understands nothing of the kind registers none.
class IOnlineSearchMetadataFiller
{
public:
    virtual void FillMetadata(Entities::SubtitleSearchMediaInfoSettings const& media, SearchRequest& request) = 0;
    virtual ~IOnlineSearchMetadataFiller() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
