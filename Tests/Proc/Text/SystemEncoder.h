#pragma once

#include <iconv.h>

#include <stdexcept>
#include <string>

namespace Korvex::Testing
{

/// UTF-8 text in another encoding, by the system's converter, so that what decodes is not what encoded. Throws when a
/// character has no place there.
inline std::string EncodeText(std::string text, std::string const& encoding)
{
    iconv_t const handle = iconv_open(encoding == "BIG-5" ? "BIG5" : encoding.c_str(), "UTF-8");
    std::string result(text.size() * 4 + 16, '\0');
    char* in = text.data();
    std::size_t inLeft = text.size();
    char* out = result.data();
    std::size_t outLeft = result.size();
    bool const failed = iconv(handle, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
    iconv_close(handle);
    if (failed)
    {
        throw std::runtime_error("not in " + encoding + ": " + text.substr(text.size() - inLeft, 40));
    }
    result.resize(result.size() - outLeft);
    return result;
}

} // namespace Korvex::Testing
