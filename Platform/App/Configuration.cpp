#include "App/Configuration.h"

#include "App/Files/PrivateFile.h"
#include "App/Ini/IniText.h"

#include "Core/FileSystem.h"

#include <QByteArray>
#include <QLocale>
#include <QStandardPaths>
#include <QString>
#include <QUrl>

#include <algorithm>
#include <array>
#include <mutex>

namespace Korvex::App
{

namespace
{

constexpr char const* VERSION_1_FEATURE = "USE_OPENSUBTITLES_VER_1";
constexpr char const* FILE_VARIABLE = "KORVEX_CONFIG";
constexpr char const* SERVICE_SECTION = "opensubtitles";
constexpr char const* API_KEY = "api_key";
constexpr char const* FEATURE_SECTION = "features";
constexpr std::size_t MOST_FILE_BYTES = 1 << 20;

/// What was written for a setting, and where.
struct WrittenValue
{
    std::string text;
    std::string place; ///< as a sentence begins with it
    ConfigurationSource source = ConfigurationSource::Default;
};

QString Trimmed(std::string const& text)
{
    return QString::fromStdString(text).trimmed();
}

/// Empty when the text is no base address of a web server.
std::string ReadAddress(WrittenValue const& written, std::vector<std::string>& problems)
{
    std::string text = Trimmed(written.text).toStdString();
    text.erase(text.find_last_not_of('/') + 1);
    QUrl const url(QString::fromStdString(text), QUrl::StrictMode);
    bool const isWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (url.isValid() && isWeb && !url.host().isEmpty() && !url.hasQuery() && !url.hasFragment())
        return text;
    problems.push_back(written.place + " is no web address such as https://example.org/api; correct it, the service is "
                                       "not asked until then.");
    return {};
}

std::string ShowAddress(std::string const& address)
{
    return QUrl(QString::fromStdString(address)).toString(QUrl::RemovePassword).toStdString();
}

void TakeUrl(Configuration& configuration, WrittenValue const& written)
{
    configuration.openSubtitlesUrl = ReadAddress(written, configuration.problems);
}

std::string ShowUrl(Configuration const& configuration)
{
    return ShowAddress(configuration.openSubtitlesUrl);
}

void TakeLegacyUrl(Configuration& configuration, WrittenValue const& written)
{
    configuration.openSubtitlesLegacyUrl = ReadAddress(written, configuration.problems);
}

std::string ShowLegacyUrl(Configuration const& configuration)
{
    return ShowAddress(configuration.openSubtitlesLegacyUrl);
}

void TakeApiKey(Configuration& configuration, WrittenValue const& written)
{
    std::string const key = Trimmed(written.text).toStdString();
    if (std::all_of(key.begin(), key.end(), [](char c) { return c > ' ' && c < '\x7F'; }))
        configuration.openSubtitlesApiKey = key;
    else
        configuration.problems.push_back(
            written.place + " holds characters that no API key has; copy the key again, it is not used until then.");
}

/// The end of a long key tells its owner which one it is; of a short one it would tell too much.
std::string ShowApiKey(Configuration const& configuration)
{
    constexpr std::size_t shortestTold = 16;
    constexpr std::size_t told = 4;
    std::string const& key = configuration.openSubtitlesApiKey;
    if (key.empty())
        return {};
    return "********" + (key.size() < shortestTold ? std::string() : key.substr(key.size() - told));
}

std::string ShowTimeout(Configuration const& configuration)
{
    return std::to_string(configuration.openSubtitlesTimeout.count());
}

void TakeTimeout(Configuration& configuration, WrittenValue const& written)
{
    bool isNumber = false;
    std::chrono::seconds const timeout{QLocale::c().toInt(Trimmed(written.text), &isNumber)};
    if (isNumber && timeout >= Configuration::SHORTEST_TIMEOUT && timeout <= Configuration::LONGEST_TIMEOUT)
        configuration.openSubtitlesTimeout = timeout;
    else
        configuration.problems.push_back(written.place + " is no whole number of seconds from " +
                                         std::to_string(Configuration::SHORTEST_TIMEOUT.count()) + " to " +
                                         std::to_string(Configuration::LONGEST_TIMEOUT.count()) + "; correct it, " +
                                         ShowTimeout(configuration) + " is used until then.");
}

/// Empty, and a problem, for what is neither yes nor no.
std::optional<bool> ReadSwitch(WrittenValue const& written, std::vector<std::string>& problems)
{
    QString const word = Trimmed(written.text).toLower();
    for (char const* const yes : {"true", "yes", "on", "1"})
        if (word == QLatin1String(yes))
            return true;
    for (char const* const no : {"false", "no", "off", "0"})
        if (word == QLatin1String(no))
            return false;
    problems.push_back(written.place + " is neither true nor false; correct it, it is left out until then.");
    return std::nullopt;
}

std::string ShowSwitch(bool value)
{
    return value ? "true" : "false";
}

void TakeJsonBody(Configuration& configuration, WrittenValue const& written)
{
    if (auto const isJson = ReadSwitch(written, configuration.problems))
        configuration.isOpenSubtitlesBodyJson = *isJson;
}

std::string ShowJsonBody(Configuration const& configuration)
{
    return ShowSwitch(configuration.isOpenSubtitlesBodyJson);
}

/// A setting of the service: what it is called, what overrides it, how it gets into the record and out for showing.
struct Setting
{
    char const* key;
    char const* variable;
    void (*take)(Configuration& configuration, WrittenValue const& written);
    std::string (*show)(Configuration const& configuration);
};

constexpr std::array<Setting, 5> SETTINGS{{
    {"url", "KORVEX_OPENSUBTITLES_URL", &TakeUrl, &ShowUrl},
    {API_KEY, "KORVEX_OPENSUBTITLES_API_KEY", &TakeApiKey, &ShowApiKey},
    {"legacy_url", "KORVEX_OPENSUBTITLES_LEGACY_URL", &TakeLegacyUrl, &ShowLegacyUrl},
    {"timeout", "KORVEX_OPENSUBTITLES_TIMEOUT", &TakeTimeout, &ShowTimeout},
    {"json_body", "KORVEX_OPENSUBTITLES_JSON_BODY", &TakeJsonBody, &ShowJsonBody},
}};

bool IsSetting(std::string const& key)
{
    return std::any_of(SETTINGS.begin(), SETTINGS.end(), [&](Setting const& setting) { return key == setting.key; });
}

/// Shells and service files have no other way to take a variable back.
std::optional<std::string> FindVariable(EnvironmentLookup const& environment, char const* name)
{
    auto value = environment(name);
    return value && !value->empty() ? value : std::nullopt;
}

/// Brings file and environment into one record.
class Loader
{
public:
    Loader(ioPath const& file, EnvironmentLookup const& environment) : m_file(file), m_environment(environment) {}

    Configuration Load()
    {
        ReadFile();
        for (Setting const& setting : SETTINGS)
            TakeSetting(setting);
        TakeFeatures();
        return std::move(m_configuration);
    }

private:
    void ReadFile()
    {
        auto const bytes = Core::ReadFile(m_file, MOST_FILE_BYTES);
        if (!bytes)
        {
            bool const isNamed = FindVariable(m_environment, FILE_VARIABLE).has_value();
            if (isNamed || bytes.GetError().code != Core::ErrorCode::FileNotFound)
                AddProblem("No configuration file is used. " + Core::ToSentence(bytes.GetError()));
            return;
        }
        IniText const text = ParseIni(*bytes);
        for (int const line : text.wrongLines)
            AddProblem(Place(line) +
                       " is neither a section, a setting nor a comment; correct it, it is left out until then.");
        for (IniValue const& value : text.values)
            Keep(value);
    }

    /// A later line replaces an earlier one of the same name.
    void Keep(IniValue const& value)
    {
        WrittenValue const written{value.value, Place(value.line) + " (\"" + value.key + "\")",
                                   ConfigurationSource::File};
        if (value.section == SERVICE_SECTION && IsSetting(value.key))
            m_settings[value.key] = written;
        else if (value.section == FEATURE_SECTION)
            m_features[value.key] = written;
        else
            AddProblem(written.place + " is no setting of the section [" + value.section +
                       "]; check the spelling, it is left out.");
    }

    void TakeSetting(Setting const& setting)
    {
        WrittenValue written;
        if (auto const variable = FindVariable(m_environment, setting.variable))
            written = {*variable, "The variable " + std::string(setting.variable), ConfigurationSource::Environment};
        else if (auto const found = m_settings.find(setting.key); found != m_settings.end())
            written = found->second;
        std::size_t const problemsBefore = m_configuration.problems.size();
        if (written.source != ConfigurationSource::Default)
            setting.take(m_configuration, written);
        std::string const shown = setting.show(m_configuration);
        bool const isRefused = m_configuration.problems.size() > problemsBefore;
        if (isRefused && !shown.empty())
            written.source = ConfigurationSource::Default;
        m_configuration.values.push_back(
            {std::string(SERVICE_SECTION) + "/" + setting.key, setting.variable, shown, written.source});
    }

    void TakeFeatures()
    {
        bool const hasKey = !m_configuration.openSubtitlesApiKey.empty();
        if (hasKey)
            m_configuration.features[VERSION_1_FEATURE] = true;
        for (auto const& [name, written] : m_features)
        {
            auto const value = ReadSwitch(written, m_configuration.problems);
            if (!value)
                continue;
            m_configuration.features[name] = *value;
            m_configuration.values.push_back(
                {std::string(FEATURE_SECTION) + "/" + name, {}, ShowSwitch(*value), ConfigurationSource::File});
        }
        if (UsesOpenSubtitlesVersion1(m_configuration) && !hasKey)
            AddProblem(m_features[VERSION_1_FEATURE].place +
                       " turns the service's version 1 on, but no API key is set; add \"api_key\" to [opensubtitles].");
    }

    [[nodiscard]] std::string Place(int line) const
    {
        return "Line " + std::to_string(line) + " of \"" + m_file.utf8string() + "\"";
    }

    void AddProblem(std::string const& sentence) { m_configuration.problems.push_back(sentence); }

    ioPath m_file;
    EnvironmentLookup const& m_environment;
    Configuration m_configuration;
    std::map<std::string, WrittenValue> m_settings;
    std::map<std::string, WrittenValue> m_features;
};

/// What the host set, if it did.
struct ActiveConfiguration
{
    std::mutex mutex;
    std::optional<Configuration> value;
};

ActiveConfiguration& GetActive()
{
    static ActiveConfiguration active;
    return active;
}

class FeatureSettings final : public IFeatureSettings
{
public:
    explicit FeatureSettings(std::map<std::string, bool> features) : m_features(std::move(features)) {}

    bool QueryBool(std::string const& feature, bool defaultValue) const override
    {
        auto const found = m_features.find(feature);
        return found == m_features.end() ? defaultValue : found->second;
    }

private:
    std::map<std::string, bool> m_features;
};

} // namespace

std::optional<std::string> LookUpEnvironment(std::string const& name)
{
    if (!qEnvironmentVariableIsSet(name.c_str()))
        return std::nullopt;
    return qEnvironmentVariable(name.c_str()).toStdString();
}

ioPath FindConfigurationFile(EnvironmentLookup const& environment)
{
    if (auto const named = FindVariable(environment, FILE_VARIABLE))
        return *named;
    QString const folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return ioPath(folder.toStdString()) / "korvex" / "korvex.conf";
}

Configuration LoadConfiguration(ioPath const& file, EnvironmentLookup const& environment)
{
    return Loader(file, environment).Load();
}

Configuration LoadConfiguration()
{
    return LoadConfiguration(FindConfigurationFile(&LookUpEnvironment), &LookUpEnvironment);
}

Core::Status StoreApiKey(ioPath const& file, std::string const& key)
{
    auto const bytes = Core::ReadFile(file, MOST_FILE_BYTES);
    if (!bytes && bytes.GetError().code != Core::ErrorCode::FileNotFound)
        return bytes.GetError(); // writing would destroy it
    std::string const text = bytes ? *bytes : std::string();
    return WritePrivateFile(file, key.empty() ? RemoveIniValue(text, SERVICE_SECTION, API_KEY)
                                              : SetIniValue(text, SERVICE_SECTION, API_KEY, key));
}

bool UsesOpenSubtitlesVersion1(Configuration const& configuration)
{
    auto const found = configuration.features.find(VERSION_1_FEATURE);
    return found != configuration.features.end() && found->second;
}

Configuration GetActiveConfiguration()
{
    ActiveConfiguration& active = GetActive();
    std::lock_guard const lock(active.mutex);
    return active.value ? *active.value : LoadConfiguration();
}

void SetActiveConfiguration(Configuration const& configuration)
{
    ActiveConfiguration& active = GetActive();
    std::lock_guard const lock(active.mutex);
    active.value = configuration;
}

CustomizationManager::CustomizationManager(Configuration const& configuration)
    : m_features(std::make_shared<FeatureSettings>(configuration.features))
{
}

CustomizationManager::~CustomizationManager() = default;

std::shared_ptr<IFeatureSettings> CustomizationManager::GetFeatureSettings() const
{
    return m_features;
}

} // namespace Korvex::App
