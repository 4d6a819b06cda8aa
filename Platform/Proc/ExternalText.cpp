#include "Proc/ExternalText.h"

#include "Proc/FFmpeg/MediaFile.h"
#include "Proc/Text/TextDecoder.h"
#include "Proc/Text/TextSubtitles.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Conf/IFormatFile.h"
#include "Core/FileSystem.h"

#include <algorithm>
#include <array>

namespace Korvex::Proc
{

namespace
{

using Codec = Conf::IFormatCodecSubtitle;
using Core::ErrorCode;
using std::string_view_literals::operator""sv;

constexpr std::size_t HEAD_BYTES = 4096;
constexpr std::size_t TEXT_LIMIT = 64U << 20;
constexpr std::size_t BEGINNING_BYTES = 64U << 10;

Core::Error MakeError(ErrorCode code, ioPath const& path)
{
    Core::Error error;
    error.code = code;
    error.file = path;
    return error;
}

bool IsTransportStream(std::string_view head)
{
    constexpr char SYNC = 0x47;
    for (std::size_t const size : {std::size_t{188}, std::size_t{192}})
    {
        std::size_t const first = size - 188;
        if (head.size() > first + 2 * size && head[first] == SYNC && head[first + size] == SYNC &&
            head[first + 2 * size] == SYNC)
            return true;
    }
    return false;
}

/// Formats that begin with bytes no text begins with.
bool HasMediaSignature(std::string_view head)
{
    constexpr std::array SIGNATURES{"\x1A\x45\xDF\xA3"sv, "RIFF"sv, "FLV\x01"sv, "OggS"sv,        "fLaC"sv,
                                    "\0\0\1\xBA"sv,       "ID3"sv,  "GIF8"sv,    "\x89PNG\r\n"sv, "# VobSub"sv};
    for (std::string_view const signature : SIGNATURES)
    {
        if (head.substr(0, signature.size()) == signature)
            return true;
    }
    constexpr std::array BOXES{"ftyp"sv, "moov"sv, "mdat"sv, "free"sv, "wide"sv, "skip"sv};
    if (head.size() > 8 && std::find(BOXES.begin(), BOXES.end(), head.substr(4, 4)) != BOXES.end())
        return true;
    bool const isBluRay = head.size() > 13 && head.substr(0, 2) == "PG"sv &&
                          (head[10] == '\x80' || (head[10] >= 0x14 && head[10] <= 0x17));
    return isBluRay || IsTransportStream(head);
}

bool IsTextExtension(std::string extension)
{
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    constexpr std::array EXTENSIONS{"srt"sv, "ass"sv, "ssa"sv, "smi"sv, "sami"sv, "vtt"sv, "txt"sv, "sub"sv};
    return std::find(EXTENSIONS.begin(), EXTENSIONS.end(), std::string_view(extension)) != EXTENSIONS.end();
}

bool HasByteOrderMark(std::string_view head)
{
    return head.substr(0, 3) == "\xEF\xBB\xBF"sv || head.substr(0, 2) == "\xFF\xFE"sv ||
           head.substr(0, 2) == "\xFE\xFF"sv || head.substr(0, 4) == "\0\0\xFE\xFF"sv;
}

Core::Result<std::optional<ExternalText>> LoadByDemuxer(ioPath const& path, std::string const& encoding)
{
    Core::Result<std::string> const bytes = Core::ReadFile(path, TEXT_LIMIT);
    if (!bytes)
        return bytes.GetError();
    Core::Result<Text::DecodedText> decoded = Text::DecodeText(*bytes, encoding);
    if (!decoded)
    {
        Core::Error error = decoded.GetError();
        error.file = path;
        return error;
    }
    ExternalText text;
    Core::Result<TextDocument> document = FFmpeg::ReadForeignText(decoded->utf8, path, text.formatId);
    if (!document)
        return document.GetError();
    text.document = std::move(*document);
    text.document.decoding = decoded->report;
    text.foreignUtf8 = std::move(decoded->utf8);
    return std::optional<ExternalText>(std::move(text));
}

} // namespace

bool LooksLikeText(std::string_view head, std::string const& extension)
{
    if (HasMediaSignature(head))
        return false;
    if (IsTextExtension(extension) || HasByteOrderMark(head))
        return true;
    // UTF-16 of a Western text has zeros at every other place; other text has next to no control characters.
    std::array<std::size_t, 2> zeros{};
    std::size_t controls = 0;
    for (std::size_t i = 0; i < head.size(); ++i)
    {
        auto const byte = static_cast<unsigned char>(head[i]);
        if (byte == 0)
            ++zeros[i % 2];
        else if (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r' && byte != '\f' && byte != 0x1B)
            ++controls;
    }
    bool const isUtf16 =
        std::max(zeros[0], zeros[1]) * 4 > head.size() && std::min(zeros[0], zeros[1]) * 50 < head.size();
    return controls * 50 <= head.size() && (isUtf16 || (zeros[0] + zeros[1]) * 50 <= head.size());
}

Core::Result<std::optional<ExternalText>> LoadExternalText(ioPath const& path, std::string const& encoding,
                                                           std::string const& samiClass)
{
    Core::Result<std::string> const head = Core::ReadFileHead(path, HEAD_BYTES);
    if (!head)
        return head.GetError();
    if (head->empty())
        return MakeError(ErrorCode::FileEmpty, path);
    if (!LooksLikeText(*head, path.Extension()))
        return std::optional<ExternalText>();

    Core::Result<std::optional<TextDocument>> own = Text::LoadTextFile(path, encoding, samiClass);
    if (!own)
        return own.GetError();
    if (!*own)
        return LoadByDemuxer(path, encoding);
    ExternalText text;
    text.document = std::move(**own);
    text.formatId = FindTextFormatId(text.document.codecId);
    return std::optional<ExternalText>(std::move(text));
}

std::string FindTextFormatId(std::string const& codecId)
{
    if (codecId == Codec::CODEC_ID_SUBRIP)
        return Conf::IFormatFile::FORMAT_SRT;
    if (codecId == Codec::CODEC_ID_ASS)
        return Conf::IFormatFile::FORMAT_ASS;
    if (codecId == Codec::CODEC_ID_SSA)
        return Conf::IFormatFile::FORMAT_SSA;
    return codecId;
}

std::string FindCodecByBeginning(ioPath const& path, std::string const& encoding)
{
    Core::Result<std::string> const beginning = Core::ReadFileHead(path, BEGINNING_BYTES);
    if (!beginning || beginning->size() < BEGINNING_BYTES || !LooksLikeText(*beginning, path.Extension()))
        return {};
    // Cut behind a whole line. In UTF-16 that would cut a character, and such a file is read whole.
    std::size_t const end = beginning->rfind('\n');
    if (end == std::string::npos || beginning->find('\0') != std::string::npos)
        return {};
    Core::Result<Text::DecodedText> const text =
        Text::DecodeText(std::string_view(*beginning).substr(0, end + 1), encoding);
    auto const format = text ? Text::DetermineTextFormat(text->utf8, path.Extension()) : std::nullopt;
    if (!format)
        return {};
    TextDocument const document = Text::ReadText(text->utf8, *format);
    return document.cues.empty() ? std::string() : document.codecId;
}

} // namespace Korvex::Proc
