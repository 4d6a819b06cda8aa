#pragma once

#include "Desktop/Films/Film.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include "Core/ioPath.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace Korvex::Desktop
{

class FilmList;

/// A film as the rule of "apply to all files" sees it.
struct FilmSubtitleState
{
    ioPath path;
    Converter::Subtitles::Entities::SubtitleCollection collection; ///< with the codecs of the sources
    Proc::MediaInfo const* media = nullptr;                        ///< not owned
};

/// What is to be done to another film, so that it has the same choice.
struct ChoiceTransfer
{
    enum class Kind
    {
        Nothing, ///< it has no such track
        ChooseNone,
        ChooseAllSoft,
        ChooseTrack, ///< `track` is drawn in
        AddFile,     ///< `file` is added and drawn in
    };

    Kind kind = Kind::Nothing;
    Converter::Subtitles::Entities::SubtitleTrackID track;
    ioPath file;
};

using FileCheck = std::function<bool(ioPath const&)>;

/// The rule. No subtitles and all tracks are taken over as they are. A drawn track becomes the other film's track of
/// the same language that is text or bitmap like it; among several the one that is a file like it, then forced, for the
/// hard of hearing or a commentary like it, then of its codec; where there is none, the file that is called after the
/// other film as the source's file is after its own ("A.ru.srt" beside "A.mkv", "B.ru.srt" beside "B.mkv"), if
/// `fileExists`. A file whose language nobody knows goes by its name alone.
[[nodiscard]] ChoiceTransfer FindTransfer(FilmSubtitleState const& source, FilmSubtitleState const& other,
                                          FileCheck const& fileExists);

/// What became of one film.
struct ChoiceTransferred
{
    FilmId film = 0;
    bool isChanged = false;
    QString sentence; ///< names the film
};

/// Does so to all other films of the list. Where a film takes the choice it takes the look, too, and a drawn file the
/// encoding of the source's file; offsets stay each file's own. A film that is not ready stays as it is.
std::vector<ChoiceTransferred> ApplyToAll(FilmList const& list, Film const& source);

} // namespace Korvex::Desktop
