#include "Proc/Text/AssFonts.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

constexpr unsigned FIRST_CHARACTER = 33;

} // namespace

std::vector<std::uint8_t> DecodeAttachment(std::string_view encoded)
{
    std::vector<std::uint8_t> data;
    data.reserve(encoded.size() / 4 * 3 + 3);
    for (std::size_t position = 0; position < encoded.size(); position += 4)
    {
        std::size_t const count = std::min<std::size_t>(4, encoded.size() - position);
        unsigned group = 0;
        for (std::size_t i = 0; i < 4; ++i)
        {
            unsigned const value = i < count ? static_cast<unsigned char>(encoded[position + i]) - FIRST_CHARACTER : 0;
            group = (group << 6) | (value & 0x3FU);
        }
        for (std::size_t i = 0; i + 1 < count; ++i)
        {
            data.push_back(static_cast<std::uint8_t>(group >> (16 - 8 * i)));
        }
    }
    return data;
}

std::string EncodeAttachment(std::vector<std::uint8_t> const& data)
{
    static constexpr std::size_t LINE_LENGTH = 80;
    std::string text;
    std::size_t column = 0;
    for (std::size_t position = 0; position < data.size(); position += 3)
    {
        std::size_t const count = std::min<std::size_t>(3, data.size() - position);
        unsigned group = 0;
        for (std::size_t i = 0; i < 3; ++i)
        {
            group = (group << 8) | (i < count ? data[position + i] : 0U);
        }
        for (std::size_t i = 0; i < count + 1; ++i)
        {
            text.push_back(static_cast<char>(((group >> (18 - 6 * i)) & 0x3FU) + FIRST_CHARACTER));
            if (++column == LINE_LENGTH)
            {
                text.push_back('\n');
                column = 0;
            }
        }
    }
    if (column > 0)
    {
        text.push_back('\n');
    }
    return text;
}

} // namespace Korvex::Proc::Text
