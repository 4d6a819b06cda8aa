#pragma once

#include "App/ICustomizationManager.h"
#include "Core/Export.h"
#include "Core/Result.h"
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

/// Where a setting's value comes from.
enum class ConfigurationSource
{
    Default,
    File,
    Environment,
};

/// One setting as it came out, for showing.
struct ConfiguredValue
{
    std::string name;     ///< section and key: "opensubtitles/url"
    std::string variable; ///< of the environment; empty when none sets it
    std::string text;     ///< what is in force; keys and passwords are masked
    ConfigurationSource source = ConfigurationSource::Default;
};

/// What a deployment sets: a configuration file (INI, UTF-8), over which the environment goes. A variable that is set
/// to nothing counts as not set.
///
///     [opensubtitles]
///     url = https://...            KORVEX_OPENSUBTITLES_URL
///     api_key = ...                KORVEX_OPENSUBTITLES_API_KEY
///     legacy_url = https://...     KORVEX_OPENSUBTITLES_LEGACY_URL
///     timeout = 30                 KORVEX_OPENSUBTITLES_TIMEOUT
///     json_body = false            KORVEX_OPENSUBTITLES_JSON_BODY
///     [features]
///     USE_OPENSUBTITLES_VER_1 = true
///
/// A value that makes no sense is reported in `problems` and not used: switches and times then have their defaults, an
/// address becomes empty, so that nothing goes to another server than the one that was meant.
struct Configuration
{
    static constexpr std::chrono::seconds SHORTEST_TIMEOUT{1};
    static constexpr std::chrono::seconds LONGEST_TIMEOUT{3600};

    /// Base addresses: http or https, without a slash at the end.
    std::string openSubtitlesUrl = "https://api.opensubtitles.com/api/v1";
    std::string openSubtitlesLegacyUrl = "https://rest.opensubtitles.org";
    std::string openSubtitlesApiKey;               ///< visible ASCII; empty: none
    std::chrono::seconds openSubtitlesTimeout{30}; ///< for one exchange, SHORTEST_TIMEOUT to LONGEST_TIMEOUT
    bool isOpenSubtitlesBodyJson = false; ///< a POST carries JSON, as live servers want it, in place of form text
    std::map<std::string, bool> features;
    std::vector<ConfiguredValue> values; ///< what was read, in the order above
    std::vector<std::string> problems;   ///< each a sentence that names the place; never the value of a key
};

/// Looks up a variable of the environment; empty when it is not set.
using EnvironmentLookup = std::function<std::optional<std::string>(std::string const& name)>;

/// The process's own environment.
[[nodiscard]] KORVEX_PLATFORM_API std::optional<std::string> LookUpEnvironment(std::string const& name);

/// "korvex/korvex.conf" in the user's configuration folder, or what KORVEX_CONFIG names.
[[nodiscard]] KORVEX_PLATFORM_API ioPath FindConfigurationFile(EnvironmentLookup const& environment);

/// Reads the file (a missing one counts as empty, unless KORVEX_CONFIG names it), then the environment. A configured
/// API key turns the feature "USE_OPENSUBTITLES_VER_1" on unless the file says otherwise.
[[nodiscard]] KORVEX_PLATFORM_API Configuration LoadConfiguration(ioPath const& file,
                                                                  EnvironmentLookup const& environment);
/// The same with the process's own file and environment.
[[nodiscard]] KORVEX_PLATFORM_API Configuration LoadConfiguration();

/// Writes the API key into the file, which is made where it is missing; an empty key is taken out. Everything else in
/// the file stays, comments and unknown settings included. Afterwards its user alone may read it. Takes effect with the
/// next `LoadConfiguration`.
/// @param key visible ASCII
[[nodiscard]] KORVEX_PLATFORM_API Core::Status StoreApiKey(ioPath const& file, std::string const& key);

/// Whether the online search goes to version 1 of the service rather than to the older one.
[[nodiscard]] KORVEX_PLATFORM_API bool UsesOpenSubtitlesVersion1(Configuration const& configuration);

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
