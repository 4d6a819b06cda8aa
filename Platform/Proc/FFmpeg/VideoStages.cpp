#include "Proc/FFmpeg/VideoStages.h"

#include "Proc/FFmpeg/Decoding.h"
#include "Proc/FFmpeg/MediaTimes.h"

#include <algorithm>

namespace Korvex::Proc::FFmpeg
{

namespace
{

std::chrono::microseconds ToTime(std::int64_t timestamp, AVRational timeBase)
{
    return std::chrono::microseconds(av_rescale_q(timestamp, timeBase, AV_TIME_BASE_Q));
}

} // namespace

VideoStages::VideoStages(InputFile const& file, AVStream& stream, CodecContext decoder, PictureShape const& shape,
                         boost::intrusive_ptr<ISubtitleDrawer> drawer, Settings settings, PacketMerger& merger,
                         std::size_t target, JobControl& control)
    : m_input(file.Path()),
      m_stream(stream),
      m_decoder(std::move(decoder)),
      m_painter(shape, std::move(drawer)),
      m_settings(std::move(settings)),
      m_merger(merger),
      m_target(target),
      m_control(control),
      m_frameRate(av_guess_frame_rate(&file.Context(), &stream, nullptr)),
      m_lead(DecodingLead(file.Context(), stream))
{
    bool const lies = m_settings.liesOnGrid && m_frameRate.num > 0;
    m_settings.encoder.timeBase = lies ? av_inv_q(m_frameRate) : stream.time_base;
    m_settings.encoder.frameRate = m_frameRate;
    m_control.CallWhenStopped(
        [this]
        {
            m_packets.Cancel();
            m_decoded.Cancel();
            m_painted.Cancel();
        });
}

void VideoStages::RunDecoder()
{
    auto passOn = [this](Frame frame) { return PassOn(std::move(frame)); };
    bool wantsMore = true;
    while (std::optional<Packet> packet = wantsMore ? m_packets.Pop() : std::nullopt)
        wantsMore = Decode(*m_decoder, packet->get(), m_damaged, passOn);
    if (wantsMore && !m_control.IsStopped() && Decode(*m_decoder, nullptr, m_damaged, passOn))
        PassOnLast();
    m_decoded.Close();
    if (m_damaged > 0 && !m_control.IsStopped())
    {
        Warning warning;
        warning.code = WarningCode::PicturesDamaged;
        warning.file = m_input;
        m_control.Warn(std::move(warning));
    }
}

bool VideoStages::PassOn(Frame frame)
{
    std::int64_t pts = frame->best_effort_timestamp;
    if (pts != AV_NOPTS_VALUE)
        pts -= m_lead;
    if (m_last)
    {
        if (pts == AV_NOPTS_VALUE)
            pts = Later(m_last->pts, std::max<std::int64_t>(1, DurationOf(*m_last)));
        if (pts <= m_last->pts)
            return true; // a second picture for one instant
        SetFrameDuration(*m_last, pts - m_last->pts);
        if (!m_decoded.Push(std::move(m_last)))
            return false;
    }
    frame->pts = pts == AV_NOPTS_VALUE ? 0 : pts;
    m_last = std::move(frame);
    return true;
}

std::int64_t VideoStages::DurationOf(AVFrame const& frame) const
{
    std::int64_t const stated = FrameDuration(frame);
    return stated > 0 ? stated : FrameDurationAt(m_frameRate, m_stream.time_base);
}

bool VideoStages::PassOnLast()
{
    if (!m_last)
        return true;
    SetFrameDuration(*m_last, DurationOf(*m_last));
    return m_decoded.Push(std::move(m_last));
}

void VideoStages::RunPainter()
{
    while (std::optional<Frame> frame = m_decoded.Pop())
    {
        std::chrono::microseconds const time = ToTime((*frame)->pts, m_stream.time_base);
        Core::Result<Frame> painted = m_painter.Paint(std::move(*frame), time);
        if (!painted)
        {
            Core::Error error = painted.GetError();
            error.file = m_input;
            m_control.Fail(std::move(error));
            break;
        }
        if (!m_painted.Push(std::move(*painted)))
            break;
    }
    m_painted.Close();
}

void VideoStages::RunEncoder()
{
    // Whoever waits for the parameters has to learn, however this ends, that there will be none.
    struct Answer
    {
        ~Answer()
        {
            if (!stages.m_hasSetEncoded)
                stages.m_encoded.set_value(std::nullopt);
        }
        VideoStages& stages;
    } const answer{*this};
    std::optional<VideoEncoder> encoder;
    bool wantsMore = true;
    while (std::optional<Frame> frame = wantsMore ? m_painted.Pop() : std::nullopt)
    {
        if (!encoder)
        {
            Core::Result<VideoEncoder> opened = OpenEncoder(**frame);
            if (!opened)
            {
                m_control.Fail(opened.GetError());
                break;
            }
            encoder.emplace(std::move(*opened));
            m_encoded.set_value(encoder->Parameters());
            m_hasSetEncoded = true;
        }
        wantsMore = EncodeFrame(*encoder, std::move(*frame));
    }
    if (encoder && wantsMore && !m_control.IsStopped())
        EncodeFrame(*encoder, nullptr);
    m_merger.Finish(m_target);
}

Core::Result<VideoEncoder> VideoStages::OpenEncoder(AVFrame const& first)
{
    m_settings.encoder.fields = FieldsOf(first);
    return VideoEncoder::Open(first, m_stream, m_settings.encoder, m_settings.output);
}

FieldOrder VideoStages::FieldsOf(AVFrame const& first) const
{
    if (!IsInterlaced(first))
        return FieldOrder::Progressive;
    return IsTopFieldFirst(first) ? FieldOrder::TopFirst : FieldOrder::BottomFirst;
}

bool VideoStages::EncodeFrame(VideoEncoder& encoder, Frame frame)
{
    if (frame)
    {
        AVRational const timeBase = m_settings.encoder.timeBase;
        SetFrameDuration(*frame, av_rescale_q(FrameDuration(*frame), m_stream.time_base, timeBase));
        frame->pts = av_rescale_q(frame->pts, m_stream.time_base, timeBase);
        if (m_lastPts && frame->pts <= *m_lastPts)
            return true; // the grid has no place for it
        m_lastPts = frame->pts;
    }
    bool wantsMore = true;
    Core::Status failed = encoder.Encode(
        frame.get(), [this](Packet packet) { return m_merger.Push(m_target, std::move(packet)); }, wantsMore);
    if (failed)
        m_control.Fail(*failed);
    return wantsMore && !failed;
}

} // namespace Korvex::Proc::FFmpeg
