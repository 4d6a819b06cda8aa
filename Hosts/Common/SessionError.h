#pragma once

#include "Core/Error.h"

#include <stdexcept>
#include <string>

namespace Korvex::Hosts
{

/// A file could not be worked on. Carries the core's typed error.
class FileError : public std::runtime_error
{
public:
    explicit FileError(Core::Error error) : std::runtime_error(Core::ToSentence(error)), m_error(std::move(error)) {}
    [[nodiscard]] Core::Error const& GetError() const { return m_error; }

private:
    Core::Error m_error;
};

/// What the user chose makes no sense for this film. The text is a sentence.
class ChoiceError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace Korvex::Hosts
