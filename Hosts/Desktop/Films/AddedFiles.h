#pragma once

#include "Desktop/Films/FileStamp.h"

#include "Subtitles/Entities/SubtitleTrackID.h"

#include "Core/Error.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Desktop
{

class FileThread;

/// What has to be read to be known of the subtitle files of a film: their encodings, and why they hold no subtitles
/// where they do not. Each is read once, on another thread. GUI thread.
class AddedFiles
{
public:
    using Collection = Converter::Subtitles::Entities::SubtitleCollection;
    using TrackID = Converter::Subtitles::Entities::SubtitleTrackID;
    using Encodings = std::map<TrackID, std::string>;

    /// `note` hears of what was read, from the event loop.
    AddedFiles(std::shared_ptr<FileThread> thread, std::function<void(Encodings const&)> note);
    ~AddedFiles();
    AddedFiles(AddedFiles const&) = delete;
    AddedFiles& operator=(AddedFiles const&) = delete;

    /// Reads those of the collection that were not read yet, and forgets those that are not in it any more.
    void Read(Collection const& collection);
    /// As if none had been read.
    void Forget();

    /// Why files hold no subtitles, by track; those that were not read yet are missing.
    [[nodiscard]] std::map<TrackID, Core::Error> const& GetReasons() const { return m_reasons; }
    /// Those files as they were then.
    [[nodiscard]] std::map<ioPath, FileStamp> const& GetUnreadable() const { return m_unreadable; }

private:
    struct Found;

    void ForgetRemoved(Collection const& collection);

    std::shared_ptr<FileThread> m_thread;
    std::function<void(Encodings const&)> m_note;
    std::set<TrackID> m_known; ///< read or being read
    std::map<TrackID, Core::Error> m_reasons;
    std::map<ioPath, FileStamp> m_unreadable;
    std::shared_ptr<AddedFiles*> m_self; ///< answers that come late find nobody here
};

} // namespace Korvex::Desktop
