#include "App/Configuration.h"

#include <QByteArray>
#include <QSettings>
#include <QStandardPaths>
#include <QString>
#include <QVariant>

#include <array>
#include <mutex>

namespace Korvex::App
{

namespace
{

constexpr char const* VERSION_1_FEATURE = "USE_OPENSUBTITLES_VER_1";

/// Every text setting: where it is kept, what overrides it, what it fills.
struct TextSetting
{
    char const* key;
    char const* variable;
    std::string Configuration::*field;
};

constexpr std::array<TextSetting, 3> TEXT_SETTINGS{{
    {"opensubtitles/url", "KORVEX_OPENSUBTITLES_URL", &Configuration::openSubtitlesUrl},
    {"opensubtitles/api_key", "KORVEX_OPENSUBTITLES_API_KEY", &Configuration::openSubtitlesApiKey},
    {"opensubtitles/legacy_url", "KORVEX_OPENSUBTITLES_LEGACY_URL", &Configuration::openSubtitlesLegacyUrl},
}};

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
    if (auto const named = environment("KORVEX_CONFIG"); named && !named->empty())
        return *named;
    QString const folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return ioPath(folder.toStdString()) / "korvex" / "korvex.conf";
}

Configuration LoadConfiguration(ioPath const& file, EnvironmentLookup const& environment)
{
    QSettings settings(QString::fromStdString(file.utf8string()), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");

    Configuration configuration;
    for (TextSetting const& setting : TEXT_SETTINGS)
    {
        auto const variable = environment(setting.variable);
        if (variable)
            configuration.*setting.field = *variable;
        else if (settings.contains(QLatin1String(setting.key)))
            configuration.*setting.field = settings.value(QLatin1String(setting.key)).toString().toStdString();
    }
    if (!configuration.openSubtitlesApiKey.empty())
        configuration.features[VERSION_1_FEATURE] = true;
    settings.beginGroup(QStringLiteral("features"));
    for (QString const& feature : settings.childKeys())
        configuration.features[feature.toStdString()] = settings.value(feature).toBool();
    return configuration;
}

Configuration GetActiveConfiguration()
{
    ActiveConfiguration& active = GetActive();
    std::lock_guard const lock(active.mutex);
    return active.value ? *active.value
                        : LoadConfiguration(FindConfigurationFile(&LookUpEnvironment), &LookUpEnvironment);
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
