#include "Proc/Text/Utf8.h"

#include "Proc/Text/TextDecoder.h"

namespace Korvex::Proc::Text
{

namespace
{

unsigned ByteAt(std::string_view text, std::size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

bool IsContinuation(unsigned byte)
{
    return (byte & 0xC0U) == 0x80U;
}

/// Length that the lead byte announces, 0 for a byte that cannot lead.
std::size_t AnnouncedLength(unsigned lead)
{
    if (lead < 0x80)
    {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF)
    {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF)
    {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// A sequence that is whole but for NUL bytes inside it, as a damaged disk or an editor leaves them. Returns the bytes
/// it spans with the NULs, 0 when there is no such sequence.
std::size_t MeasureSplitSequence(std::string_view text, std::size_t position, std::string& healed)
{
    std::size_t const length = AnnouncedLength(ByteAt(text, position));
    healed.assign(1, text[position]);
    std::size_t next = position + 1;
    while (length > 1 && healed.size() < length && next < text.size())
    {
        if (text[next] != '\0')
        {
            healed.push_back(text[next]);
        }
        ++next;
    }
    char32_t codePoint = 0;
    return length > 1 && MeasureSequence(healed, 0, codePoint) == length ? next - position : 0;
}

} // namespace

void AppendCodePoint(std::string& text, char32_t codePoint)
{
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
    {
        codePoint = REPLACEMENT_CHARACTER;
    }
    auto const put = [&text](char32_t value) { text.push_back(static_cast<char>(static_cast<unsigned char>(value))); };
    if (codePoint < 0x80)
    {
        put(codePoint);
        return;
    }
    if (codePoint < 0x800)
    {
        put(0xC0 | (codePoint >> 6));
    }
    else
    {
        if (codePoint < 0x10000)
        {
            put(0xE0 | (codePoint >> 12));
        }
        else
        {
            put(0xF0 | (codePoint >> 18));
            put(0x80 | ((codePoint >> 12) & 0x3F));
        }
        put(0x80 | ((codePoint >> 6) & 0x3F));
    }
    put(0x80 | (codePoint & 0x3F));
}

std::size_t MeasureSequence(std::string_view text, std::size_t position, char32_t& codePoint)
{
    unsigned const lead = ByteAt(text, position);
    std::size_t const length = AnnouncedLength(lead);
    if (length <= 1)
    {
        codePoint = lead;
        return length;
    }
    if (text.size() - position < length)
    {
        return 0;
    }
    char32_t value = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
    {
        unsigned const byte = ByteAt(text, position + i);
        if (!IsContinuation(byte))
        {
            return 0;
        }
        value = (value << 6) | (byte & 0x3FU);
    }
    static constexpr char32_t SMALLEST[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < SMALLEST[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
    {
        return 0;
    }
    codePoint = value;
    return length;
}

char32_t NextCodePoint(std::string_view text, std::size_t& position)
{
    char32_t codePoint = REPLACEMENT_CHARACTER;
    std::size_t const length = MeasureSequence(text, position, codePoint);
    position += length == 0 ? 1 : length;
    return length == 0 ? REPLACEMENT_CHARACTER : codePoint;
}

bool IsValidUtf8(std::string_view text)
{
    char32_t codePoint = 0;
    for (std::size_t position = 0; position < text.size();)
    {
        if (ByteAt(text, position) < 0x80)
        {
            ++position;
            continue;
        }
        std::size_t const length = MeasureSequence(text, position, codePoint);
        if (length == 0)
        {
            return false;
        }
        position += length;
    }
    return true;
}

std::string RepairUtf8(std::string_view text, std::size_t& replacedBytes)
{
    replacedBytes = 0;
    if (IsValidUtf8(text))
    {
        return std::string(text);
    }
    std::string result;
    result.reserve(text.size());
    std::string healed;
    bool inBadRun = false;
    auto const replace = [&](std::size_t count)
    {
        replacedBytes += count;
        if (!inBadRun)
        {
            result += REPLACEMENT_UTF8;
        }
        inBadRun = true;
    };
    for (std::size_t position = 0; position < text.size();)
    {
        char32_t codePoint = 0;
        std::size_t length = MeasureSequence(text, position, codePoint);
        if (length > 0)
        {
            result.append(text, position, length);
            inBadRun = false;
        }
        else if (length = MeasureSplitSequence(text, position, healed); length > 0)
        {
            result += healed;
            inBadRun = false;
            replace(length - healed.size());
        }
        else
        {
            length = 1;
            replace(1);
        }
        position += length;
    }
    return result;
}

} // namespace Korvex::Proc::Text
