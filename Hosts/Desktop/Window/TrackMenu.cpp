#include "Desktop/Window/TrackMenu.h"

#include "Desktop/Window/SaveTrack.h"
#include "Desktop/Window/TrackPropertiesDialog.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleTrack.h"

namespace Korvex::Desktop
{

using Converter::Subtitles::Entities::SubtitleTrack;
using Converter::Subtitles::Entities::SubtitleTrackID;

namespace
{

QString MenuText(SubtitleTrack const& track)
{
    return QString::fromStdString(GenerateLabel(track)).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void EditProperties(Film& film, SubtitleTrack const& track, QWidget* window)
{
    auto* const dialog = new TrackPropertiesDialog(QString::fromStdString(track.path.FileName()),
                                                   film.GetTrackProperties(track.id), window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, &film,
                     [&film, dialog, id = track.id] { film.SetTrackProperties(id, dialog->GetProperties()); });
    QObject::connect(&film, &QObject::destroyed, dialog, &QDialog::reject);
    dialog->open();
}

} // namespace

class TrackMenu::Builder
{
public:
    Builder(TrackMenu& menu, Film& film, SaveTrack& saving, QWidget* window)
        : m_menu(menu),
          m_film(film),
          m_saving(saving),
          m_window(window)
    {
    }

    void AddListed(SubtitleTrack const& track)
    {
        auto const drawn = m_film.GetDrawnTrack();
        bool const isDrawn = drawn && drawn->id == track.id;
        QAction& draw = Add("drawIn", TrackMenu::tr("&Draw in"), [id = track.id](Film& film) { film.ChooseTrack(id); });
        draw.setCheckable(true);
        draw.setChecked(isDrawn);
        Add("leaveOut",
            track.isExternal ? TrackMenu::tr("&Remove from list") : TrackMenu::tr("&Leave out of the output"),
            [id = track.id](Film& film) { film.LeaveOut(id); });
        m_menu.addSeparator();
        if (track.isExternal)
            Add("properties", TrackMenu::tr("Language, &title and marks..."),
                [track, window = m_window](Film& film) { EditProperties(film, track, window); });
        AddSaving(track.id);
    }

    void AddLeftOut(SubtitleTrack const& track)
    {
        AddPutBack(m_menu, TrackMenu::tr("&Put back"), track.id);
        m_menu.addSeparator();
        AddSaving(track.id);
    }

    void AddPutBackMenu(std::vector<SubtitleTrack> const& leftOut)
    {
        m_menu.addSeparator();
        QMenu* const others = m_menu.addMenu(TrackMenu::tr("&Put back"));
        others->menuAction()->setObjectName(QStringLiteral("putBackMenu"));
        for (SubtitleTrack const& track : leftOut)
            AddPutBack(*others, MenuText(track), track.id);
    }

private:
    template <typename Operation>
    QAction& Add(char const* name, QString const& text, Operation const& operation)
    {
        return AddTo(m_menu, name, text, operation);
    }

    /// The film is the context, so nothing happens once it is gone.
    template <typename Operation>
    QAction& AddTo(QMenu& menu, char const* name, QString const& text, Operation const& operation)
    {
        QAction* const action = menu.addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, &m_film, [&film = m_film, operation] { operation(film); });
        return *action;
    }

    void AddPutBack(QMenu& menu, QString const& text, SubtitleTrackID const& id)
    {
        AddTo(menu, "putBack", text, [id](Film& film) { film.PutBack(id); });
    }

    void AddSaving(SubtitleTrackID const& id)
    {
        Add("saveAs", TrackMenu::tr("&Save as a file..."),
            [id, &saving = m_saving](Film const& film) { saving.Save(film, id); });
    }

    TrackMenu& m_menu;
    Film& m_film;
    SaveTrack& m_saving;
    QWidget* m_window;
};

TrackMenu::TrackMenu(Film& film, SubtitleTrackID const& id, SaveTrack& saving, QWidget* window) : QMenu(window)
{
    setObjectName(QStringLiteral("trackMenu"));
    Builder builder(*this, film, saving, window);
    auto const collection = film.GetCollection();
    if (auto const listed = collection.tracks.find(id); listed != collection.tracks.end())
        builder.AddListed(listed->second);
    std::vector<SubtitleTrack> others;
    for (SubtitleTrack const& track : film.ListLeftOut())
    {
        if (track.id == id)
            builder.AddLeftOut(track);
        else
            others.push_back(track);
    }
    if (!others.empty())
        builder.AddPutBackMenu(others);
}

TrackMenu::~TrackMenu() = default;

void TrackMenu::Open(Film& film, SubtitleTrackID const& id, SaveTrack& saving, QWidget* window,
                     QPoint const& globalPosition)
{
    auto* const menu = new TrackMenu(film, id, saving, window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(globalPosition);
}

} // namespace Korvex::Desktop
