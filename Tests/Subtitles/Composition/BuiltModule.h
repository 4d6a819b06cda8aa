#pragma once

#include "Subtitles/Fakes/FakeTranscoder.h"

#include "Subtitles/Subtitles.h"

#include "App/GUIContainer.h"

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

namespace Korvex::Converter::Subtitles::Testing
{

/// The whole module as a host wires it, beside a converter that converts nothing.
inline std::shared_ptr<Hypodermic::Container>
BuildModule(std::shared_ptr<App::ICustomizationManager> const& customization = nullptr,
            std::shared_ptr<Gui::GUIContainer> const& widgets = std::make_shared<Gui::GUIContainer>())
{
    Hypodermic::ContainerBuilder builder;
    builder.registerInstance(std::make_shared<FakeTranscoder>()).as<Transcoder::Entities::ITranscoderInteractor>();
    builder.registerInstance(widgets);
    FillBuilder(builder, customization);
    auto container = builder.build();
    InitFactories(container);
    return container;
}

} // namespace Korvex::Converter::Subtitles::Testing
