#pragma once

#include "Gui/Export.h"

#include "App/ILookAndFeelManager.h"

#include <memory>

class QColor;

namespace Korvex::GUI
{

/// What a colour is for. Widgets that paint themselves ask for these; all others get them from the style sheet.
enum class ColorRole
{
    Window,
    Surface,     ///< of panels and lists on the window
    Raised,      ///< of buttons and fields
    Hover,       ///< of a button or row under the mouse
    Pressed,     ///< of a button that is held down, and of what is open
    Border,      ///< between areas
    FieldBorder, ///< of what can be clicked or typed into
    Text,
    DimText,
    DisabledText,
    DisabledFill,
    Accent, ///< of the main action and of the focus
    AccentHover,
    AccentPressed,
    AccentText, ///< on the three above
    Selection,  ///< behind the ordinary text of what is chosen
    Warning,
    WarningFill, ///< behind a warning
    Error,
    ErrorFill, ///< behind an error
    Success,
    Veil, ///< over what cannot be reached while a popup is open; translucent
};

/// One style sheet for the whole application, in light and dark. It replaces the application's palette and style sheet;
/// made once, after the QApplication.
class KORVEX_GUI_API LookAndFeelManager final : public App::ILookAndFeelManager
{
public:
    explicit LookAndFeelManager(App::Theme theme);
    ~LookAndFeelManager() override;

    [[nodiscard]] App::Theme GetTheme() const override;
    void SetTheme(App::Theme theme) override;
    void RegisterEventHandler(App::ILookAndFeelManagerObserver* observer) override;
    void UnregisterEventHandler(App::ILookAndFeelManagerObserver* observer) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// The colour in the present theme; before a manager exists that of the light one.
[[nodiscard]] KORVEX_GUI_API QColor GetColor(ColorRole role);

/// Whether the desktop that the program runs on looks dark, as it was when the program began.
[[nodiscard]] KORVEX_GUI_API App::Theme FindSystemTheme();

} // namespace Korvex::GUI
