#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IOnlineSearchInteractor.h"

#include <chrono>
#include <memory>

namespace Korvex::Converter::Subtitles::UseCases
{

class IOnlineDownloaderInteractor;
class IOnlineSearchPresenter;

/// The disk is read beside the user-interface thread: the dialog opens at once with what the film's name says, and the
/// first search waits a moment for the rest. What is asked for while the service still ends a cancelled request waits
/// for that end. After the dialog is closed nothing arrives any more.
class KVSUBTITLES_API OnlineSearchInteractor final : public IOnlineSearchInteractor
{
public:
    /// How long the first search waits for a slow disk.
    static constexpr std::chrono::milliseconds DISK_PATIENCE{2000};

    OnlineSearchInteractor(std::shared_ptr<IOnlineDownloaderInteractor> const& downloader,
                           std::shared_ptr<IOnlineSearchPresenter> const& presenter);
    /// Closes the dialog.
    ~OnlineSearchInteractor() override;

    void RegisterEventHandler(ISearchDialogStatisticObserver* observer) override;
    void UnregisterEventHandler(ISearchDialogStatisticObserver* observer) override;
    void Open(Entities::SubtitleCollectionID collection, Entities::SubtitleSearchMediaInfoSettings const& media,
              std::string const& source) override;
    void Close() override;
    void SetDownloadFolder(ioPath const& folder) override;

    void SetDiskPatience(std::chrono::milliseconds patience);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::UseCases
