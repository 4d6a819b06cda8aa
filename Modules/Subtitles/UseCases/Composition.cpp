#include "Subtitles/UseCases/Composition.h"

#include "Subtitles/UseCases/FactoryAccess.h"
#include "Subtitles/UseCases/RegistrationGroups.h"

namespace Korvex::Converter::Subtitles
{

void FillBuilder(Hypodermic::ContainerBuilder& builder,
                 std::shared_ptr<App::ICustomizationManager> const& /*customization*/)
{
    UseCases::RegisterGroupOne(builder);
    Adapters::RegisterGroupOne(builder);
    Details::RegisterGroupOne(builder);

    // The customization manager chooses among the clients of online services; the layer that has them registers the
    // chosen one here, as the end of group two.
    UseCases::RegisterGroupTwo(builder);

    UseCases::RegisterGroupThree(builder);
    Adapters::RegisterGroupThree(builder);
    Details::RegisterGroupThree(builder);
}

void InitFactories(std::shared_ptr<Hypodermic::Container> const& container)
{
    UseCases::GiveContainerToFactories(container);
}

} // namespace Korvex::Converter::Subtitles
