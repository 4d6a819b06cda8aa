#pragma once

#include "Core/RefCounted.h"
#include "Core/ioPath.h"

namespace Korvex::Core
{

/// Something that a parser can read. It is not opened before a parser asks for it.
class KORVEX_PLATFORM_API IDataInput : public RefCounted
{
public:
    [[nodiscard]] virtual ioPath const& GetPath() const = 0;
};

/// A local file that is read through FFmpeg or the core's own text readers. Always opened as a plain file: the path
/// never names a protocol, a playlist or a device.
class KORVEX_PLATFORM_API DataInputFF final : public IDataInput
{
public:
    /// Never fails; a missing or unreadable file shows when it is parsed.
    [[nodiscard]] static boost::intrusive_ptr<DataInputFF> Create(ioPath const& path);
    [[nodiscard]] ioPath const& GetPath() const override { return m_path; }

private:
    explicit DataInputFF(ioPath path) : m_path(std::move(path)) {}

    ioPath m_path;
};

} // namespace Korvex::Core
