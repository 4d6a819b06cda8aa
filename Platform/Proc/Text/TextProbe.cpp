#include "Proc/Text/TextProbe.h"

#include "Proc/Text/Utf8.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

/// The longer marks come first: that of UTF-32LE begins like that of UTF-16LE.
std::optional<ByteOrderMark> FindByteOrderMark(std::string_view bytes)
{
    using namespace std::string_view_literals;
    static constexpr ByteOrderMark MARKS[] = {{"\xFF\xFE\0\0"sv, "UTF-32LE"},
                                              {"\0\0\xFE\xFF"sv, "UTF-32BE"},
                                              {"\xEF\xBB\xBF"sv, "UTF-8"},
                                              {"\xFF\xFE"sv, "UTF-16LE"},
                                              {"\xFE\xFF"sv, "UTF-16BE"}};
    for (ByteOrderMark const& mark : MARKS)
    {
        if (bytes.substr(0, mark.bytes.size()) == mark.bytes)
        {
            return mark;
        }
    }
    return std::nullopt;
}

char const* GuessWideEncoding(std::string_view bytes)
{
    static constexpr std::size_t SAMPLE = 4096;
    static constexpr std::size_t LEAST = 8;
    std::string_view const sample = bytes.substr(0, SAMPLE).substr(0, bytes.size() / 4 * 4);
    if (sample.size() < LEAST)
    {
        return nullptr;
    }
    std::size_t zeros[4] = {};
    for (std::size_t i = 0; i < sample.size(); ++i)
    {
        zeros[i % 4] += sample[i] == '\0' ? 1 : 0;
    }
    std::size_t const quarter = sample.size() / 4;
    std::size_t const odd = zeros[1] + zeros[3];
    std::size_t const even = zeros[0] + zeros[2];
    if (zeros[3] == quarter && zeros[2] >= quarter * 9 / 10)
    {
        return "UTF-32LE";
    }
    if (zeros[0] == quarter && zeros[1] >= quarter * 9 / 10)
    {
        return "UTF-32BE";
    }
    // Times, numbers and line ends make up a good part of every subtitle file.
    std::size_t const enough = sample.size() / 2 / 8;
    if (odd > enough && even * 20 < odd)
    {
        return "UTF-16LE";
    }
    return even > enough && odd * 20 < even ? "UTF-16BE" : nullptr;
}

Utf8Share MeasureUtf8(std::string_view bytes)
{
    Utf8Share share;
    bool inBadRun = false;
    for (std::size_t position = 0; position < bytes.size();)
    {
        char32_t codePoint = 0;
        std::size_t const length = MeasureSequence(bytes, position, codePoint);
        share.sequences += length > 1 ? 1 : 0;
        share.badRuns += length == 0 && !inBadRun ? 1 : 0;
        inBadRun = length == 0;
        position += std::max<std::size_t>(length, 1);
    }
    return share;
}

bool IsDamagedUtf8(std::string_view bytes)
{
    Utf8Share const share = MeasureUtf8(bytes);
    return share.sequences >= 4 && share.sequences >= share.badRuns * 2;
}

bool IsIso2022Jp(std::string_view bytes)
{
    std::size_t const escape = bytes.find("\x1B$");
    return escape != std::string_view::npos && escape + 2 < bytes.size() &&
           (bytes[escape + 2] == 'B' || bytes[escape + 2] == '@') && bytes.find("\x1B(") != std::string_view::npos;
}

bool IsBinary(std::string_view bytes)
{
    static constexpr std::size_t SAMPLE = 4096;
    static constexpr std::size_t LARGEST_SHARE = 50;
    if (FindByteOrderMark(bytes) || GuessWideEncoding(bytes) != nullptr)
    {
        return false;
    }
    std::string_view const sample = bytes.substr(0, SAMPLE);
    // Zeros are left out: a hole in a damaged text is full of them.
    auto const controls = std::count_if(sample.begin(), sample.end(), [](char byte) { return byte > 0 && byte < 9; });
    return static_cast<std::size_t>(controls) * LARGEST_SHARE > sample.size();
}

} // namespace Korvex::Proc::Text
