#include "Proc/FFmpeg/Conversion.h"

#include "Proc/FFmpeg/Decoding.h"
#include "Proc/FFmpeg/StreamLoader.h"

#include "Conf/IFormatFile.h"
#include "Proc/Settings.h"

#include <algorithm>
#include <exception>
#include <new>
#include <optional>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Source = OutputStream::Source;

std::vector<PacketMerger::Pace> PacesOf(StreamMap const& plan)
{
    std::vector<PacketMerger::Pace> paces;
    for (OutputStream const& stream : plan.streams)
    {
        bool const isWaitedFor = stream.Type() == AVMEDIA_TYPE_VIDEO || stream.Type() == AVMEDIA_TYPE_AUDIO;
        bool const comesFromInput = stream.source == Source::Copied || stream.source == Source::Encoded;
        paces.push_back(isWaitedFor && comesFromInput ? PacketMerger::Pace::Gating : PacketMerger::Pace::Sparse);
    }
    return paces;
}

bool UsesGlobalHeader(ContainerRule const& rule)
{
    return (av_guess_format(rule.muxerName, nullptr, nullptr)->flags & AVFMT_GLOBALHEADER) != 0;
}

/// MP4 says in an edit list where the sound begins that is to be heard.
bool KeepsLeadIn(ContainerRule const& rule)
{
    return rule.formatId == Conf::IFormatFile::FORMAT_MP4 || rule.formatId == Conf::IFormatFile::FORMAT_MOV;
}

} // namespace

Conversion::Conversion(SettingsTranscode const& settings, InputFile const& input, StreamMap& plan, JobControl& control)
    : m_settings(settings),
      m_input(input),
      m_plan(plan),
      m_control(control),
      m_merger(PacesOf(plan), {})
{
    m_control.CallWhenStopped([this] { m_merger.Cancel(); });
}

Conversion::~Conversion()
{
    JoinThreads();
    m_control.Finish();
}

Core::Result<ioPath> Conversion::Run(WrittenSink const& onWritten)
{
    try
    {
        if (Core::Status const failed = Execute(onWritten))
            m_control.Fail(*failed);
    }
    catch (std::exception const& error)
    {
        m_control.Fail(MakeError(Core::ErrorCode::Internal, m_settings.input, error.what()));
    }
    JoinThreads();
    // After this a cancel comes too late, so that no file stands there that was reported as cancelled.
    if (!m_control.Finish())
        return *m_control.GetError();
    return m_output->Commit(m_settings.takenName);
}

Core::Status Conversion::Execute(WrittenSink const& onWritten)
{
    if (Core::Status failed = Prepare())
        return failed;
    AddStreams();
    StartThreads();
    if (Core::Status failed = WriteHeader())
        return failed;
    if (Core::Status failed = WriteAll(onWritten))
        return failed;
    return m_control.IsStopped() ? m_control.GetError() : m_output->WriteTrailer();
}

Core::Status Conversion::Prepare()
{
    Core::Result<std::unique_ptr<OutputFile>> output = OutputFile::Create(*m_plan.rule, m_settings.output, m_control);
    if (!output)
        return output.GetError();
    m_output = std::move(*output);

    std::vector<Route> routes(m_input.Context().nb_streams);
    for (std::size_t i = 0; i < m_plan.streams.size(); ++i)
    {
        if (Core::Status failed = PrepareStream(i, routes))
            return failed;
    }
    m_demuxing = std::make_unique<Demuxing>(m_input, std::move(routes), m_merger, m_control);
    return Core::SUCCESS;
}

Core::Status Conversion::PrepareStream(std::size_t index, std::vector<Route>& routes)
{
    OutputStream& stream = m_plan.streams[index];
    switch (stream.source)
    {
    case Source::Copied:
    {
        Route& route = routes[*stream.inputIndex];
        route.copies.push_back(index);
        route.dropsLeadIn = stream.Type() == AVMEDIA_TYPE_AUDIO && !KeepsLeadIn(*m_plan.rule);
        if (route.dropsLeadIn && stream.parameters->codec_id == AV_CODEC_ID_AAC)
            stream.parameters->initial_padding = 0;
        if (!route.filter)
            route.filter = MakeCopyFilter(*m_input.FindStream(*stream.inputIndex), m_plan.rule->muxerName);
        if (route.filter)
        {
            std::uint32_t const tag = stream.parameters->codec_tag;
            stream.parameters = MakeCodecParameters(*route.filter->par_out);
            stream.parameters->codec_tag = tag;
        }
        return Core::SUCCESS;
    }
    case Source::Encoded:
    {
        AVStream& input = *m_input.FindStream(*stream.inputIndex);
        bool const isVideo = stream.Type() == AVMEDIA_TYPE_VIDEO;
        if (Core::Status failed = isVideo ? PrepareVideo(index, input) : PrepareAudio(index, input))
            return failed;
        routes[*stream.inputIndex].decoder = isVideo ? &m_video->Packets() : &m_audio[index]->Packets();
        return Core::SUCCESS;
    }
    case Source::Preloaded:
        for (Packet& packet : stream.packets)
            m_merger.Push(index, std::move(packet));
        stream.packets.clear();
        break;
    case Source::HeaderOnly:
        break;
    }
    m_merger.Finish(index);
    return Core::SUCCESS;
}

Core::Status Conversion::PrepareVideo(std::size_t index, AVStream& stream)
{
    Core::Result<PictureShape> const shape = ShapeOf(m_input.Context(), stream, m_settings.input);
    if (!shape)
        return shape.GetError();
    boost::intrusive_ptr<ISubtitleDrawer> drawer;
    if (m_settings.mixer)
    {
        auto made = MakeDrawer(*shape);
        if (!made)
            return made.GetError();
        drawer = *made;
    }
    Core::Result<CodecContext> decoder = OpenDecoder(stream, m_settings.input);
    if (!decoder)
        return decoder.GetError();
    VideoStages::Settings settings;
    settings.encoder.crf = m_settings.crf;
    settings.encoder.preset = m_settings.preset;
    settings.encoder.usesGlobalHeader = UsesGlobalHeader(*m_plan.rule);
    settings.encoder.reordersPictures = m_plan.rule->storesPresentationTimes;
    settings.liesOnGrid = !m_plan.rule->storesPresentationTimes;
    settings.output = m_settings.output;
    m_video = std::make_unique<VideoStages>(m_input, stream, std::move(*decoder), *shape, std::move(drawer), settings,
                                            m_merger, index, m_control);
    return Core::SUCCESS;
}

/// A track of the film is read from its beginning to its end, which takes long enough to be cancelled.
Core::Result<boost::intrusive_ptr<ISubtitleDrawer>> Conversion::MakeDrawer(PictureShape const& shape) const
{
    SettingsSubtitleMixer const& mixer = *m_settings.mixer;
    std::optional<std::uint32_t> const index = mixer.GetSubtitleStreamIndex();
    if (!index)
        return MakeSubtitleDrawer(mixer, m_settings.input, shape.Geometry());
    Core::Result<InputFile> const file =
        InputFile::Open(m_settings.input, {StreamAnalysis::Quick, &m_control.StopFlag()});
    if (!file)
        return file.GetError();
    Core::Result<SubtitleDocument> document = LoadStream(*file, *index);
    if (!document)
        return document.GetError();
    auto drawer = MakeSubtitleDrawer(mixer.GetDrawerSettings(), std::move(*document), shape.Geometry());
    if (drawer || !drawer.GetError().file.empty())
        return drawer;
    Core::Error error = drawer.GetError();
    error.file = m_settings.input;
    return error;
}

Core::Status Conversion::PrepareAudio(std::size_t index, AVStream const& stream)
{
    AudioStage::Settings settings;
    settings.usesGlobalHeader = UsesGlobalHeader(*m_plan.rule);
    settings.keepsLeadIn = KeepsLeadIn(*m_plan.rule);
    settings.output = m_settings.output;
    auto stage = AudioStage::Open(m_input, stream, settings, m_merger, index, m_control);
    if (!stage)
        return stage.GetError();
    m_audio[index] = std::move(*stage);
    return Core::SUCCESS;
}

void Conversion::StartThreads()
{
    Start("reading", [this] { m_demuxing->Run(); });
    for (auto const& [index, stage] : m_audio)
        Start("encoding the sound", [&audio = *stage] { audio.Run(); });
    if (m_video)
    {
        Start("decoding the picture", [this] { m_video->RunDecoder(); });
        Start("drawing", [this] { m_video->RunPainter(); });
        Start("encoding the picture", [this] { m_video->RunEncoder(); });
    }
}

void Conversion::Start(std::string what, std::function<void()> body)
{
    m_threads.emplace_back(
        [this, what = std::move(what), body = std::move(body)]
        {
            try
            {
                body();
            }
            catch (std::exception const& error)
            {
                m_control.Fail(MakeError(Core::ErrorCode::Internal, m_settings.input, what + ": " + error.what()));
            }
        });
}

/// Before the reading begins: the demuxer may change its streams and tags at any packet.
void Conversion::AddStreams()
{
    for (OutputStream const& stream : m_plan.streams)
    {
        bool const isCopied = stream.source == Source::Copied;
        m_output->AddStream(stream, isCopied ? m_input.FindStream(*stream.inputIndex) : nullptr);
    }
    m_output->CopyDescription(m_input);
}

Core::Status Conversion::WriteHeader()
{
    for (std::size_t i = 0; i < m_plan.streams.size(); ++i)
    {
        OutputStream const& stream = m_plan.streams[i];
        if (stream.source != Source::Encoded)
            continue;
        std::optional<EncodedParameters> const encoded =
            stream.Type() == AVMEDIA_TYPE_AUDIO ? m_audio[i]->Parameters() : m_video->Encoded().get();
        if (m_control.IsStopped())
            return Core::SUCCESS;
        if (!encoded)
            return MakeError(Core::ErrorCode::FileDamaged, m_settings.input, "none of its pictures can be decoded");
        m_output->SetEncoded(i, *encoded);
    }
    return m_control.IsStopped() ? Core::SUCCESS : m_output->WriteHeader();
}

Core::Status Conversion::WriteAll(WrittenSink const& onWritten)
{
    while (std::optional<PacketMerger::Item> item = m_merger.Pop())
    {
        std::chrono::microseconds const end(
            av_rescale_q(item->packet->pts + item->packet->duration, item->packet->time_base, AV_TIME_BASE_Q));
        if (Core::Status failed = m_output->Write(item->stream, *item->packet))
            return failed;
        if (m_plan.streams[item->stream].Type() != AVMEDIA_TYPE_SUBTITLE)
            onWritten(end);
    }
    return Core::SUCCESS;
}

void Conversion::JoinThreads()
{
    for (std::thread& thread : m_threads)
        thread.join();
    m_threads.clear();
}

} // namespace Korvex::Proc::FFmpeg
