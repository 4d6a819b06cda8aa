#include "Core/RefCounted.h"

namespace Korvex::Core
{

RefCounted::~RefCounted() = default;

void RefCounted::Release() const noexcept
{
    if (m_references.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

} // namespace Korvex::Core
