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

    /// On the other thread.
    explicit Found(Collection files)
    {
        Converter::Subtitles::NoteDetectedEncodings(files);
        for (auto const& [id, track] : files.tracks)
        {
            if (track.codecId.empty())
                reasons.emplace(id, Hosts::ExplainUnreadable(track.path));
            else
                encodings.emplace(id, track.extra);
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
                          (*owner)->m_note(found.encodings);
                      };
                  });
}

void AddedFiles::Forget()
{
    m_known.clear();
    m_reasons.clear();
}

} // namespace Korvex::Desktop
