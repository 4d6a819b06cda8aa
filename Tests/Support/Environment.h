#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace Korvex::Testing
{

/// An environment variable of this process with another value for as long as the object lives.
class ScopedVariable
{
public:
    ScopedVariable(std::string name, std::string const& value) : m_name(std::move(name))
    {
        if (char const* const before = std::getenv(m_name.c_str()))
            m_before = before;
        Put(value);
    }
    ~ScopedVariable() { Put(m_before); }
    ScopedVariable(ScopedVariable const&) = delete;
    ScopedVariable& operator=(ScopedVariable const&) = delete;

private:
    void Put(std::optional<std::string> const& value) const
    {
#if defined(_WIN32)
        _putenv_s(m_name.c_str(), value ? value->c_str() : "");
#else
        if (value)
            setenv(m_name.c_str(), value->c_str(), 1);
        else
            unsetenv(m_name.c_str());
#endif
    }

    std::string const m_name;
    std::optional<std::string> m_before;
};

} // namespace Korvex::Testing
