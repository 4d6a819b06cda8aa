#pragma once

#include <QString>

class QWidget;

namespace Korvex::Desktop
{

/// Asked before something is given up that cannot be brought back.
struct LossQuestion
{
    QString title;
    QString text;
    QString goOn; ///< the button that gives it up
    QString stay; ///< the button that keeps it, the usual answer
};

/// True: give it up. Runs an event loop.
[[nodiscard]] bool Confirm(LossQuestion const& question, QWidget* window);

} // namespace Korvex::Desktop
