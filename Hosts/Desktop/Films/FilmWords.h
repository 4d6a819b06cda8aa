#pragma once

#include "Desktop/Films/FilmProblem.h"

#include "Subtitles/Entities/SubtitleTrackID.h"

#include <QCoreApplication>
#include <QString>

#include <map>
#include <vector>

namespace Korvex::Core
{
struct Error;
} // namespace Korvex::Core

namespace Korvex::Hosts
{
struct SoftPlan;
} // namespace Korvex::Hosts

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
struct SubtitleTrack;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Desktop
{

/// What is said of a film's subtitles.
class FilmWords
{
    Q_DECLARE_TR_FUNCTIONS(Korvex::Desktop::FilmWords)
public:
    using Collection = Converter::Subtitles::Entities::SubtitleCollection;
    using Track = Converter::Subtitles::Entities::SubtitleTrack;
    using TrackID = Converter::Subtitles::Entities::SubtitleTrackID;

    /// "Track 3 (PGS, English)", "film.en.srt (SubRip, English)".
    [[nodiscard]] static QString NameTrack(Track const& track);
    [[nodiscard]] static QString DescribeChoice(Collection const& collection);
    /// What stands in the way of the choice. `reasons`: why files cannot be read, where that is known yet.
    [[nodiscard]] static std::vector<FilmProblem> ListProblems(Collection const& collection,
                                                               Hosts::SoftPlan const& plan,
                                                               std::map<TrackID, Core::Error> const& reasons);
    /// What becomes of tracks that are written anew, losses first; that the text of one comes whole in another codec
    /// is none.
    [[nodiscard]] static std::vector<FilmRemark> ListRemarks(Collection const& collection, Hosts::SoftPlan const& plan);
};

} // namespace Korvex::Desktop
