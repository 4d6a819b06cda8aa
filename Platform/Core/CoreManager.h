#pragma once

#include "Core/Export.h"
#include "Core/Factories.h"

#include <memory>

namespace Korvex::Core
{

/// Where the module finds the core's factories. `Proc::RegisterFactories()` fills it once at start-up, before any other
/// use; after that it is only read and may be read from any thread.
class KORVEX_PLATFORM_API CoreManager
{
public:
    /// The translation domain of the core's own texts (codec and format names).
    static char const* const MESSAGE_DOMAIN;

    [[nodiscard]] static CoreManager& Instance();

    /// Empty until a factory was registered.
    [[nodiscard]] boost::intrusive_ptr<IParserFactory> GetParserFactory() const;
    [[nodiscard]] boost::intrusive_ptr<ICodecFactory> GetCodecFactory() const;

    void SetParserFactory(boost::intrusive_ptr<IParserFactory> factory);
    void SetCodecFactory(boost::intrusive_ptr<ICodecFactory> factory);

    CoreManager(CoreManager const&) = delete;
    CoreManager& operator=(CoreManager const&) = delete;

private:
    CoreManager();
    ~CoreManager();

    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Core
