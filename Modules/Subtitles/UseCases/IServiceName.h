#pragma once

#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// A service that tells by which client it is asked. Clients number the files of one service each in their own way.
class IServiceName
{
public:
    /// Letters, digits and "-"; the same in every version of the program.
    [[nodiscard]] virtual std::string GetServiceName() const = 0;
    virtual ~IServiceName() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
