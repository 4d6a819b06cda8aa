#pragma once

class QPainter;
class QRectF;

namespace Korvex::Desktop
{

/// What a sign beside a sentence says before it is read.
enum class Mark
{
    None,
    Warning,
    Error,
    Success,
    News,
};

/// In the colour that goes with the mark in the present theme, as large as the square `place`.
void PaintMark(QPainter& painter, QRectF const& place, Mark mark);

} // namespace Korvex::Desktop
