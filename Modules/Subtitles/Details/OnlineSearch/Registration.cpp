// The only file of this layer that includes the container, which takes seconds to compile.

#include "Subtitles/Details/OnlineSearch/NetworkManagerQt.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchEngine.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/SearchMetadataFiller.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchEngine.h"

#include "Subtitles/UseCases/IOnlineDownloaderController.h"
#include "Subtitles/UseCases/RegistrationGroups.h"

#include "Hypodermic/ContainerBuilder.h"

namespace Korvex::Converter::Subtitles::Details
{

void RegisterNetwork(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<NetworkManagerQt>().as<INetworkManager>().singleInstance();
}

void RegisterLegacyClient(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<OpenSubtitles::Ver_0::RESTSearchEngine>().as<UseCases::IOnlineSearchController>();
    builder.registerType<OpenSubtitles::Ver_0::RESTRequestFactory>().as<OpenSubtitles::IRESTRequestFactory>();
    builder.registerType<OpenSubtitles::Ver_0::SearchMetadataFiller>().as<UseCases::IOnlineSearchMetadataFiller>();
}

void RegisterVersion1Client(Hypodermic::ContainerBuilder& builder)
{
    builder.registerType<OpenSubtitles::Ver_1::RESTSearchEngine>().as<UseCases::IOnlineSearchController>();
    builder.registerType<OpenSubtitles::Ver_1::RESTRequestFactory>().as<OpenSubtitles::IRESTRequestFactory>();
}

} // namespace Korvex::Converter::Subtitles::Details
