#pragma once

#include "Conf/IFormatCodec.h"
#include "Core/RefCounted.h"

#include <cstddef>

namespace Korvex::Proc
{

struct MediaInfo;
struct StreamInfo;

/// One stream as a parser sees it.
class KORVEX_PLATFORM_API IStream : public Core::RefCounted
{
public:
    [[nodiscard]] virtual boost::intrusive_ptr<Conf::IFormatCodec> GetFormatCodec() const = 0;
    [[nodiscard]] virtual StreamInfo const& GetInfo() const = 0;
};

/// A file whose headers have been read. Immutable; the streams live as long as their parser.
class KORVEX_PLATFORM_API IParser : public Core::RefCounted
{
public:
    [[nodiscard]] virtual std::size_t GetStreamCount() const = 0;
    /// Empty for an index that is too large.
    [[nodiscard]] virtual boost::intrusive_ptr<IStream> GetStream(std::size_t index) const = 0;
    /// Of a long text file the duration is unknown: it would take reading all of it.
    [[nodiscard]] virtual MediaInfo const& GetMediaInfo() const = 0;
};

} // namespace Korvex::Proc
