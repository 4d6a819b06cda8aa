#pragma once

#include "Gui/LookAndFeelManager.h"

#include <QColor>

#include <optional>

class QPalette;
class QString;

namespace Korvex::GUI
{

[[nodiscard]] QColor FindColor(App::Theme theme, ColorRole role);

/// The role by its name in the style sheet, which is that of the enumerator.
[[nodiscard]] std::optional<ColorRole> FindColorRole(QString const& name);

/// What `GetColor` answers from.
void SetPresentTheme(App::Theme theme);

/// For everything that no rule of the style sheet reaches: item delegates, rich text, parts of Qt's own dialogs.
[[nodiscard]] QPalette MakePalette(App::Theme theme);

} // namespace Korvex::GUI
