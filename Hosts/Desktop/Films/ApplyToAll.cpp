#include "Desktop/Films/ApplyToAll.h"

#include "Common/SoftPlan.h"
#include "Desktop/Films/FilePatterns.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Films/FilmWords.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/TrackMarks.h"
#include "Subtitles/Entities/TrackOrder.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"

#include <QCoreApplication>

namespace Korvex::Desktop
{

namespace Entities = Converter::Subtitles::Entities;
using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleEncoding;
using Entities::SubtitleTrack;

namespace
{

bool HasSameLanguage(SubtitleTrack const& a, SubtitleTrack const& b)
{
    using Entities::Language::GetLanguageFromShortName;
    using Entities::Language::LanguageID;
    LanguageID const language = GetLanguageFromShortName(a.language);
    return language == LanguageID::None ? a.language == b.language : language == GetLanguageFromShortName(b.language);
}

/// How much alike two tracks of one language and type are.
int CountLikeness(SubtitleTrack const& a, SubtitleTrack const& b)
{
    Entities::TrackMarks const marksOfA = Entities::ReadMarks(a.detail);
    Entities::TrackMarks const marksOfB = Entities::ReadMarks(b.detail);
    return (a.isExternal == b.isExternal ? 16 : 0) + (a.isForced == b.isForced ? 8 : 0) +
           (marksOfA.isHearingImpaired == marksOfB.isHearingImpaired ? 4 : 0) +
           (marksOfA.isCommentary == marksOfB.isCommentary ? 2 : 0) + (a.codecId == b.codecId ? 1 : 0);
}

/// The first one in the lists where several are equally alike; null when there is none.
SubtitleTrack const* FindTrackLike(SubtitleTrack const& wanted, FilmSubtitleState const& source,
                                   FilmSubtitleState const& other)
{
    SubtitleTrack const* best = nullptr;
    bool const isText = Hosts::IsTextTrack(*source.media, wanted);
    for (SubtitleTrack const* track : Entities::ListOrder(other.collection.tracks))
    {
        bool const isSuch = !track->codecId.empty() && HasSameLanguage(wanted, *track) &&
                            Hosts::IsTextTrack(*other.media, *track) == isText;
        if (isSuch && (best == nullptr || CountLikeness(wanted, *track) > CountLikeness(wanted, *best)))
            best = track;
    }
    return best;
}

SubtitleTrack const* FindDrawn(SubtitleCollection const& collection)
{
    auto const current = collection.tracks.find(collection.currentTrack);
    bool const isDrawn = collection.mode == SubtitleCollectionMode::SelectedTrack && collection.withoutSubtitles == 0 &&
                         current != collection.tracks.end();
    return isDrawn ? &current->second : nullptr;
}

} // namespace

ChoiceTransfer FindTransfer(FilmSubtitleState const& source, FilmSubtitleState const& other,
                            FileCheck const& fileExists)
{
    using Kind = ChoiceTransfer::Kind;
    if (source.collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
        return {Kind::ChooseAllSoft, {}, {}};
    SubtitleTrack const* drawn = FindDrawn(source.collection);
    if (drawn == nullptr)
        return {Kind::ChooseNone, {}, {}};
    bool const isUnknownFile = drawn->isExternal && drawn->language.empty();
    if (!isUnknownFile)
        if (SubtitleTrack const* track = FindTrackLike(*drawn, source, other))
            return {Kind::ChooseTrack, track->id, {}};
    ioPath const file = drawn->isExternal ? NameFileLike(drawn->path, source.path, other.path) : ioPath();
    if (file.empty())
        return {};
    for (auto const& [id, track] : other.collection.tracks)
        if (track.isExternal && track.path == file)
            return {Kind::ChooseTrack, id, {}};
    return fileExists(file) ? ChoiceTransfer{Kind::AddFile, {}, file} : ChoiceTransfer();
}

namespace
{

FilmSubtitleState ReadState(Film const& film)
{
    return {film.GetPath(), film.GetCollection(), &film.GetMedia()};
}

class Transferer
{
    Q_DECLARE_TR_FUNCTIONS(Korvex::Desktop::ApplyToAll)
public:
    explicit Transferer(Film const& source) : m_source(ReadState(source)), m_drawn(source.GetDrawnTrack()) {}

    [[nodiscard]] ChoiceTransferred Apply(Film& film) const
    {
        ChoiceTransferred done;
        done.film = film.GetId();
        QString const name = QString::fromStdString(film.GetPath().FileName());
        if (film.GetState() != FilmState::Ready)
        {
            done.sentence = tr("\"%1\": nothing changed, because the film cannot be read at the moment.").arg(name);
            return done;
        }
        ChoiceTransfer const transfer = FindTransfer(m_source, ReadState(film), Core::FileExists);
        done.isChanged = transfer.kind != ChoiceTransfer::Kind::Nothing;
        if (!done.isChanged)
        {
            done.sentence = tr("\"%1\": nothing changed, because it has no track like %2 and no file of that name.")
                                .arg(name, FilmWords::NameTrack(*m_drawn));
            return done;
        }
        CarryOut(transfer, film);
        done.sentence = QStringLiteral("\"%1\": %2").arg(name, film.DescribeChoice());
        return done;
    }

private:
    void CarryOut(ChoiceTransfer const& transfer, Film& film) const
    {
        switch (transfer.kind)
        {
        case ChoiceTransfer::Kind::Nothing:
            return;
        case ChoiceTransfer::Kind::ChooseNone:
            film.ChooseNone();
            break;
        case ChoiceTransfer::Kind::ChooseAllSoft:
            film.ChooseAllSoft();
            break;
        case ChoiceTransfer::Kind::ChooseTrack:
            film.ChooseTrack(transfer.track);
            break;
        case ChoiceTransfer::Kind::AddFile:
            film.AddSubtitleFiles({transfer.file});
            break;
        }
        film.SetLook(m_source.collection.textSettings);
        auto const drawn = film.GetDrawnTrack();
        if (drawn && m_drawn && drawn->encodingEditable && m_drawn->encodingEditable)
            film.SetEncoding(drawn->id, m_drawn->encoding);
    }

    FilmSubtitleState m_source;
    std::optional<SubtitleTrack> m_drawn;
};

} // namespace

std::vector<ChoiceTransferred> ApplyToAll(FilmList const& list, Film const& source)
{
    Transferer const transferer(source);
    std::vector<ChoiceTransferred> done;
    for (Film* film : list.GetFilms())
        if (film != &source)
            done.push_back(transferer.Apply(*film));
    return done;
}

} // namespace Korvex::Desktop
