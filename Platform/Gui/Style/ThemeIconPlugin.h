#pragma once

#include <QIconEnginePlugin>

namespace Korvex::GUI
{

/// Lets the style sheet name icons of the look: `url(:/ArrowDown.DimText.kvicon)` is that kind in that colour role. A
/// style sheet cannot tint pictures, and widgets with a base style of their own get their arrows from it alone.
class ThemeIconPlugin final : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "ThemeIconPlugin.json")
public:
    /// Null for a name that says no kind and role; Qt then looks for a picture file.
    QIconEngine* create(QString const& fileName) override;
};

} // namespace Korvex::GUI
