#include "Proc/Ass/CjkBreaks.h"

#include <algorithm>
#include <vector>

namespace Korvex::Proc::Ass
{
namespace
{

/// A space that can be broken at and takes no room.
constexpr std::string_view BREAK = "{\\fscx0} {\\fscx}";

constexpr std::u32string_view NOT_AT_START =
    U"、。，．・：；？！）」』】〉》］｝〕ー々〜…‥ぁぃぅぇぉっゃゅょゎァィゥェォッャュョヮ";
constexpr std::u32string_view NOT_AT_END = U"（「『【〈《［｛〔";

struct Piece
{
    std::string_view bytes; ///< a character, an override block or an escape
    char32_t character = 0; ///< 0 for what is no character
};

std::size_t SequenceLength(unsigned char lead)
{
    return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

char32_t Decode(std::string_view sequence)
{
    auto const lead = static_cast<unsigned char>(sequence[0]);
    char32_t value = sequence.size() == 1 ? lead : lead & (0x7FU >> sequence.size());
    for (char const c : sequence.substr(1))
        value = (value << 6U) | (static_cast<unsigned char>(c) & 0x3FU);
    return value;
}

std::vector<Piece> Split(std::string_view text)
{
    std::vector<Piece> pieces;
    while (!text.empty())
    {
        std::size_t length = std::min(SequenceLength(static_cast<unsigned char>(text[0])), text.size());
        bool isCharacter = true;
        std::size_t const close = text[0] == '{' ? text.find('}') : std::string_view::npos;
        if (close != std::string_view::npos)
        {
            length = close + 1;
            isCharacter = false;
        }
        else if (text[0] == '\\' && text.size() > 1)
        {
            length = 2;
            isCharacter = false;
        }
        std::string_view const bytes = text.substr(0, length);
        pieces.push_back({bytes, isCharacter ? Decode(bytes) : U'\0'});
        text.remove_prefix(length);
    }
    return pieces;
}

bool IsWide(char32_t c)
{
    return (c >= 0x2E80 && c <= 0x9FFF) || (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFF01 && c <= 0xFF60) ||
           (c >= 0x20000 && c <= 0x3FFFF);
}

bool EndsRun(Piece const& piece)
{
    return piece.character == U' ' || piece.bytes == "\\N" || piece.bytes == "\\n";
}

bool MayPart(char32_t before, char32_t after)
{
    return IsWide(before) && IsWide(after) && NOT_AT_END.find(before) == std::u32string_view::npos &&
           NOT_AT_START.find(after) == std::u32string_view::npos;
}

} // namespace

std::string AddCjkBreaks(std::string_view text, int longestRun)
{
    std::vector<Piece> const pieces = Split(text);
    std::string result;
    for (auto run = pieces.begin(); run != pieces.end();)
    {
        auto const end = std::find_if(run, pieces.end(), EndsRun);
        bool const isLong =
            std::count_if(run, end, [](Piece const& piece) { return IsWide(piece.character); }) > longestRun;
        char32_t before = 0;
        for (; run != end; ++run)
        {
            if (isLong && run->character != 0 && MayPart(before, run->character))
                result += BREAK;
            result += run->bytes;
            before = run->character != 0 ? run->character : before;
        }
        if (run != pieces.end())
            result += (run++)->bytes;
    }
    return result;
}

} // namespace Korvex::Proc::Ass
