#pragma once

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// What hangs in a collection's implementation slot.
class ISubtitleImpl
{
public:
    virtual ~ISubtitleImpl() = default;
    /// Name of the implementation; tells whose object this is.
    [[nodiscard]] virtual std::string GetImpl() const = 0;
};

} // namespace Korvex::Converter::Subtitles::Entities
