#include "Proc/FFmpeg/FilmReader.h"

#include <cmath>
#include <stdexcept>

extern "C"
{
#include <libavutil/pixdesc.h>
}

namespace Korvex::Testing
{

using namespace Proc::FFmpeg;

namespace
{

InputContext Open(ioPath const& path)
{
    AVFormatContext* raw = nullptr;
    if (avformat_open_input(&raw, ("file:" + path.utf8string()).c_str(), nullptr, nullptr) < 0)
        throw std::runtime_error("cannot open " + path.utf8string());
    InputContext file(raw);
    if (avformat_find_stream_info(raw, nullptr) < 0)
        throw std::runtime_error("cannot analyse " + path.utf8string());
    return file;
}

std::chrono::microseconds TimeOf(AVFormatContext const& file, std::int64_t stamp, AVRational timeBase)
{
    std::int64_t const start = file.start_time == AV_NOPTS_VALUE ? 0 : file.start_time;
    return std::chrono::microseconds(av_rescale_q(stamp, timeBase, AV_TIME_BASE_Q) - start);
}

} // namespace

std::vector<int> Film::StreamsOf(AVMediaType type) const
{
    std::vector<int> found;
    for (unsigned i = 0; i < context->nb_streams; ++i)
    {
        if (Stream(i).codecpar->codec_type == type)
            found.push_back(static_cast<int>(i));
    }
    return found;
}

std::vector<FilmPacket> Film::PacketsOf(int stream) const
{
    std::vector<FilmPacket> found;
    for (FilmPacket const& packet : packets)
    {
        if (packet.stream == stream)
            found.push_back(packet);
    }
    return found;
}

std::string Film::CodecOf(int stream) const
{
    return avcodec_get_name(Stream(static_cast<unsigned>(stream)).codecpar->codec_id);
}

std::string Film::TagOf(int stream, char const* key) const
{
    AVDictionaryEntry const* tag = av_dict_get(Stream(static_cast<unsigned>(stream)).metadata, key, nullptr, 0);
    return tag ? tag->value : std::string();
}

Film ReadFilm(ioPath const& path)
{
    Film film;
    film.context = Open(path);
    AVFormatContext* const raw = film.context.get();
    Packet const packet(av_packet_alloc());
    while (av_read_frame(raw, packet.get()) >= 0)
    {
        AVRational const timeBase = raw->streams[packet->stream_index]->time_base;
        std::int64_t const stamp = packet->pts == AV_NOPTS_VALUE ? packet->dts : packet->pts;
        film.packets.push_back(
            {packet->stream_index, TimeOf(*raw, stamp, timeBase),
             std::chrono::microseconds(av_rescale_q(packet->duration, timeBase, AV_TIME_BASE_Q)),
             std::string(reinterpret_cast<char const*>(packet->data), static_cast<std::size_t>(packet->size))});
        av_packet_unref(packet.get());
    }
    return film;
}

std::vector<Frame> DecodePictures(ioPath const& path)
{
    InputContext const file = Open(path);
    AVFormatContext* const raw = file.get();
    AVCodec const* codec = nullptr;
    int const index = av_find_best_stream(raw, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (index < 0)
        throw std::runtime_error("no picture in " + path.utf8string());
    CodecContext const decoder(avcodec_alloc_context3(codec));
    avcodec_parameters_to_context(decoder.get(), raw->streams[index]->codecpar);
    decoder->pkt_timebase = raw->streams[index]->time_base;
    if (avcodec_open2(decoder.get(), codec, nullptr) < 0)
        throw std::runtime_error("no decoder for " + path.utf8string());

    std::vector<Frame> frames;
    Packet const packet(av_packet_alloc());
    for (bool more = true; more;)
    {
        more = av_read_frame(raw, packet.get()) >= 0;
        if (!more || packet->stream_index == index)
            avcodec_send_packet(decoder.get(), more ? packet.get() : nullptr);
        av_packet_unref(packet.get());
        for (Frame frame(av_frame_alloc()); avcodec_receive_frame(decoder.get(), frame.get()) >= 0;
             frame.reset(av_frame_alloc()))
        {
            frame->pts = TimeOf(*raw, frame->best_effort_timestamp, raw->streams[index]->time_base).count();
            frames.push_back(std::move(frame));
        }
    }
    return frames;
}

std::vector<double> LumaOf(AVFrame const& frame)
{
    int const depth = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth;
    std::vector<double> luma;
    luma.reserve(static_cast<std::size_t>(frame.width) * static_cast<std::size_t>(frame.height));
    for (int y = 0; y < frame.height; ++y)
    {
        std::uint8_t const* const row = frame.data[0] + std::ptrdiff_t{frame.linesize[0]} * y;
        for (int x = 0; x < frame.width; ++x)
            luma.push_back(depth == 8 ? row[x]
                                      : reinterpret_cast<std::uint16_t const*>(row)[x] / double(1 << (depth - 8)));
    }
    return luma;
}

double Psnr(std::vector<double> const& a, std::vector<double> const& b)
{
    if (a.size() != b.size() || a.empty())
        return 0.0;
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    return sum == 0 ? 100.0 : 10 * std::log10(255.0 * 255.0 * static_cast<double>(a.size()) / sum);
}

} // namespace Korvex::Testing
