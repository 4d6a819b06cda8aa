#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Core/ioPath.h"

#include <chrono>
#include <string>
#include <vector>

/// Reads back what a conversion wrote, with the library alone.
namespace Korvex::Testing
{

struct FilmPacket
{
    int stream = 0;
    std::chrono::microseconds time{0}; ///< of presentation, from the container's start time
    std::chrono::microseconds duration{0};
    std::string bytes;
};

struct Film
{
    Proc::FFmpeg::InputContext context;
    std::vector<FilmPacket> packets; ///< in file order

    [[nodiscard]] AVStream const& Stream(unsigned index) const { return *context->streams[index]; }
    [[nodiscard]] std::vector<int> StreamsOf(AVMediaType type) const;
    [[nodiscard]] std::vector<FilmPacket> PacketsOf(int stream) const;
    [[nodiscard]] std::string CodecOf(int stream) const;
    [[nodiscard]] std::string TagOf(int stream, char const* key) const;
};

/// Throws std::runtime_error when the file cannot be read.
[[nodiscard]] Film ReadFilm(ioPath const& path);

/// All pictures of the first video stream; `pts` in microseconds from the container's start time.
[[nodiscard]] std::vector<Proc::FFmpeg::Frame> DecodePictures(ioPath const& path);

/// The luma samples of a picture, scaled to 8 bits, rows without gaps.
[[nodiscard]] std::vector<double> LumaOf(AVFrame const& frame);

/// Peak signal-to-noise ratio in dB; 100 for equal pictures.
[[nodiscard]] double Psnr(std::vector<double> const& a, std::vector<double> const& b);

} // namespace Korvex::Testing
