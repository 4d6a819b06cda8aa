#pragma once

#include "Core/RefCounted.h"

#include <string>

namespace Korvex::Conf
{

/// The coding of one stream.
class KORVEX_PLATFORM_API IFormatCodec : public Core::RefCounted
{
public:
    static std::string const CODEC_ID_NONE; ///< the empty text: no codec, or one that is not known

    /// FFmpeg's name of the codec ("h264", "subrip"), or an own value where FFmpeg has none.
    [[nodiscard]] virtual std::string GetCodecID() const = 0;
};

/// A codec that is nothing but its identifier.
[[nodiscard]] KORVEX_PLATFORM_API boost::intrusive_ptr<IFormatCodec> MakeFormatCodec(std::string codecId);

} // namespace Korvex::Conf
