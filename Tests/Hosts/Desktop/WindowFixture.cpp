#include "Hosts/Desktop/WindowFixture.h"

#include "Support/WidgetSupport.h"

#include <QAbstractButton>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QUrl>

namespace Korvex::Testing
{

using Desktop::Film;

WindowFixture::WindowFixture(App::Configuration const& configuration) : FilmFixture(configuration)
{
    Start();
}

WindowFixture::~WindowFixture()
{
    m_languages.Switch(QStringLiteral("en"));
}

void WindowFixture::Start()
{
    m_queue = std::make_unique<Desktop::ConversionQueue>(m_services);
    m_store = std::make_unique<Desktop::SessionStore>(m_list, m_folder / "session.json");
    EXPECT_EQ(m_store->Restore(), QString());
    if (m_store->GetExtra("language").isEmpty())
        m_store->SetExtra("language", "en");
    if (m_store->GetExtra("subtitlesFolder").isEmpty())
        m_store->SetExtra("subtitlesFolder", QByteArray::fromStdString((m_folder / "fetched").utf8string()));
    m_window = std::make_unique<Desktop::MainWindow>(
        Desktop::Program{m_services, m_list, *m_queue, *m_store, GetLookAndFeel(), m_languages, *m_statistics});
    ShowAndWait(*m_window);
}

void WindowFixture::Restart()
{
    m_window.reset();
    m_store.reset();
    m_queue.reset();
    while (m_list.rowCount() > 0)
        m_list.removeRows(0, 1);
    m_languages.Switch(QStringLiteral("en"));
    Start();
}

std::optional<Desktop::ConversionState> WindowFixture::GetState(Film const& film) const
{
    auto const status = m_queue->FindStatus(film.GetId());
    return status ? std::optional(status->state) : std::nullopt;
}

void WindowFixture::Click(char const* button)
{
    auto& widget = Get<QAbstractButton>(button);
    WaitUntil([&widget] { return widget.isVisible() && widget.isEnabled(); });
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void WindowFixture::Trigger(char const* action)
{
    Get<QAction>(action).trigger();
}

void WindowFixture::Drop(std::vector<ioPath> const& paths, QWidget& onto)
{
    DropAt(paths, onto, onto.rect().center());
}

void WindowFixture::DropOntoFilm(std::vector<ioPath> const& paths, Film const& film)
{
    auto& list = Get<QListView>("filmListView");
    DropAt(paths, *list.viewport(), list.visualRect(m_list.index(m_list.FindRow(film.GetId()))).center());
}

void WindowFixture::DropAt(std::vector<ioPath> const& paths, QWidget& onto, QPoint const& place)
{
    QList<QUrl> urls;
    for (ioPath const& path : paths)
        urls << QUrl::fromLocalFile(QString::fromStdString(path.utf8string()));
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&onto, &enter);
    EXPECT_TRUE(enter.isAccepted());
    auto& light = Get<QWidget>("dropHighlight");
    EXPECT_TRUE(light.isVisible());
    QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&onto, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction); // a move would take the files away
    EXPECT_FALSE(light.isVisible());
}

Film& WindowFixture::AddFilm(ioPath const& path)
{
    m_window->AddFiles({path});
    return WaitForFilm(path);
}

Film& WindowFixture::WaitForFilm(ioPath const& path)
{
    Film* film = m_list.Add({path}).front();
    WaitUntil([film] { return film->GetState() == Desktop::FilmState::Ready; });
    return *film;
}

void WindowFixture::Show(Film const& film)
{
    auto& list = Get<QListView>("filmListView");
    list.setCurrentIndex(m_list.index(m_list.FindRow(film.GetId())));
    QCoreApplication::processEvents();
}

} // namespace Korvex::Testing
