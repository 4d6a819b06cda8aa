#include "Desktop/Films/AddedFiles.h"

#include "Common/SubtitleFiles.h"
#include "Desktop/Films/FileThread.h"

#include "Subtitles/Subtitles.h"

#include <utility>

namespace Korvex::Desktop
{

struct AddedFiles::Found
{
    Encodings encodings;
    std::map<TrackID, Core::Error> reasons;
    std::map<ioPath, FileStamp> unreadable;

    /// On the other thread.
    explicit Found(Collection files)
    {
        Converter::Subtitles::NoteDetectedEncodings(files);
        for (auto const& [id, track] : files.tracks)
        {
            if (!track.codecId.empty())
            {
                encodings.emplace(id, track.extra);
                continue;
            }
            unreadable.emplace(track.path, ReadStamp(track.path));
            reasons.emplace(id, Hosts::ExplainUnreadable(track.path));
        }
    }
};

AddedFiles::AddedFiles(std::shared_ptr<FileThread> thread, std::function<void(Encodings const&)> note)
    : m_thread(std::move(thread)),
      m_note(std::move(note)),
      m_self(std::make_shared<AddedFiles*>(this))
{
}

AddedFiles::~AddedFiles() = default;

void AddedFiles::Read(Collection const& collection)
{
    ForgetRemoved(collection);
    Collection fresh;
    for (auto const& [id, track] : collection.tracks)
    {
        bool const isUnknown = track.codecId.empty() || (track.encodingEditable && track.extra.empty());
        if (track.isExternal && isUnknown && m_known.insert(id).second)
            fresh.tracks.emplace(id, track);
    }
    if (fresh.tracks.empty())
        return;
    m_thread->Add(FileThread::Urgency::Soon,
                  [self = std::weak_ptr(m_self), fresh]() -> FileThread::Delivery
                  {
                      return [self, found = Found(fresh)]
                      {
                          auto const owner = self.lock();
                          if (!owner)
                              return;
                          for (auto const& [id, reason] : found.reasons)
                              (*owner)->m_reasons[id] = reason;
                          for (auto const& [file, stamp] : found.unreadable)
                              (*owner)->m_unreadable[file] = stamp;
                          (*owner)->m_note(found.encodings);
                      };
                  });
}

/// A file that comes in again may hold something else by then.
void AddedFiles::ForgetRemoved(Collection const& collection)
{
    for (auto known = m_known.begin(); known != m_known.end();)
    {
        if (collection.tracks.count(*known) > 0)
        {
            ++known;
            continue;
        }
        m_reasons.erase(*known);
        m_unreadable.erase(ioPath(known->ToString()));
        known = m_known.erase(known);
    }
}

void AddedFiles::Forget()
{
    m_known.clear();
    m_reasons.clear();
    m_unreadable.clear();
}

} // namespace Korvex::Desktop
