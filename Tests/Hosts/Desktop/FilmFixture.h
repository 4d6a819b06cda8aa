#pragma once

#include "Support/MediaMaker.h"

#include "App/Configuration.h"
#include "App/JsonLinesTracker.h"
#include "Common/HostServices.h"
#include "Desktop/Films/Film.h"
#include "Desktop/Films/FilmList.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Korvex::Testing
{

using SubtitleTrackID = Converter::Subtitles::Entities::SubtitleTrackID;

/// Real films in a folder of their own, and a list that reads them.
class FilmFixture : public testing::Test
{
protected:
    explicit FilmFixture(App::Configuration const& configuration = {});

    /// With picture and sound, so that subtitles begin at stream 2.
    ioPath MakeFilm(std::string const& name, std::vector<MadeSubtitle> subtitles = {});
    ioPath WriteText(std::string const& name, std::string const& bytes);
    /// Adds the film and waits until it was read.
    Desktop::Film& Open(ioPath const& path);
    void SetFormat(std::string const& formatId);
    /// Runs the event loop until it is so; fails the test after ten seconds.
    static void WaitUntil(std::function<bool()> const& condition);
    [[nodiscard]] static std::vector<std::string> ListSentences(Desktop::Film const& film);

    TemporaryFolder m_folder;
    std::shared_ptr<App::JsonLinesTracker> m_statistics;
    Hosts::HostServices m_services;
    Desktop::FilmList m_list;
};

constexpr char const* HELLO_SRT = "1\n00:00:00,500 --> 00:00:01,000\nHello\n";
/// "Привет, это первая строка фильма." in CP1251.
constexpr char const* RUSSIAN_SRT = "1\r\n00:00:00,200 --> 00:00:00,800\r\n"
                                    "\xCF\xF0\xE8\xE2\xE5\xF2, \xFD\xF2\xEE \xEF\xE5\xF0\xE2\xE0\xFF "
                                    "\xF1\xF2\xF0\xEE\xEA\xE0 \xF4\xE8\xEB\xFC\xEC\xE0.\r\n";

} // namespace Korvex::Testing
