#include "Proc/FFmpeg/TextPackets.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Proc/Text/TextDecoder.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Codec = Conf::IFormatCodecSubtitle;

constexpr std::size_t ASS_FIELDS_BEFORE_TEXT = 8;

/// One kind of line end, none at the end of the text.
std::string WithPlainLines(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == '\r')
        {
            plain += '\n';
            if (i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        }
        else if (text[i] != '\0')
        {
            plain += text[i];
        }
    }
    plain.erase(plain.find_last_not_of("\n") + 1);
    return plain;
}

TextCue ReadAssFields(std::string_view line, int& readOrder)
{
    std::array<std::string, ASS_FIELDS_BEFORE_TEXT> fields;
    for (std::string& field : fields)
    {
        std::size_t const comma = line.find(',');
        if (comma == std::string_view::npos)
            return {};
        field = line.substr(0, comma);
        line.remove_prefix(comma + 1);
    }
    auto number = [](std::string const& field) { return std::atoi(field.c_str()); };
    readOrder = number(fields[0]);
    TextCue cue;
    cue.layer = number(fields[1]);
    cue.style = fields[2];
    cue.name = fields[3];
    cue.marginLeft = number(fields[4]);
    cue.marginRight = number(fields[5]);
    cue.marginVertical = number(fields[6]);
    cue.effect = fields[7];
    cue.text = std::string(line);
    cue.text.erase(
        std::remove_if(cue.text.begin(), cue.text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }),
        cue.text.end());
    return cue;
}

std::string BigEndian16(std::size_t value)
{
    return {static_cast<char>((value >> 8) & 0xFF), static_cast<char>(value & 0xFF)};
}

std::string Repair(std::string_view text, std::size_t& replacedBytes)
{
    std::size_t replaced = 0;
    std::string repaired = Text::RepairUtf8(text, replaced);
    replacedBytes += replaced;
    return repaired;
}

/// mov_text: the length of the text, the text, then boxes of styles, which count characters and stay as they are.
std::string RepairMovText(std::string_view bytes, std::size_t& replacedBytes)
{
    if (bytes.size() < 2)
        return std::string(bytes);
    std::size_t const stated =
        static_cast<std::size_t>(static_cast<unsigned char>(bytes[0]) << 8) | static_cast<unsigned char>(bytes[1]);
    std::size_t const length = std::min(stated, bytes.size() - 2);
    std::string_view const text = bytes.substr(2, length);
    bool const isUtf16 = text.size() >= 2 && (text.substr(0, 2) == "\xFE\xFF" || text.substr(0, 2) == "\xFF\xFE");
    std::string repaired;
    if (isUtf16)
    {
        Core::Result<Text::DecodedText> const decoded = Text::DecodeText(text, {});
        repaired = decoded ? decoded->utf8 : std::string();
    }
    else
    {
        repaired = Repair(text, replacedBytes);
    }
    repaired.resize(std::min<std::size_t>(repaired.size(), 0xFFFF));
    return BigEndian16(repaired.size()) + repaired + std::string(bytes.substr(2 + length));
}

} // namespace

std::optional<TextMarkup> PacketMarkup(std::string const& codecId)
{
    if (codecId == Codec::CODEC_ID_SUBRIP)
        return TextMarkup::SubRip;
    if (codecId == Codec::CODEC_ID_TEXT)
        return TextMarkup::Plain;
    if (codecId == Codec::CODEC_ID_ASS || codecId == Codec::CODEC_ID_SSA)
        return TextMarkup::Ass;
    if (codecId == Codec::CODEC_ID_SAMI)
        return TextMarkup::Sami;
    return std::nullopt;
}

TextCue ReadTextPacket(std::string_view utf8, TextMarkup markup, int& readOrder)
{
    if (markup == TextMarkup::Ass)
        return ReadAssFields(utf8, readOrder);
    TextCue cue;
    cue.text = WithPlainLines(utf8);
    return cue;
}

std::string WriteAssPacket(TextCue const& cue, int readOrder)
{
    return std::to_string(readOrder) + "," + std::to_string(cue.layer) + "," + cue.style + "," + cue.name + "," +
           std::to_string(cue.marginLeft) + "," + std::to_string(cue.marginRight) + "," +
           std::to_string(cue.marginVertical) + "," + cue.effect + "," + cue.text;
}

std::string RepairTextPacket(std::string_view bytes, std::string const& codecId, std::size_t& replacedBytes)
{
    if (codecId == Codec::CODEC_ID_MOV_TEXT)
        return RepairMovText(bytes, replacedBytes);
    return Repair(bytes, replacedBytes);
}

} // namespace Korvex::Proc::FFmpeg
