#include "Proc/FFmpeg/StreamMap.h"

#include "Proc/FFmpeg/Decoding.h"
#include "Proc/FFmpeg/FrameRotation.h"
#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/SubtitleStreams.h"

#include "Proc/Settings.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Source = OutputStream::Source;

/// Tags that describe the old coding and would be wrong of the new one.
bool DescribesOldCoding(std::string const& key)
{
    static constexpr std::array<char const*, 7> PREFIXES{"encoder",      "BPS",       "DURATION", "NUMBER_OF_",
                                                         "_STATISTICS_", "vendor_id", "rotate"};
    return std::any_of(PREFIXES.begin(), PREFIXES.end(),
                       [&](char const* prefix) { return key.compare(0, std::strlen(prefix), prefix) == 0; });
}

/// Decides stream by stream; one object per plan.
class Planner
{
public:
    Planner(SettingsTranscode const& settings, InputFile const& input, ContainerRule const& rule)
        : m_settings(settings),
          m_input(input),
          m_rule(rule)
    {
        m_map.rule = &rule;
    }

    Core::Result<StreamMap> Plan()
    {
        if (AVStream const* video = m_input.FindMainVideo())
            m_map.mainVideo = static_cast<std::uint32_t>(video->index);
        for (unsigned i = 0; i < m_input.Context().nb_streams; ++i)
        {
            if (Core::Status const failed = PlanMedia(*m_input.Context().streams[i]))
                return *failed;
        }
        if (m_settings.mixer && !m_map.mainVideo)
            return MakeError(Core::ErrorCode::InvalidSetting, m_settings.input,
                             "it has no picture that subtitles could be drawn into");
        if (m_map.streams.empty())
            return MakeError(Core::ErrorCode::NothingToConvert, m_settings.input);
        if (m_settings.soft)
        {
            if (Core::Status const failed = AddSoftSubtitles(m_settings, m_input, m_map))
                return *failed;
        }
        PlanAttachments();
        return std::move(m_map);
    }

private:
    Core::Status PlanMedia(AVStream const& stream)
    {
        if (stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO)
            return PlanAudio(stream);
        if (stream.codecpar->codec_type != AVMEDIA_TYPE_VIDEO)
            return Core::SUCCESS;
        if (stream.disposition & AV_DISPOSITION_ATTACHED_PIC)
            PlanCover(stream);
        else if (m_map.mainVideo == static_cast<std::uint32_t>(stream.index))
            return PlanMainVideo(stream);
        else
            PlanOtherVideo(stream);
        return Core::SUCCESS;
    }

    Core::Status PlanMainVideo(AVStream const& stream)
    {
        bool const wantsCopy = m_settings.videoCodecId.empty() && !m_settings.mixer;
        if (wantsCopy && CanCopy(stream))
        {
            Add(stream, Source::Copied);
            return Core::SUCCESS;
        }
        if (!avcodec_find_decoder(stream.codecpar->codec_id))
            return NoDecoder(stream);
        if (wantsCopy)
            Warn(WarningCode::PictureEncodedAnew);
        OutputStream& output = Add(stream, Source::Encoded);
        output.parameters->codec_id = AV_CODEC_ID_H264;
        output.keepsDisplayMatrix = false;
        return Core::SUCCESS;
    }

    void PlanOtherVideo(AVStream const& stream)
    {
        if (CanCopy(stream) && !m_rule.carriesOneStreamPerKind)
            Add(stream, Source::Copied);
        else
            LeaveOut(stream, WarningCode::SecondPictureLeftOut);
    }

    void PlanCover(AVStream const& stream)
    {
        if (m_rule.carriesCoverPictures && stream.attached_pic.size > 0 && CanCarry(m_rule, *stream.codecpar))
            AddCover(stream);
        else
            LeaveOut(stream, WarningCode::CoverPictureLeftOut);
    }

    /// Matroska keeps covers as attached files; elsewhere a cover is a stream of one packet.
    void AddCover(AVStream const& stream)
    {
        if (!m_rule.carriesAttachments)
        {
            Add(stream, Source::Preloaded).packets.push_back(CoverPacket(stream));
            m_map.streams.back().disposition |= AV_DISPOSITION_ATTACHED_PIC;
            return;
        }
        OutputStream& output = Add(stream, Source::HeaderOnly);
        bool const isPng = stream.codecpar->codec_id == AV_CODEC_ID_PNG;
        output.parameters = MakeCodecParameters();
        output.parameters->codec_type = AVMEDIA_TYPE_ATTACHMENT;
        output.parameters->codec_id = stream.codecpar->codec_id;
        SetExtraData(*output.parameters, stream.attached_pic.data, static_cast<std::size_t>(stream.attached_pic.size));
        output.disposition = 0;
        output.tags = {{"filename", isPng ? "cover.png" : "cover.jpg"},
                       {"mimetype", isPng ? "image/png" : "image/jpeg"}};
    }

    static Packet CoverPacket(AVStream const& stream)
    {
        Packet packet = MakePacket();
        if (av_packet_ref(packet.get(), &stream.attached_pic) < 0)
            throw std::bad_alloc();
        packet->pts = packet->dts = 0;
        packet->duration = 0;
        packet->time_base = stream.time_base;
        packet->flags |= AV_PKT_FLAG_KEY;
        return packet;
    }

    Core::Status PlanAudio(AVStream const& stream)
    {
        if (stream.codecpar->sample_rate <= 0 || stream.codecpar->ch_layout.nb_channels <= 0)
        {
            LeaveOut(stream, WarningCode::UnreadableSoundLeftOut);
            return Core::SUCCESS;
        }
        if (m_rule.carriesOneStreamPerKind && HasStreamOf(AVMEDIA_TYPE_AUDIO))
        {
            LeaveOut(stream, WarningCode::FurtherSoundLeftOut);
            return Core::SUCCESS;
        }
        if (m_settings.audioCodecId.empty() && CanCarry(m_rule, *stream.codecpar))
        {
            Add(stream, Source::Copied);
            return Core::SUCCESS;
        }
        if (!avcodec_find_decoder(stream.codecpar->codec_id))
            return NoDecoder(stream);
        Add(stream, Source::Encoded).parameters->codec_id = AV_CODEC_ID_AAC;
        return Core::SUCCESS;
    }

    void PlanAttachments()
    {
        bool const hasTracks = m_settings.soft && !m_settings.soft->GetTracksInfo().empty();
        bool isMissed = false;
        for (unsigned i = 0; i < m_input.Context().nb_streams; ++i)
        {
            AVStream const& stream = *m_input.Context().streams[i];
            if (stream.codecpar->codec_type != AVMEDIA_TYPE_ATTACHMENT)
                continue;
            if (m_rule.carriesAttachments)
                Add(stream, Source::HeaderOnly);
            else // fonts are of use to subtitle tracks alone
                isMissed = isMissed || hasTracks || !IsFont(stream);
        }
        if (isMissed)
            Warn(WarningCode::AttachmentsLeftOut);
    }

    [[nodiscard]] bool CanCopy(AVStream const& stream) const
    {
        if (m_rule.storesPresentationTimes && LacksPresentationTimes(m_input.Context(), stream))
            return false;
        if (!m_rule.carriesDisplayMatrix && !OrientationOf(stream).IsUpright())
            return false; // copied it would lie on its side
        return CanCarry(m_rule, *stream.codecpar);
    }

    [[nodiscard]] bool HasStreamOf(AVMediaType type) const
    {
        return std::any_of(m_map.streams.begin(), m_map.streams.end(),
                           [&](OutputStream const& stream) { return stream.Type() == type; });
    }

    OutputStream& Add(AVStream const& stream, Source source)
    {
        OutputStream output;
        output.source = source;
        output.inputIndex = static_cast<std::uint32_t>(stream.index);
        output.parameters = CopyParametersForOutput(*stream.codecpar, m_rule);
        output.timeBase = stream.time_base;
        output.disposition = stream.disposition & ~AV_DISPOSITION_ATTACHED_PIC;
        AVDictionaryEntry const* tag = nullptr;
        while ((tag = av_dict_get(stream.metadata, "", tag, AV_DICT_IGNORE_SUFFIX)))
        {
            if (!DescribesOldCoding(tag->key))
                output.tags.emplace_back(tag->key, ValueFor(*tag));
        }
        AVDictionaryEntry const* title = av_dict_get(stream.metadata, "title", nullptr, 0);
        if (title && m_rule.namesTracksByHandler)
            output.tags.emplace_back("handler_name", title->value); // the last one counts
        m_map.streams.push_back(std::move(output));
        return m_map.streams.back();
    }

    /// A language in the form that the container wants.
    [[nodiscard]] std::string ValueFor(AVDictionaryEntry const& tag) const
    {
        if (std::strcmp(tag.key, "language") != 0)
            return tag.value;
        std::string const language = ToIso6392(tag.value, m_rule.languageForm);
        return language.empty() ? tag.value : language;
    }

    Warning& Warn(WarningCode code)
    {
        Warning& warning = m_map.warnings.emplace_back();
        warning.code = code;
        warning.file = m_settings.input;
        warning.container = m_rule.displayName;
        return warning;
    }

    void LeaveOut(AVStream const& stream, WarningCode code)
    {
        Warning& warning = Warn(code);
        warning.track = std::to_string(stream.index);
        warning.codec = CodecDisplayName(stream.codecpar->codec_id);
    }

    [[nodiscard]] Core::Error NoDecoder(AVStream const& stream) const
    {
        Core::Error error = MakeError(Core::ErrorCode::CodecNotSupported, m_settings.input,
                                      "there is no decoder for track " + std::to_string(stream.index));
        error.codec = CodecDisplayName(stream.codecpar->codec_id);
        return error;
    }

    SettingsTranscode const& m_settings;
    InputFile const& m_input;
    ContainerRule const& m_rule;
    StreamMap m_map;
};

Core::Status CheckSettings(SettingsTranscode const& settings)
{
    auto invalid = [&](std::string detail)
    { return MakeError(Core::ErrorCode::InvalidSetting, settings.output, std::move(detail)); };
    if (settings.soft && settings.mixer)
        return invalid("subtitles go out either as tracks or in the picture, not both");
    if (settings.crf < 0 || settings.crf > 51)
        return invalid("the rate factor goes from 0 to 51");
    static constexpr std::array<char const*, 10> PRESETS{"ultrafast", "superfast", "veryfast", "faster",   "fast",
                                                         "medium",    "slow",      "slower",   "veryslow", "placebo"};
    if (std::find(PRESETS.begin(), PRESETS.end(), settings.preset) == PRESETS.end())
        return invalid("there is no encoder preset \"" + settings.preset + "\"");
    auto unsupported = [&](std::string const& codec, char const* known)
    {
        Core::Error error =
            MakeError(Core::ErrorCode::CodecNotSupported, settings.output, std::string("the encoder here is ") + known);
        error.codec = codec;
        return error;
    };
    if (!settings.videoCodecId.empty() && settings.videoCodecId != "h264")
        return unsupported(settings.videoCodecId, "h264");
    if (!settings.audioCodecId.empty() && settings.audioCodecId != "aac")
        return unsupported(settings.audioCodecId, "aac");
    return Core::SUCCESS;
}

} // namespace

Core::Result<StreamMap> MakeStreamMap(SettingsTranscode const& settings, InputFile const& input)
{
    if (Core::Status const failed = CheckSettings(settings))
        return *failed;
    ContainerRule const* rule = FindContainerRule(settings.formatId);
    if (!rule)
    {
        Core::Error error = MakeError(Core::ErrorCode::ContainerUnknown, settings.output);
        error.container = settings.formatId;
        return error;
    }
    return Planner(settings, input, *rule).Plan();
}

} // namespace Korvex::Proc::FFmpeg
