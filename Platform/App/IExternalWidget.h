#pragma once

namespace Korvex::Converter::Gui
{

/// What a host embeds without knowing its class. Virtual base of every panel interface.
class IExternalWidget
{
public:
    virtual ~IExternalWidget() = default;
};

} // namespace Korvex::Converter::Gui
