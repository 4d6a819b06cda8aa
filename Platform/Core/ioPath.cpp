#include "Core/ioPath.h"

namespace Korvex
{

namespace
{

#if defined(_WIN32)
constexpr char const* SEPARATORS = "/\\";
#else
constexpr char const* SEPARATORS = "/";
#endif

/// Where the extension's dot stands in a file name; npos when there is none.
std::string::size_type FindDot(std::string const& name)
{
    auto const dot = name.rfind('.');
    return dot == 0 || name == ".." ? std::string::npos : dot;
}

} // namespace

std::string ioPath::FileName() const
{
    auto const separator = m_utf8.find_last_of(SEPARATORS);
    return separator == std::string::npos ? m_utf8 : m_utf8.substr(separator + 1);
}

std::string ioPath::Stem() const
{
    std::string name = FileName();
    auto const dot = FindDot(name);
    return dot == std::string::npos ? name : name.substr(0, dot);
}

std::string ioPath::Extension() const
{
    std::string const name = FileName();
    auto const dot = FindDot(name);
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

ioPath ioPath::Parent() const
{
    auto const separator = m_utf8.find_last_of(SEPARATORS);
    if (separator == std::string::npos)
        return {};
    return separator == 0 ? ioPath(m_utf8.substr(0, 1)) : ioPath(m_utf8.substr(0, separator));
}

ioPath ioPath::operator/(std::string const& component) const
{
    if (m_utf8.empty())
        return ioPath(component);
    bool const endsInSeparator = std::string(SEPARATORS).find(m_utf8.back()) != std::string::npos;
    return ioPath(endsInSeparator ? m_utf8 + component : m_utf8 + '/' + component);
}

} // namespace Korvex
