#pragma once

#include "Desktop/Window/Marks.h"

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>

#include <optional>

class QFont;

namespace Korvex::Desktop
{

class ConversionQueue;
class Film;

/// What the list shows of one film, in words.
struct FilmRow
{
    QString name;
    QString facts; ///< duration and picture size
    QImage thumbnail;
    QString choice;                 ///< the chosen subtitles; empty while there is nothing to choose
    Mark mark = Mark::None;         ///< of the sentence
    QString sentence;               ///< what is wrong, or how its conversion stands; may be empty
    std::optional<double> fraction; ///< of the running conversion
    bool isConverting = false;      ///< a bar is shown, also while the fraction is unknown
    QString remarks;                ///< on what came out, a line each; the sentence then leads to them
    bool hasOutput = false;         ///< there is something to show in its folder
};

[[nodiscard]] FilmRow DescribeFilm(Film const& film, ConversionQueue const& queue);

/// Where things lie in a row, all inside `place`; what the row does not have is empty.
struct FilmRowLayout
{
    /// `place` counts for its position and width alone.
    FilmRowLayout(FilmRow const& row, QRect const& place, QFont const& font);

    /// The row's words about themselves: the name is bold, facts and sentences are smaller.
    [[nodiscard]] static QFont MakeNameFont(QFont const& font);
    [[nodiscard]] static QFont MakeSmallFont(QFont const& font);
    /// The button under a finished film.
    [[nodiscard]] static QString GetRevealText();

    QRect thumbnail;
    QRect name;
    QStringList nameLines;
    QRect facts;
    QRect choice;
    QRect mark;
    QRect sentence;
    QRect reveal;
    QRect bar;
    int height = 0;
};

} // namespace Korvex::Desktop
