#include "Subtitles/UseCases/Composition.h"

#include "Subtitles/UseCases/FactoryAccess.h"
#include "Subtitles/UseCases/RegistrationGroups.h"

#include "App/ICustomizationManager.h"

namespace Korvex::Converter::Subtitles
{

namespace
{

bool IsVersion1Chosen(App::ICustomizationManager const* customization)
{
    return customization != nullptr && customization->GetFeatureSettings()->QueryBool("USE_OPENSUBTITLES_VER_1", false);
}

} // namespace

void FillBuilder(Hypodermic::ContainerBuilder& builder,
                 std::shared_ptr<App::ICustomizationManager> const& customization)
{
    UseCases::RegisterGroupOne(builder);
    Adapters::RegisterGroupOne(builder);
    Details::RegisterGroupOne(builder);

    UseCases::RegisterGroupTwo(builder);
    Adapters::RegisterGroupTwo(builder);
    Details::RegisterGroupTwo(builder);
    Details::RegisterNetwork(builder);
    if (IsVersion1Chosen(customization.get()))
        Details::RegisterVersion1Client(builder);
    else
        Details::RegisterLegacyClient(builder);

    UseCases::RegisterGroupThree(builder);
    Adapters::RegisterGroupThree(builder);
    Details::RegisterGroupThree(builder);
}

void InitFactories(std::shared_ptr<Hypodermic::Container> const& container)
{
    UseCases::GiveContainerToFactories(container);
}

} // namespace Korvex::Converter::Subtitles
