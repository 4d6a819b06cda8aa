#pragma once

#include "Core/EventPublisher.h"

namespace Korvex::App
{

enum class Theme
{
    Light,
    Dark,
};

/// Hears when the look changes.
class ILookAndFeelManagerObserver
{
public:
    virtual void OnThemeChanged(Theme theme) = 0;

protected:
    ~ILookAndFeelManagerObserver() = default;
};

/// The look of the whole application. GUI thread.
class ILookAndFeelManager : public Core::EventPublisher<ILookAndFeelManagerObserver>
{
public:
    [[nodiscard]] virtual Theme GetTheme() const = 0;
    /// Restyles every widget at once.
    virtual void SetTheme(Theme theme) = 0;
};

} // namespace Korvex::App
