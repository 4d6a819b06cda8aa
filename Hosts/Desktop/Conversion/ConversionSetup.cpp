#include "Desktop/Conversion/ConversionSetup.h"

#include "Desktop/Conversion/ConversionTotals.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/OutputSettings.h"

#include "Common/HostServices.h"
#include "Subtitles/Subtitles.h"

#include "Core/FileSystem.h"

#include <QFileInfo>

#include <vector>

namespace Korvex::Desktop
{

namespace Subtitles = Converter::Subtitles;
using Converter::Transcoder::Entities::ConversionRequest;
using Subtitles::Entities::SubtitleCollection;
using Subtitles::Entities::SubtitleCollectionID;
using Subtitles::Entities::SubtitleCollectionMode;

bool AsksForAllSoft(ConversionJob const& job)
{
    return job.collection.mode == SubtitleCollectionMode::AllSoftSubtitles && !job.collection.tracks.empty();
}

bool AsksForDrawing(ConversionJob const& job)
{
    SubtitleCollection const& collection = job.collection;
    return !collection.tracks.empty() && collection.mode == SubtitleCollectionMode::SelectedTrack &&
           collection.withoutSubtitles == 0 && !collection.currentTrack.IsEmpty();
}

PictureWork FindPictureWork(ConversionJob const& job)
{
    bool const isCopied = job.preset.videoCodecId.empty() && !AsksForDrawing(job);
    return isCopied ? PictureWork::Copied : PictureWork::Encoded;
}

ioPath FindFreeOutput(ConversionJob const& job)
{
    if (!Core::PathExists(job.output))
        return job.output;
    OutputSettings settings;
    settings.formatId = job.preset.formatId;
    settings.folder = job.output.Parent();
    return MakeOutputPath(job.media.path, settings);
}

Core::Status CheckOutput(ConversionJob const& job)
{
    std::vector<ioPath> inputs{job.media.path};
    for (auto const& [id, track] : job.collection.tracks)
        if (track.isExternal)
            inputs.push_back(track.path);
    if (Core::Status refused = Core::CheckOutput(job.output, inputs, false))
        return refused;
    ioPath const folder = job.output.Parent();
    QString const place = folder.empty() ? QStringLiteral(".") : QString::fromStdString(folder.utf8string());
    if (QFileInfo(place).isWritable())
        return Core::SUCCESS;
    Core::Error error;
    error.code = Core::ErrorCode::OutputNotWritable;
    error.file = job.output;
    return error;
}

std::optional<ConversionRequest> MakeConversionRequest(Hosts::HostServices& services, ConversionJob const& job)
{
    SubtitleCollection collection = job.collection;
    collection.collectionId = SubtitleCollectionID();
    collection.impl.reset();
    collection.implCollection = 0;
    if (collection.tracks.empty())
    {
        collection.mode = SubtitleCollectionMode::ModeNone;
        collection.withoutSubtitles = 1;
        collection.currentTrack.Clear();
    }

    auto const interactor = services.GetPool().GetInteractor();
    interactor->SetPresenterSettings({});
    interactor->SetPreset(job.preset);
    interactor->SetSubtitleCollection(collection, true);
    Subtitles::CoreSettings const settings = Subtitles::ReadCoreSettings(interactor->GetSubtitleCollection());
    interactor->ClearSubtitleCollection();

    if (AsksForAllSoft(job) != (settings.soft != nullptr) || AsksForDrawing(job) != (settings.mixer != nullptr))
        return std::nullopt;
    ConversionRequest request;
    request.item.path = job.media.path;
    request.output = job.output;
    request.preset = job.preset;
    request.soft = settings.soft;
    request.mixer = settings.mixer;
    request.takenName = Core::TakenName::NextFree;
    return request;
}

} // namespace Korvex::Desktop
