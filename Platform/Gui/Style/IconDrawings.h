#pragma once

#include "Gui/Icons.h"

#include <optional>

class QString;

namespace Korvex::GUI
{

/// Draws with the painter's pen on a field of 16 by 16 units.
void DrawIcon(QPainter& painter, IconKind kind);

/// The kind by the name of its enumerator.
[[nodiscard]] std::optional<IconKind> FindIconKind(QString const& name);

} // namespace Korvex::GUI
