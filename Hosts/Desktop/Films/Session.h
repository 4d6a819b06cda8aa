#pragma once

#include "Desktop/Films/FilmChoice.h"
#include "Desktop/Films/OutputSettings.h"

#include "Core/ioPath.h"

#include <QByteArray>

#include <map>
#include <string>
#include <vector>

namespace Korvex::Desktop
{

/// What survives a restart of the program.
struct Session
{
    struct Entry
    {
        ioPath path;
        FilmChoice choice;
    };

    OutputSettings output;
    std::vector<Entry> films;
    std::map<std::string, QByteArray> extras; ///< the window's own: places, language, theme
};

/// As JSON, with a version number.
[[nodiscard]] QByteArray WriteSession(Session const& session);

enum class SessionFailure
{
    Damaged,
    Newer, ///< written by a later version of the program
};

struct ReadSessionResult
{
    Session session;
    std::optional<SessionFailure> failure;
};

/// Values that make no sense read as their defaults; what is no session at all fails.
[[nodiscard]] ReadSessionResult ReadSession(QByteArray const& bytes);

} // namespace Korvex::Desktop
