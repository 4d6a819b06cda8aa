#include "Hosts/Desktop/FilmFixture.h"

#include <QtTest/QTest>

namespace Korvex::Testing
{

using Desktop::Film;
using Desktop::FilmState;

FilmFixture::FilmFixture(App::Configuration const& configuration)
    : m_statistics(std::make_shared<App::JsonLinesTracker>(m_folder / "statistics.jsonl")),
      m_services(configuration, m_statistics),
      m_list(m_services)
{
}

ioPath FilmFixture::MakeFilm(std::string const& name, std::vector<MadeSubtitle> subtitles)
{
    MadeMedia media;
    media.video = MadeVideo{};
    media.audios.emplace_back();
    media.subtitles = std::move(subtitles);
    MakeMedia(m_folder / name, media);
    return m_folder / name;
}

ioPath FilmFixture::WriteText(std::string const& name, std::string const& bytes)
{
    return m_folder.Write(name, bytes);
}

Film& FilmFixture::Open(ioPath const& path)
{
    Film& film = *m_list.Add({path}).front();
    WaitUntil([&film] { return film.GetState() != FilmState::Reading; });
    return film;
}

void FilmFixture::SetFormat(std::string const& formatId)
{
    Desktop::OutputSettings settings = m_list.GetOutput();
    settings.formatId = formatId;
    m_list.SetOutput(settings);
}

void FilmFixture::WaitUntil(std::function<bool()> const& condition)
{
    EXPECT_TRUE(QTest::qWaitFor(condition, 60'000));
}

std::vector<std::string> FilmFixture::ListSentences(Film const& film)
{
    std::vector<std::string> sentences;
    for (Desktop::FilmProblem const& problem : film.ListProblems())
        sentences.push_back(problem.sentence.toStdString());
    return sentences;
}

} // namespace Korvex::Testing
