#pragma once

#include "Subtitles/Entities/SubtitleTrackID.h"

#include <QString>

#include <string>
#include <vector>

namespace Korvex::Desktop
{

/// One way out of a problem, offered as a button.
struct Remedy
{
    enum class Kind
    {
        ChooseFormat, ///< for all films: `formatId`
        BurnTrack,    ///< draw `track` in
        LeaveOut,     ///< `track` does not go out
        ResetOffset,  ///< `track` is not moved in time
        Locate,       ///< the user shows where the film is now
    };

    Kind kind = Kind::LeaveOut;
    QString label;
    std::string formatId;
    Converter::Subtitles::Entities::SubtitleTrackID track;
};

/// Why a film cannot be converted as it stands.
struct FilmProblem
{
    QString sentence; ///< names the file or track and says what to do
    std::vector<Remedy> remedies;
};

/// What converting a film as it stands changes in one of its subtitle tracks; does not stand in the way.
struct FilmRemark
{
    QString sentence;
    std::vector<Remedy> remedies; ///< ways to have the track as it is
    bool isLoss = false;          ///< something of the track does not come back
};

} // namespace Korvex::Desktop
