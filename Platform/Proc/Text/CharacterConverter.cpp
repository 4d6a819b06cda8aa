#include "Proc/Text/CharacterConverter.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/TextDecoder.h"
#include "Proc/Text/Utf8.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <vector>

namespace Korvex::Proc::Text
{

namespace
{

struct IconvDeleter
{
    using pointer = iconv_t;
    void operator()(iconv_t handle) const { iconv_close(handle); }
};
using IconvPointer = std::unique_ptr<void, IconvDeleter>;

IconvPointer MakeIconv(char const* encoding)
{
    iconv_t const handle = iconv_open("UTF-8", encoding);
    // The library's own sign of failure; a null pointer could be a valid handle nowhere.
    return IconvPointer(handle == reinterpret_cast<iconv_t>(-1) ? nullptr : handle);
}

void Reset(IconvPointer const& handle)
{
    iconv(handle.get(), nullptr, nullptr, nullptr, nullptr);
}

/// One character from the start of `bytes`, taken alone; how many bytes it has, 0 when there is none within `longest`.
std::size_t ConvertOne(IconvPointer const& handle, std::string_view bytes, std::size_t longest, std::string& result)
{
    for (std::size_t length = 1; length <= std::min(longest, bytes.size()); ++length)
    {
        Reset(handle);
        std::array<char, 32> buffer{};
        char* in = const_cast<char*>(bytes.data()); // NOLINT: the interface of C lacks the const
        std::size_t inLeft = length;
        char* out = buffer.data();
        std::size_t outLeft = buffer.size();
        bool const converted = iconv(handle.get(), &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1);
        // Some encodings keep a character back until they know what follows.
        iconv(handle.get(), nullptr, nullptr, &out, &outLeft);
        if (converted && inLeft == 0 && outLeft < buffer.size())
        {
            result.assign(buffer.data(), buffer.size() - outLeft);
            return length;
        }
    }
    return 0;
}

/// Collects the text and the runs of bytes that were none.
class Output
{
public:
    Output(std::size_t expected, std::size_t& replacedBytes) : m_replacedBytes(replacedBytes)
    {
        m_replacedBytes = 0;
        m_text.reserve(expected + expected / 2);
    }

    void Append(std::string_view text)
    {
        m_text += text;
        m_inBadRun = m_inBadRun && text.empty();
    }

    void Replace(std::size_t bytes)
    {
        m_text += m_inBadRun ? std::string_view() : REPLACEMENT_UTF8;
        m_inBadRun = true;
        m_replacedBytes += bytes;
    }

    std::string Take() { return std::move(m_text); }

private:
    std::string m_text;
    std::size_t& m_replacedBytes;
    bool m_inBadRun = false;
};

/// Which encodings one name stands for: the second fills the gaps of the first.
struct Recipe
{
    char const* name;   ///< as the core spells it
    char const* first;  ///< as the system's converter spells it
    char const* second; ///< may be null
};

// What files that carry these names hold in truth. The ISO pages have control characters at 80 to 9F, which are never
// text: a file that has bytes there was written with the Windows page of the same letters. BIG-5 is the Windows page
// with the characters that Hong Kong added; the other way round symbols and the euro would come out wrong.
constexpr Recipe RECIPES[] = {
    {"BIG-5", "CP950", "BIG5-HKSCS"},
    {"CP932", "CP932", "SHIFT_JISX0213"},
    {"CP936", "CP936", "GB18030"},
    {"EUC-KR", "CP949", nullptr},
    {"ISO-8859-1", "ISO-8859-1", "CP1252"},
    {"ISO-8859-2", "ISO-8859-2", "CP1250"},
    {"ISO-8859-3", "ISO-8859-3", "CP1252"},
    {"ISO-8859-7", "ISO-8859-7", "CP1253"},
    {"ISO-8859-8", "ISO-8859-8", "CP1255"},
    {"ISO-8859-9", "ISO-8859-9", "CP1254"},
    {"ISO-8859-13", "ISO-8859-13", "CP1257"},
    {"ISO-8859-15", "ISO-8859-15", "CP1252"},
};

bool IsPrivateUse(std::string_view utf8)
{
    std::size_t position = 0;
    char32_t const codePoint = NextCodePoint(utf8, position);
    return codePoint >= 0xE000 && codePoint <= 0xF8FF;
}

bool IsControl(std::string_view utf8)
{
    return utf8.size() == 2 && utf8[0] == '\xC2' && static_cast<unsigned char>(utf8[1]) < 0xA0;
}

/// An encoding of one byte a character: a table.
class TableConverter final : public CharacterConverter
{
public:
    TableConverter(IconvPointer const& first, IconvPointer const& second)
    {
        for (int byte = 0; byte < 256; ++byte)
        {
            std::string& entry = m_table[static_cast<std::size_t>(byte)];
            char const letter = static_cast<char>(byte);
            bool const found = ConvertOne(first, {&letter, 1}, 1, entry) == 1;
            if (second && (!found || IsControl(entry)))
            {
                std::string other;
                bool const better = byte >= 0x80 && byte < 0xA0 && ConvertOne(second, {&letter, 1}, 1, other) == 1;
                entry = better ? other : (byte >= 0x80 ? std::string() : entry);
            }
        }
    }

    std::string Convert(std::string_view bytes, std::size_t& replacedBytes) override
    {
        Output output(bytes.size(), replacedBytes);
        for (char const byte : bytes)
        {
            std::string const& entry = m_table[static_cast<unsigned char>(byte)];
            entry.empty() ? output.Replace(1) : output.Append(entry);
        }
        return output.Take();
    }

private:
    std::array<std::string, 256> m_table;
};

/// Any other encoding, in large pieces.
class StreamConverter final : public CharacterConverter
{
public:
    StreamConverter(IconvPointer first, IconvPointer second, std::size_t unit)
        : m_first(std::move(first)),
          m_second(std::move(second)),
          m_unit(unit)
    {
    }

    std::string Convert(std::string_view bytes, std::size_t& replacedBytes) override
    {
        Output output(bytes.size(), replacedBytes);
        Reset(m_first);
        std::array<char, 16384> buffer{};
        while (!bytes.empty())
        {
            char* in = const_cast<char*>(bytes.data()); // NOLINT: the interface of C lacks the const
            std::size_t inLeft = bytes.size();
            char* out = buffer.data();
            std::size_t outLeft = buffer.size();
            bool const failed = iconv(m_first.get(), &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
            int const reason = failed ? errno : 0;
            AppendPiece(output, {buffer.data(), buffer.size() - outLeft}, bytes.substr(0, bytes.size() - inLeft));
            bytes.remove_prefix(bytes.size() - inLeft);
            if (reason == EILSEQ || reason == EINVAL)
            {
                bytes.remove_prefix(Recover(output, bytes));
            }
        }
        char* out = buffer.data();
        std::size_t outLeft = buffer.size();
        iconv(m_first.get(), nullptr, nullptr, &out, &outLeft);
        output.Append({buffer.data(), buffer.size() - outLeft});
        return output.Take();
    }

private:
    /// The first encoding answers with characters for private use where the second knows the real ones.
    void AppendPiece(Output& output, std::string_view text, std::string_view source)
    {
        // Their lead bytes in UTF-8; absent from almost every text.
        if (!m_second || text.find_first_of("\xEE\xEF") == std::string_view::npos)
        {
            output.Append(text);
            return;
        }
        while (!source.empty())
        {
            std::string character;
            std::size_t length = ConvertOne(m_first, source, 4, character);
            if (length > 0 && IsPrivateUse(character))
            {
                std::string other;
                length = ConvertOne(m_second, source, 4, other) == length ? (character = other, length) : length;
            }
            length = std::max<std::size_t>(length, 1);
            output.Append(character);
            source.remove_prefix(length);
        }
        Reset(m_first);
    }

    /// What to do with the byte at which the first encoding stopped; returns how many bytes are dealt with.
    std::size_t Recover(Output& output, std::string_view bytes)
    {
        std::string character;
        std::size_t const length = m_second ? ConvertOne(m_second, bytes, 4, character) : 0;
        if (length > 0)
        {
            Reset(m_first);
            output.Append(character);
            return length;
        }
        Reset(m_first);
        // A pair whose second half could only be a second half goes as a whole; an ASCII byte behind a stray first half
        // is text.
        bool const isPair = m_unit == 1 && bytes.size() > 1 && (bytes[0] & 0x80) != 0 && (bytes[1] & 0x80) != 0;
        std::size_t const bad = std::min(isPair ? 2 : m_unit, bytes.size());
        output.Replace(bad);
        return bad;
    }

    IconvPointer m_first;
    IconvPointer m_second;
    std::size_t m_unit; ///< bytes of a code unit
};

class Utf8Converter final : public CharacterConverter
{
public:
    std::string Convert(std::string_view bytes, std::size_t& replacedBytes) override
    {
        return RepairUtf8(bytes, replacedBytes);
    }
};

bool HasOneByteCharacters(std::string const& name)
{
    static constexpr std::string_view FAMILIES[] = {"ISO-8859-", "CP125", "KOI8-",   "CP8",
                                                    "CP7",       "MAC",   "TIS-620", "IBM8"};
    return std::any_of(std::begin(FAMILIES), std::end(FAMILIES),
                       [&name](auto family) { return name.compare(0, family.size(), family) == 0; });
}

std::size_t UnitOf(std::string const& name)
{
    return name.compare(0, 6, "UTF-16") == 0 || name.compare(0, 5, "UCS-2") == 0   ? 2
           : name.compare(0, 6, "UTF-32") == 0 || name.compare(0, 5, "UCS-4") == 0 ? 4
                                                                                   : 1;
}

} // namespace

std::string NormalizeEncodingName(std::string const& name)
{
    static constexpr std::pair<std::string_view, std::string_view> SPELLINGS[] = {
        {"utf8", "UTF-8"},      {"big5", "BIG-5"},        {"shift_jis", "CP932"},
        {"shift-jis", "CP932"}, {"sjis", "CP932"},        {"gbk", "CP936"},
        {"gb2312", "CP936"},    {"koi8r", "KOI8-R"},      {"koi8u", "KOI8-U"},
        {"uhc", "CP949"},       {"cp950", "BIG-5"},       {"big5-hkscs", "BIG-5"},
        {"ms932", "CP932"},     {"windows-31j", "CP932"}, {"mac-cyrillic", "MAC-CYRILLIC"},
        {"us-ascii", "UTF-8"},  {"ascii", "UTF-8"},       {"windows-949", "CP949"},
    };
    std::string const key = ToLower(Trim(name));
    for (auto const& [spelling, core] : SPELLINGS)
    {
        if (key == spelling)
        {
            return std::string(core);
        }
    }
    static constexpr std::string_view WINDOWS = "windows-";
    std::string result = key.compare(0, WINDOWS.size(), WINDOWS) == 0 ? "cp" + key.substr(WINDOWS.size()) : key;
    if (result.compare(0, 7, "iso8859") == 0)
    {
        result.insert(3, "-");
    }
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char letter)
                   { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; });
    return result;
}

std::unique_ptr<CharacterConverter> CharacterConverter::Make(std::string const& encoding)
{
    std::string const name = NormalizeEncodingName(encoding);
    if (name == "UTF-8")
    {
        return std::make_unique<Utf8Converter>();
    }
    // Suffixes of the converter ("//IGNORE") would make it drop text.
    if (name.empty() || name.find('/') != std::string::npos || name.find('\0') != std::string::npos)
    {
        return nullptr;
    }
    auto const recipe =
        std::find_if(std::begin(RECIPES), std::end(RECIPES), [&name](auto r) { return name == r.name; });
    bool const isKnown = recipe != std::end(RECIPES);
    IconvPointer first = MakeIconv(isKnown ? recipe->first : name.c_str());
    IconvPointer second = isKnown && recipe->second != nullptr ? MakeIconv(recipe->second) : IconvPointer();
    if (!first)
    {
        return nullptr;
    }
    if (HasOneByteCharacters(name))
    {
        return std::make_unique<TableConverter>(first, second);
    }
    return std::make_unique<StreamConverter>(std::move(first), std::move(second), UnitOf(name));
}

} // namespace Korvex::Proc::Text
