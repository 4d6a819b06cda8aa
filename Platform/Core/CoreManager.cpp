#include "Core/CoreManager.h"

#include <mutex>
#include <utility>

namespace Korvex::Core
{

char const* const CoreManager::MESSAGE_DOMAIN = "korvex-core";

struct CoreManager::Impl
{
    std::mutex mutex;
    boost::intrusive_ptr<IParserFactory> parserFactory;
    boost::intrusive_ptr<ICodecFactory> codecFactory;
};

CoreManager::CoreManager() : m_impl(std::make_unique<Impl>()) {}
CoreManager::~CoreManager() = default;

CoreManager& CoreManager::Instance()
{
    static CoreManager instance;
    return instance;
}

boost::intrusive_ptr<IParserFactory> CoreManager::GetParserFactory() const
{
    std::lock_guard const lock(m_impl->mutex);
    return m_impl->parserFactory;
}

boost::intrusive_ptr<ICodecFactory> CoreManager::GetCodecFactory() const
{
    std::lock_guard const lock(m_impl->mutex);
    return m_impl->codecFactory;
}

void CoreManager::SetParserFactory(boost::intrusive_ptr<IParserFactory> factory)
{
    std::lock_guard const lock(m_impl->mutex);
    m_impl->parserFactory = std::move(factory);
}

void CoreManager::SetCodecFactory(boost::intrusive_ptr<ICodecFactory> factory)
{
    std::lock_guard const lock(m_impl->mutex);
    m_impl->codecFactory = std::move(factory);
}

} // namespace Korvex::Core
