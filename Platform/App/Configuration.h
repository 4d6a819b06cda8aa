#pragma once

#include "App/ICustomizationManager.h"
#include "Core/Export.h"
#include "Core/ioPath.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Korvex::App
{

/// What a deployment sets: a configuration file (INI, UTF-8), over which the environment goes.
///
///     [opensubtitles]
///     url = https://...            KORVEX_OPENSUBTITLES_URL
///     api_key = ...                KORVEX_OPENSUBTITLES_API_KEY
///     legacy_url = https://...     KORVEX_OPENSUBTITLES_LEGACY_URL
///     [features]
///     USE_OPENSUBTITLES_VER_1 = true
struct Configuration
{
    std::string openSubtitlesUrl;       ///< base address of the REST API; empty: not set up
    std::string openSubtitlesApiKey;    ///< empty: none
    std::string openSubtitlesLegacyUrl; ///< base address of the older service; empty: not set up
    std::map<std::string, bool> features;
};

/// Looks up a variable of the environment; empty when it is not set.
using EnvironmentLookup = std::function<std::optional<std::string>(std::string const& name)>;

/// The process's own environment.
[[nodiscard]] KORVEX_PLATFORM_API std::optional<std::string> LookUpEnvironment(std::string const& name);

/// "korvex/korvex.conf" in the user's configuration folder, or what KORVEX_CONFIG names.
[[nodiscard]] KORVEX_PLATFORM_API ioPath FindConfigurationFile(EnvironmentLookup const& environment);

/// Reads the file (a missing one counts as empty), then the environment. A configured API key turns the feature
/// "USE_OPENSUBTITLES_VER_1" on unless the file says otherwise.
[[nodiscard]] KORVEX_PLATFORM_API Configuration LoadConfiguration(ioPath const& file,
                                                                  EnvironmentLookup const& environment);

/// Answers the module's questions from a configuration.
class KORVEX_PLATFORM_API CustomizationManager final : public ICustomizationManager
{
public:
    explicit CustomizationManager(Configuration const& configuration);
    ~CustomizationManager() override;

    [[nodiscard]] std::shared_ptr<IFeatureSettings> GetFeatureSettings() const override;

private:
    std::shared_ptr<IFeatureSettings> m_features;
};

} // namespace Korvex::App
