#include "Check.h"

#include "Proc/Text/TextDecoder.h"

#include <cstdint>

/// Any bytes: decoded without a stated encoding, told apart, read as SubRip.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace Korvex;
    std::string_view const bytes(reinterpret_cast<char const*>(data), size);
    auto const decoded = Proc::Text::DecodeText(bytes, {});
    Fuzz::Require(static_cast<bool>(decoded));
    Fuzz::Require(Proc::Text::IsValidUtf8(decoded->utf8));
    static_cast<void>(Proc::Text::DetermineTextFormat(decoded->utf8, "srt"));
    Fuzz::CheckDocument(Proc::Text::ReadSubRip(decoded->utf8));

    // Encodings of several bytes a character have the most ways to go wrong.
    for (char const* const encoding : {"CP932", "CP936", "BIG-5", "UTF-16LE", "KOI8-U"})
    {
        auto const stated = Proc::Text::DecodeText(bytes, encoding);
        Fuzz::Require(stated && Proc::Text::IsValidUtf8(stated->utf8));
    }
    return 0;
}
