#pragma once

#include "Core/Result.h"
#include "Core/ioPath.h"

#include <optional>

namespace Korvex::Hosts
{

/// Where working files go: a folder that is made when it is first needed and removed with this object. One thread at a
/// time.
class WorkFolder
{
public:
    WorkFolder() = default;
    ~WorkFolder();
    WorkFolder(WorkFolder const&) = delete;
    WorkFolder& operator=(WorkFolder const&) = delete;

    [[nodiscard]] Core::Result<ioPath> Get();

private:
    std::optional<ioPath> m_path;
};

} // namespace Korvex::Hosts
