#pragma once

#include "Core/Export.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <atomic>

namespace Korvex::Core
{

/// Base of every core object that crosses a library border. The counter is atomic, and the object is deleted in the
/// library that made it (the destructor is virtual and protected). A new object has count 0: the first
/// `boost::intrusive_ptr` takes it over.
class KORVEX_PLATFORM_API RefCounted
{
public:
    RefCounted(RefCounted const&) = delete;
    RefCounted& operator=(RefCounted const&) = delete;

    void AddRef() const noexcept { m_references.fetch_add(1, std::memory_order_relaxed); }
    void Release() const noexcept;

protected:
    RefCounted() = default;
    virtual ~RefCounted();

private:
    mutable std::atomic<int> m_references{0};
};

inline void intrusive_ptr_add_ref(RefCounted const* object) noexcept
{
    object->AddRef();
}

inline void intrusive_ptr_release(RefCounted const* object) noexcept
{
    object->Release();
}

} // namespace Korvex::Core
