#include "Common/WorkFolder.h"

#include "Core/FileSystem.h"

#include <utility>

namespace Korvex::Hosts
{

WorkFolder::~WorkFolder()
{
    if (m_path)
        Core::RemoveWorkFolder(*m_path);
}

Core::Result<ioPath> WorkFolder::Get()
{
    if (!m_path)
    {
        auto folder = Core::CreateWorkFolder();
        if (!folder)
            return folder.GetError();
        m_path = std::move(folder).Value();
    }
    return *m_path;
}

} // namespace Korvex::Hosts
