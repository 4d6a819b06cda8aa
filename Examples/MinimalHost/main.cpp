// The smallest host of the subtitles module: no widgets, no conversion. It offers the module what it asks for, builds
// the container, lets the module take up the subtitle files beside a film, and prints the tracks that would go out.

#include "Subtitles/Subtitles.h"

#include "App/GUIContainer.h"
#include "Conf/IFormatFile.h"
#include "Core/EventHandlerList.h"
#include "Proc/Register.h"
#include "Proc/Settings.h"
#include "Transcoder/ITranscoderInteractor.h"

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

#include <glog/logging.h>

#include <QCoreApplication>

#include <iostream>
#include <memory>

namespace
{

namespace Subtitles = Korvex::Converter::Subtitles;
namespace Transcoder = Korvex::Converter::Transcoder::Entities;

/// This host announces films and converts none.
class FilmQueue final : public Transcoder::ITranscoderInteractor
{
public:
    void RegisterEventHandler(Transcoder::ITranscoderInteractorEventObserver* observer) override
    {
        m_observers.RegisterEventHandler(observer);
    }

    void UnregisterEventHandler(Transcoder::ITranscoderInteractorEventObserver* observer) override
    {
        m_observers.UnregisterEventHandler(observer);
    }

    void AddMediaItem(Transcoder::MediaItem const& item) override
    {
        m_observers.Notify([&](auto* observer) { observer->OnMediaItemAdded(item); });
    }

    Korvex::Core::Result<Transcoder::ConversionId> StartConversion(Transcoder::ConversionRequest const& request,
                                                                   Transcoder::IConversionObserver&) override
    {
        Korvex::Core::Error error;
        error.code = Korvex::Core::ErrorCode::InvalidSetting;
        error.file = request.item.path;
        error.detail = "this host lists tracks only";
        return error;
    }

    void CancelConversion(Transcoder::ConversionId) override {}
    void DropConversion(Transcoder::ConversionId) override {}
    void SetConversionPaused(Transcoder::ConversionId, bool) override {}

private:
    Korvex::Core::EventHandlerList<Transcoder::ITranscoderInteractorEventObserver> m_observers;
};

int ListTracks(Korvex::ioPath const& film)
{
    auto const queue = std::make_shared<FilmQueue>();
    auto const widgets = std::make_shared<Korvex::Converter::Gui::GUIContainer>();

    Hypodermic::ContainerBuilder builder;
    builder.registerInstance(queue).as<Transcoder::ITranscoderInteractor>();
    builder.registerInstance(widgets);
    Subtitles::FillBuilder(builder, nullptr);
    auto const container = builder.build();
    Subtitles::InitFactories(container);

    auto const pool = container->resolve<Subtitles::Entities::ISubtitleCollectionInteractorPool>();
    auto const interactor = pool->GetInteractor();
    Transcoder::Preset preset;
    preset.formatId = Korvex::Conf::IFormatFile::FORMAT_MATROSKA;
    interactor->SetPreset(preset);

    Subtitles::Entities::SubtitleCollection const collection;
    interactor->SetSubtitleCollection(collection, true);
    queue->AddMediaItem({film, static_cast<std::uint32_t>(collection.collectionId)});

    auto const edited = interactor->GetSubtitleCollection();
    for (auto const& [id, track] : edited.tracks)
        std::cout << GenerateLabel(track) << '\n';
    auto const settings = Subtitles::ReadCoreSettings(edited);
    std::cout << (settings.soft ? settings.soft->GetTracksInfo().size() : 0) << " soft tracks\n";
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    google::InitGoogleLogging(arguments[0]);
    FLAGS_logtostderr = true;
    QCoreApplication const application(argumentCount, arguments);
    if (argumentCount != 2)
    {
        std::cerr << "Usage: minimal-host FILM\n";
        return 2;
    }
    Korvex::Proc::RegisterFactories();
    return ListTracks(QCoreApplication::arguments().at(1).toStdString());
}
