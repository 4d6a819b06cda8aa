#include "Desktop/Films/CommandLineText.h"

#include "Common/EncodingNames.h"
#include "Common/OutputFormats.h"
#include "Common/SoftPlan.h"
#include "Desktop/Films/Film.h"
#include "Desktop/Films/FilmWords.h"
#include "Desktop/Films/OutputSettings.h"

#include "Subtitles/Entities/TrackMarks.h"
#include "Subtitles/Entities/TrackOrder.h"
#include "Subtitles/Subtitles.h"

#include "Conf/IFormatFile.h"
#include "Proc/MediaInfo.h"
#include "Transcoder/Preset.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>

namespace Korvex::Desktop
{

namespace Entities = Converter::Subtitles::Entities;
using Converter::Transcoder::Entities::Preset;
using Entities::SubtitleAlign;
using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleEncoding;
using Entities::SubtitleTextSettings;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

namespace
{

constexpr int MOST_LINES = 288;
constexpr double LONGEST_OFFSET_SECONDS = 86400.0;
/// Heavier fonts are drawn bold.
constexpr int HEAVIEST_REGULAR_WEIGHT = 57;

char const* NameAlign(SubtitleAlign align)
{
    static constexpr std::array<char const*, 7> NAMES{"default",           "top",  "vertical-center", "bottom", "left",
                                                      "horizontal-center", "right"};
    return NAMES.at(static_cast<std::size_t>(align));
}

/// To the microsecond, as short as possible.
std::string WriteSeconds(double seconds)
{
    std::string text = QString::number(seconds, 'f', 6).toStdString();
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

/// The value that all have; none when they differ or there are none.
template <typename Value>
std::optional<Value> FindCommon(std::vector<Value> const& values)
{
    bool const isCommon = !values.empty() && std::all_of(values.begin(), values.end(),
                                                         [&](Value const& value) { return value == values.front(); });
    return isCommon ? std::optional<Value>(values.front()) : std::nullopt;
}

class Writer
{
    Q_DECLARE_TR_FUNCTIONS(Korvex::Desktop::CommandLineText)
public:
    Writer(Film const& film, OutputSettings const& settings)
        : m_film(film),
          m_settings(settings),
          m_collection(film.GetCollection()),
          m_foundBeside(film.ListFoundBeside())
    {
    }

    CommandLineText Write()
    {
        Add({"korvex", "convert", m_film.GetPath().utf8string()});
        if (std::optional<SubtitleTrack> const drawn = m_film.GetDrawnTrack())
            WriteDrawn(*drawn);
        else if (m_collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
            WriteSoft();
        else if (!m_collection.tracks.empty() || !m_film.ListLeftOut().empty())
            Add({"--no-subtitles"});
        WriteOutput();
        return std::move(m_text);
    }

private:
    void Add(std::vector<std::string> const& words)
    {
        m_text.words.insert(m_text.words.end(), words.begin(), words.end());
    }

    void WriteOutput()
    {
        ioPath const output = MakeOutputPath(m_film.GetPath(), m_settings);
        Hosts::OutputFormat const* format = Hosts::FindOutputFormatOfFile(output);
        if (format == nullptr || format->id != m_settings.formatId)
            Add({"--format", m_settings.formatId});
        // The rate factor makes the picture be encoded, so where it may be copied it cannot be said.
        bool const isEncoded = m_settings.quality != Quality::AsSource || m_film.GetDrawnTrack();
        if (isEncoded)
            Add({"--crf", std::to_string(MakePreset(m_settings).crf)});
        else if (!CanSurelyBeCopied())
            m_text.unsaid << tr("A picture that cannot be copied is encoded with --crf %1 there and %2 here.")
                                 .arg(Preset().crf)
                                 .arg(MakePreset(m_settings).crf);
        Add({"-o", output.utf8string()});
    }

    [[nodiscard]] bool CanSurelyBeCopied() const
    {
        using Conf::IFormatFile;
        Proc::StreamInfo const* video = m_film.GetMedia().FindMainVideo();
        return video == nullptr || m_settings.formatId == IFormatFile::FORMAT_MATROSKA ||
               (video->codecId == "h264" && m_settings.formatId != IFormatFile::FORMAT_AVI);
    }

    // Drawn in

    void WriteDrawn(SubtitleTrack const& track)
    {
        if (track.isExternal)
            Add({"--add", track.path.utf8string(), "--burn"});
        else
            Add({"--burn=" + track.id.ToString()});
        if (track.encodingEditable && track.encoding != SubtitleEncoding::Auto)
            Add({"--encoding", NameEncoding(track.encoding)});
        WriteOffset(track.synchronizationOffset);
        SubtitleTextSettings const& look = m_collection.textSettings;
        if (track.styleEditable)
            WriteStyle(look);
        if (look.align != SubtitleAlign::Default)
            Add({"--align", NameAlign(look.align)});
        if (std::abs(look.positionShift) > MOST_LINES)
            m_text.unsaid << tr("The text cannot be moved by more than %1 lines.").arg(MOST_LINES);
        else if (look.positionShift != 0)
            Add({"--shift", std::to_string(look.positionShift)});
    }

    void WriteStyle(SubtitleTextSettings const& look)
    {
        SubtitleTextSettings const usual;
        if (!look.font.family().isEmpty() && look.font.family() != usual.font.family())
            Add({"--font", look.font.family().toStdString()});
        WriteFontSize(look.font.pointSizeF(), usual.font.pointSizeF());
        if (look.font.weight() > HEAVIEST_REGULAR_WEIGHT)
            Add({"--bold"});
        if (look.font.style() != QFont::StyleNormal)
            Add({"--italic"});
        if (look.font.underline())
            Add({"--underline"});
        if (look.font.strikeOut())
            Add({"--strike-out"});
        if (look.textColor.rgb() != usual.textColor.rgb())
            Add({"--text-color", look.textColor.name().toStdString()});
        if (look.outlineColor.rgb() != usual.outlineColor.rgb())
            Add({"--outline-color", look.outlineColor.name().toStdString()});
    }

    void WriteFontSize(double lines, double usual)
    {
        // A font that was given in pixels has no size in lines and is drawn in the usual one.
        if (lines <= 0.0 || lines == usual)
            return;
        int const whole = std::clamp(static_cast<int>(std::lround(lines)), 1, MOST_LINES);
        if (whole != lines)
            m_text.unsaid << tr("The font size %1 is not a whole number up to %2: the nearest one stands for it.")
                                 .arg(lines)
                                 .arg(MOST_LINES);
        Add({"--font-size", std::to_string(whole)});
    }

    // All as tracks

    void WriteSoft()
    {
        WriteOwnTracks();
        // What was found beside the film can only be taken as a whole.
        bool const isLookedUp =
            std::all_of(m_foundBeside.begin(), m_foundBeside.end(),
                        [this](auto const& found) { return m_collection.tracks.count(found.first) > 0; });
        if (!isLookedUp)
            Add({"--no-lookup"});
        for (SubtitleTrack const* track : Entities::ListOrder(m_collection.tracks))
            if (track->isExternal)
                WriteFile(*track, isLookedUp);
        CheckDefaults();
        WriteSoftEncoding();
        WriteSoftOffset();
    }

    void WriteOwnTracks()
    {
        std::string ids;
        auto const asInFilm = Converter::Subtitles::ListMediaTracks(m_film.GetMedia());
        for (SubtitleTrack const* track : Entities::ListOrder(m_collection.tracks))
        {
            auto const own = asInFilm.find(track->id);
            if (own == asInFilm.end())
                continue;
            ids.append(ids.empty() ? "" : ",").append(track->id.ToString());
            if (own->second.language != track->language || own->second.title != track->title ||
                own->second.isForced != track->isForced)
                m_text.unsaid
                    << tr("%1 keeps its own language, title and forced mark.").arg(FilmWords::NameTrack(own->second));
        }
        if (!m_film.ListLeftOut().empty())
            Add({"--tracks", ids.empty() ? "none" : ids});
    }

    void WriteFile(SubtitleTrack const& track, bool isLookedUp)
    {
        auto const found = m_foundBeside.find(track.id);
        SubtitleTrack usual;
        usual.title = track.path.FileName();
        if (isLookedUp && found != m_foundBeside.end())
            usual = found->second;
        std::vector<std::string> options;
        if (track.language != usual.language && !track.language.empty())
            options.insert(options.end(), {"--language", track.language});
        if (track.title != usual.title && track.title != track.path.FileName())
            options.insert(options.end(), {"--title", track.title});
        bool const isMarkedDefault = m_collection.defaultTracks && m_collection.defaultTracks->count(track.id) > 0;
        if (isMarkedDefault)
            options.emplace_back("--default");
        if (track.isForced && !usual.isForced)
            options.emplace_back("--forced");
        CheckFile(track, usual);
        if (options.empty() && isLookedUp && found != m_foundBeside.end())
            return;
        Add({"--add", track.path.utf8string()});
        Add(options);
    }

    /// Options only add to what is known of a file.
    void CheckFile(SubtitleTrack const& track, SubtitleTrack const& usual)
    {
        QString const name = FilmWords::NameTrack(track);
        bool const isTakenBack = (track.language.empty() && !usual.language.empty()) ||
                                 (track.title == track.path.FileName() && track.title != usual.title) ||
                                 (!track.isForced && usual.isForced);
        if (isTakenBack)
            m_text.unsaid << tr("%1 keeps the language, title and forced mark that its name states.").arg(name);
        Entities::TrackMarks const marks = Entities::ReadMarks(track.detail);
        Entities::TrackMarks const usualMarks = Entities::ReadMarks(usual.detail);
        if (marks.isHearingImpaired != usualMarks.isHearingImpaired)
            m_text.unsaid << tr("%1 goes out without its mark for the hard of hearing.").arg(name);
    }

    /// Marked files take the marks off the film's own tracks; without them those stay.
    void CheckDefaults()
    {
        std::set<SubtitleTrackID> files;
        std::set<SubtitleTrackID> inFilm;
        for (auto const& [id, track] : m_collection.tracks)
        {
            Proc::StreamInfo const* stream =
                track.isExternal ? nullptr : m_film.GetMedia().FindStream(track.streamIndex);
            if (stream != nullptr && stream->isDefault)
                inFilm.insert(id);
            if (track.isExternal && m_collection.defaultTracks && m_collection.defaultTracks->count(id) > 0)
                files.insert(id);
        }
        if (m_collection.defaultTracks && *m_collection.defaultTracks != (files.empty() ? inFilm : files))
            m_text.unsaid << tr("Which of the film's own tracks players show by themselves stays as in the film.");
    }

    void WriteSoftEncoding()
    {
        std::vector<SubtitleEncoding> encodings;
        for (auto const& [id, track] : m_collection.tracks)
            if (track.encodingEditable)
                encodings.push_back(track.encoding);
        if (encodings.empty())
            return;
        auto const common = FindCommon(encodings);
        if (!common)
            m_text.unsaid << tr("The files have different encodings: all are read as they are detected.");
        else if (*common != SubtitleEncoding::Auto)
            Add({"--encoding", NameEncoding(*common)});
    }

    /// The option moves the files, or where there are none the film's own tracks.
    void WriteSoftOffset()
    {
        std::vector<double> files;
        std::vector<double> own;
        for (auto const& [id, track] : m_collection.tracks)
            (track.isExternal ? files : own).push_back(track.synchronizationOffset);
        auto const isMoved = [](double offset) { return offset != 0.0; };
        bool const isOwnMoved = std::any_of(own.begin(), own.end(), isMoved);
        auto const common = FindCommon(files.empty() ? own : files);
        bool const canBeSaid = common && (files.empty() || !isOwnMoved);
        if (canBeSaid)
            WriteOffset(*common);
        else if (isOwnMoved || std::any_of(files.begin(), files.end(), isMoved))
            m_text.unsaid << tr("The tracks are moved by different offsets: none is moved.");
    }

    void WriteOffset(double seconds)
    {
        if (std::fabs(seconds) > LONGEST_OFFSET_SECONDS)
            m_text.unsaid << tr("Text cannot be moved by more than a day.");
        else if (std::string const text = WriteSeconds(seconds); text != "0" && text != "-0")
            Add({"--offset", text});
    }

    static std::string NameEncoding(SubtitleEncoding encoding)
    {
        return Hosts::GetEncodingName(static_cast<std::int32_t>(encoding));
    }

    Film const& m_film;
    OutputSettings const& m_settings;
    SubtitleCollection m_collection;
    std::map<SubtitleTrackID, SubtitleTrack> m_foundBeside;
    CommandLineText m_text;
};

} // namespace

CommandLineText MakeCommandLine(Film const& film, OutputSettings const& settings)
{
    return Writer(film, settings).Write();
}

} // namespace Korvex::Desktop
