#include "Check.h"

#include "Proc/Text/TextDecoder.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace Korvex;
    std::size_t replaced = 0;
    std::string const text = Proc::Text::RepairUtf8({reinterpret_cast<char const*>(data), size}, replaced);
    static_cast<void>(Proc::Text::DetermineTextFormat(text, "smi"));
    Fuzz::CheckDocument(Proc::Text::ReadSami(text));
    for (std::string const& name : Proc::Text::ListSamiClasses(text))
    {
        Fuzz::CheckDocument(Proc::Text::ReadSami(text, name));
    }
    return 0;
}
