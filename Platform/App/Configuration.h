#pragma once

#include "App/ICustomizationManager.h"
#include "Core/Export.h"
#include "Core/ioPath.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::App
{

/// What a deployment sets: a configuration file (INI, UTF-8), over which the environment goes.
///
///     [opensubtitles]
///     url = https://...            KORVEX_OPENSUBTITLES_URL
///     api_key = ...                KORVEX_OPENSUBTITLES_API_KEY
///     legacy_url = https://...     KORVEX_OPENSUBTITLES_LEGACY_URL
///     timeout = 30                 KORVEX_OPENSUBTITLES_TIMEOUT
///     json_body = false            KORVEX_OPENSUBTITLES_JSON_BODY
///     [features]
///     USE_OPENSUBTITLES_VER_1 = true
struct Configuration
{
    std::string openSubtitlesUrl = "https://api.opensubtitles.com/api/v1"; ///< base address of version 1
    std::string openSubtitlesApiKey;                                       ///< empty: none
    std::string openSubtitlesLegacyUrl = "https://rest.opensubtitles.org"; ///< base address of the older service
    std::chrono::seconds openSubtitlesTimeout{30};                         ///< for one exchange, 1 to 3600
    bool isOpenSubtitlesBodyJson = false; ///< a POST carries JSON, as live servers want it, in place of form text
    std::map<std::string, bool> features;
    std::vector<std::string> problems; ///< values that could not be used, each a sentence that names it and its place
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

/// The configuration in force in this process: what a host set, else what file and environment say at the moment. Any
/// thread.
[[nodiscard]] KORVEX_PLATFORM_API Configuration GetActiveConfiguration();
/// For a host's start, before it builds its container: components read the configuration when they are made.
KORVEX_PLATFORM_API void SetActiveConfiguration(Configuration const& configuration);

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
