#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Korvex::Testing
{

/// Where a picture has pixels of a kind, and how many.
struct Ink
{
    QRect box;
    int pixels = 0;
};

/// Pixels that are as wanted.
template <typename IsWanted>
Ink FindInk(QImage const& picture, IsWanted const& isWanted)
{
    Ink ink;
    for (int y = 0; y < picture.height(); ++y)
    {
        for (int x = 0; x < picture.width(); ++x)
        {
            if (!isWanted(picture.pixelColor(x, y)))
                continue;
            ink.box |= QRect(x, y, 1, 1);
            ++ink.pixels;
        }
    }
    return ink;
}

/// Peak signal to noise ratio over red, green and blue in decibels, for pictures of one size.
inline double MeasureLikeness(QImage const& first, QImage const& second)
{
    double squares = 0.0;
    for (int y = 0; y < first.height(); ++y)
    {
        for (int x = 0; x < first.width(); ++x)
        {
            QColor const a = first.pixelColor(x, y);
            QColor const b = second.pixelColor(x, y);
            squares +=
                std::pow(a.red() - b.red(), 2) + std::pow(a.green() - b.green(), 2) + std::pow(a.blue() - b.blue(), 2);
        }
    }
    return 10.0 * std::log10(255.0 * 255.0 * 3.0 * first.width() * first.height() / std::max(squares, 1.0));
}

} // namespace Korvex::Testing
