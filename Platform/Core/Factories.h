#pragma once

#include "Core/RefCounted.h"

#include <string>

namespace Korvex::Proc
{
class IParser;
class IStreamRaw;
class IStreamSubtitle;
struct SettingsParser;
} // namespace Korvex::Proc

namespace Korvex::Core
{

class IDataInput;

/// Makes parsers. Callers include Proc/IParser.h for the type that comes back.
class KORVEX_PLATFORM_API IParserFactory : public RefCounted
{
public:
    /// Opens and reads the input's headers. Empty when the input is missing, unreadable, empty or of no known format;
    /// never throws.
    [[nodiscard]] virtual boost::intrusive_ptr<Proc::IParser>
    CreateParser(boost::intrusive_ptr<IDataInput> const& input, Proc::SettingsParser const& settings) = 0;
};

/// Makes decoders over raw streams. Callers include Proc/Streams.h for the types.
class KORVEX_PLATFORM_API ICodecFactory : public RefCounted
{
public:
    /// A decoded view of a raw subtitle stream. `options` is kept for decoder options ("key=value:key=value"), empty
    /// for none. Empty when there is no decoder for the stream's codec; never throws.
    [[nodiscard]] virtual boost::intrusive_ptr<Proc::IStreamSubtitle>
    CreateSubtitleStream(boost::intrusive_ptr<Proc::IStreamRaw> const& raw, std::string const& options) = 0;
};

} // namespace Korvex::Core
