#pragma once

#include <memory>
#include <string>

namespace Korvex::App
{

/// Switches that a deployment turns on or off.
class IFeatureSettings
{
public:
    virtual ~IFeatureSettings() = default;
    /// The switch's value, or `defaultValue` when the deployment says nothing about it.
    [[nodiscard]] virtual bool QueryBool(std::string const& feature, bool defaultValue) const = 0;
};

/// What a deployment of the host may customise.
class ICustomizationManager
{
public:
    virtual ~ICustomizationManager() = default;
    /// Never null.
    [[nodiscard]] virtual std::shared_ptr<IFeatureSettings> GetFeatureSettings() const = 0;
};

} // namespace Korvex::App
