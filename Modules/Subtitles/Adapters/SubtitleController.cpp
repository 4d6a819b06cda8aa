#include "Subtitles/Adapters/SubtitleController.h"

#include "Subtitles/Adapters/SettingsBuilders.h"
#include "Subtitles/Adapters/SubtitleFormats.h"
#include "Subtitles/Adapters/SubtitleImpl.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include "Conf/IFormatCodec.h"
#include "Core/CoreManager.h"
#include "Core/DataInput.h"
#include "Core/Localization.h"
#include "Proc/IDVDReader.h"
#include "Proc/IParser.h"
#include "Proc/Settings.h"

#include <algorithm>
#include <locale>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;

namespace
{

/// "smi" is deliberately wider than what dialogs offer.
std::set<std::string> const SUPPORTED_EXTENSIONS = {"srt", "ass", "ssa", "smi"};

/// The codec of the file's only stream.
std::string ReadCodec(ioPath const& path)
{
    auto const input = Core::DataInputFF::Create(path);
    auto const factory = Core::CoreManager::Instance().GetParserFactory();
    auto const parser = factory ? factory->CreateParser(input, Proc::SettingsParser()) : nullptr;
    if (!parser || parser->GetStreamCount() != 1)
        return Conf::IFormatCodec::CODEC_ID_NONE;
    auto const stream = parser->GetStream(0);
    auto const codec = stream ? stream->GetFormatCodec() : nullptr;
    return codec ? codec->GetCodecID() : Conf::IFormatCodec::CODEC_ID_NONE;
}

} // namespace

struct SubtitleController::Impl
{
    std::shared_ptr<SubtitleCollection> collection;
    std::shared_ptr<SubtitleImpl> holder;
    Core::EventHandlerList<UseCases::ISubtitleControllerEventObserver, Core::SyncExecutePolicy> observers;
};

SubtitleController::SubtitleController() : m_impl(std::make_unique<Impl>()) {}

SubtitleController::~SubtitleController() = default;

void SubtitleController::RegisterEventHandler(UseCases::ISubtitleControllerEventObserver* observer)
{
    m_impl->observers.RegisterEventHandler(observer);
}

void SubtitleController::UnregisterEventHandler(UseCases::ISubtitleControllerEventObserver* observer)
{
    m_impl->observers.UnregisterEventHandler(observer);
}

void SubtitleController::SetSubtitleCollection(std::shared_ptr<SubtitleCollection> const& collection)
{
    m_impl->collection = collection;
    m_impl->holder.reset();
    if (!collection)
        return;
    if (!collection->impl)
    {
        collection->impl = std::make_shared<SubtitleImpl>();
        collection->implCollection = static_cast<std::uint32_t>(collection->collectionId);
    }
    // Another implementation's object stays in the slot and is left alone.
    m_impl->holder = std::dynamic_pointer_cast<SubtitleImpl>(collection->impl);
}

std::set<std::string> SubtitleController::GetAllowedSoftCodecIds(std::string const& formatId) const
{
    return AllowedSoftCodecs(formatId);
}

std::string SubtitleController::DetermineSubtitleCodec(ioPath const& path) const
{
    try
    {
        return ReadCodec(path);
    }
    catch (...)
    {
        // A file that cannot be read has no codec; that is the whole answer.
        return Conf::IFormatCodec::CODEC_ID_NONE;
    }
}

std::string SubtitleController::GetCodecName(std::string const& codecId) const
{
    return Core::GetLocalizationManagerForDomain(Core::CoreManager::MESSAGE_DOMAIN).Translate(codecId);
}

std::vector<std::string> SubtitleController::GetValidExternalFormats() const
{
    return ExternalFormats();
}

bool SubtitleController::IsFileExtensionSupported(std::string const& extension)
{
    std::string lower = extension;
    std::locale const locale;
    std::transform(lower.begin(), lower.end(), lower.begin(), [&](char c) { return std::tolower(c, locale); });
    return SUPPORTED_EXTENSIONS.count(lower) != 0;
}

bool SubtitleController::PathIsDVD(ioPath const& path) const
{
    return path.utf8string().find(Proc::IDVDReader::DVD_PATH_PREFIX) != std::string::npos;
}

void SubtitleController::ApplySettings()
{
    if (!m_impl->holder)
        return;
    SubtitleCollection const& collection = *m_impl->collection;
    if (collection.withoutSubtitles != 0)
    {
        ClearSettings();
    }
    else if (collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
    {
        m_impl->holder->SetSubtitleSoftSettings(BuildSoftSettings(collection));
        m_impl->holder->ClearSubtitleSettings(SubtitleImpl::Mixer);
    }
    else if (collection.mode == SubtitleCollectionMode::SelectedTrack)
    {
        m_impl->holder->SetSubtitleMixerSettings(BuildMixerSettings(collection));
        m_impl->holder->ClearSubtitleSettings(SubtitleImpl::Soft);
    }
}

void SubtitleController::ClearSettings()
{
    if (!m_impl->holder)
        return;
    m_impl->holder->ClearSubtitleSettings(SubtitleImpl::Soft);
    m_impl->holder->ClearSubtitleSettings(SubtitleImpl::Mixer);
}

void SubtitleController::RefreshSettings()
{
    m_impl->observers.Notify([](auto* observer) { observer->OnSettingsRefreshed(); });
}

} // namespace Korvex::Converter::Subtitles::Adapters
