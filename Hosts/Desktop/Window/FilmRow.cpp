#include "Desktop/Window/FilmRow.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/Film.h"
#include "Desktop/Words/NumberTexts.h"
#include "Desktop/Words/TimeTexts.h"

#include "Proc/MediaInfo.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Korvex::Desktop
{

namespace
{

constexpr int MARGIN = 10;
constexpr int GAP = 10;
constexpr int LINE_GAP = 3;
constexpr QSize THUMBNAIL_SIZE(96, 54);
constexpr int BAR_HEIGHT = 4;
constexpr int CHOICE_PADDING = 3;
constexpr int MAX_SENTENCE_LINES = 6;

QString Translate(char const* text)
{
    return QCoreApplication::translate("FilmRow", text);
}

QString DescribeFacts(Film const& film)
{
    Proc::MediaInfo const& media = film.GetMedia();
    QString facts = FormatTime(media.duration, media.duration);
    if (Proc::StreamInfo const* video = media.FindMainVideo())
    {
        QSize size(video->width, video->height);
        if (video->rotationDegrees % 180 != 0)
            size.transpose();
        facts += QStringLiteral(" \u00B7 %1\u2009\u00D7\u2009%2").arg(size.width()).arg(size.height());
    }
    return facts;
}

/// Where a name may go on in another line: between words, and behind the signs that stand for blanks in names of files,
/// but never inside the ending.
std::vector<int> ListBreaks(QString const& name)
{
    static QString const SIGNS = QStringLiteral("._-");
    int const ending = name.lastIndexOf(QLatin1Char('.'));
    QTextBoundaryFinder words(QTextBoundaryFinder::Line, name);
    std::vector<int> breaks;
    for (int i = 1; i < (ending > 0 ? ending : name.size()); ++i)
    {
        words.setPosition(i);
        if (words.isAtBoundary() || (SIGNS.contains(name[i - 1]) && !SIGNS.contains(name[i])))
            breaks.push_back(i);
    }
    return breaks;
}

/// At most two lines, the last one shortened; one where no part of the name fits a line.
QStringList SplitName(QString const& name, QFont const& font, int width)
{
    QFontMetrics const metrics(font);
    if (metrics.horizontalAdvance(name) <= width)
        return {name};
    std::vector<int> const breaks = ListBreaks(name);
    auto const fits = [&](int length) { return metrics.horizontalAdvance(name.left(length).trimmed()) <= width; };
    auto const last = std::find_if(breaks.rbegin(), breaks.rend(), fits);
    int const length = last == breaks.rend() ? 0 : *last;
    QStringList lines;
    if (length > 0)
        lines << name.left(length).trimmed();
    return lines << metrics.elidedText(name.mid(length), Qt::ElideMiddle, width);
}

void DescribeProgress(ConversionStatus const& status, bool isPaused, FilmRow& row)
{
    row.isConverting = true;
    row.fraction = status.fraction;
    if (isPaused)
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Paused"));
    else if (status.state == ConversionState::Preparing)
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Preparing subtitles"));
    else
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Converting"));
    if (status.fraction)
        row.sentence += QStringLiteral("  ") + FormatPercent(*status.fraction);
    if (status.remaining && !isPaused)
        row.sentence += QStringLiteral("  \u00B7  ") + FormatTimeLeft(*status.remaining);
}

void DescribeOutput(ConversionStatus const& status, FilmRow& row)
{
    row.hasOutput = true;
    row.remarks = status.notes.join(QLatin1Char('\n'));
    row.mark = status.hasLosses ? Mark::Warning : Mark::Success;
    if (status.earlyEnd)
    {
        auto const [done, total] = *status.earlyEnd;
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Converted, but it breaks off after %1 of %2"))
                           .arg(FormatTime(done, total), FormatTime(total, total));
    }
    else if (status.notes.isEmpty())
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Converted"));
    else
        row.sentence =
            QCoreApplication::translate("FilmRow", "Converted, with %n remark(s)", nullptr, status.notes.size());
}

/// True when it said something that goes before the film's own problems.
bool DescribeConversion(ConversionStatus const& status, bool isPaused, FilmRow& row)
{
    switch (status.state)
    {
    case ConversionState::Waiting:
        row.isConverting = true;
        row.fraction = 0.0;
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Waiting"));
        return true;
    case ConversionState::Preparing:
    case ConversionState::Running:
        DescribeProgress(status, isPaused, row);
        return true;
    case ConversionState::Failed:
        row.mark = Mark::Error;
        row.sentence = status.sentence;
        return true;
    case ConversionState::Done:
        DescribeOutput(status, row);
        return false;
    case ConversionState::Cancelled:
        row.sentence = Translate(QT_TRANSLATE_NOOP("FilmRow", "Cancelled"));
        return false;
    }
    return false;
}

void DescribeProblem(Film const& film, FilmRow& row)
{
    std::vector<FilmProblem> const problems = film.ListProblems();
    if (problems.empty())
        return;
    row.mark = Mark::Warning;
    row.sentence = problems.front().sentence;
    row.remarks.clear();
    row.hasOutput = false;
}

/// That tracks are moved or read differently is what somebody asked for; that they lose something is not.
void DescribeLoss(Film const& film, FilmRow& row)
{
    std::vector<FilmRemark> const remarks = film.ListRemarks();
    if (remarks.empty() || !remarks.front().isLoss)
        return;
    row.mark = Mark::Warning;
    row.sentence = remarks.front().sentence;
}

} // namespace

FilmRow DescribeFilm(Film const& film, ConversionQueue const& queue)
{
    FilmRow row;
    row.name = QString::fromStdString(film.GetPath().FileName());
    row.thumbnail = film.GetThumbnail();
    switch (film.GetState())
    {
    case FilmState::Reading:
        row.facts = Translate(QT_TRANSLATE_NOOP("FilmRow", "Reading the film"));
        return row;
    case FilmState::Missing:
    case FilmState::Unreadable:
        row.mark = film.GetState() == FilmState::Missing ? Mark::Warning : Mark::Error;
        row.sentence = film.GetStateSentence();
        return row;
    case FilmState::Ready:
        break;
    }
    row.facts = DescribeFacts(film);
    row.choice = film.DescribeChoice();
    std::optional<ConversionStatus> const status = queue.FindStatus(film.GetId());
    if (!status || !DescribeConversion(*status, queue.IsPaused(), row))
        DescribeProblem(film, row);
    if (row.sentence.isEmpty())
        DescribeLoss(film, row);
    return row;
}

QFont FilmRowLayout::MakeNameFont(QFont const& font)
{
    QFont name = font;
    name.setBold(true);
    return name;
}

QFont FilmRowLayout::MakeSmallFont(QFont const& font)
{
    constexpr double SMALLER = 0.92;
    QFont small = font;
    if (font.pixelSize() > 0)
        small.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * SMALLER)));
    else
        small.setPointSizeF(font.pointSizeF() * SMALLER);
    return small;
}

QString FilmRowLayout::GetRevealText()
{
    return Translate(QT_TRANSLATE_NOOP("FilmRow", "Show in folder"));
}

FilmRowLayout::FilmRowLayout(FilmRow const& row, QRect const& place, QFont const& font)
{
    QFontMetrics const nameMetrics(MakeNameFont(font));
    QFontMetrics const metrics(font);
    QFontMetrics const smallMetrics(MakeSmallFont(font));
    QRect const inner = place.adjusted(MARGIN, MARGIN, -MARGIN, 0);
    thumbnail = QRect(inner.topLeft(), THUMBNAIL_SIZE);

    int const left = thumbnail.right() + 1 + GAP;
    int const width = std::max(0, inner.right() + 1 - left);
    nameLines = SplitName(row.name, MakeNameFont(font), width);
    name = QRect(left, inner.top() - 2, width, nameMetrics.lineSpacing() * nameLines.size());
    facts = QRect(left, name.bottom() + 1 + LINE_GAP, width, smallMetrics.height());
    int bottom = std::max(facts.bottom(), thumbnail.bottom()) + 1;
    if (!row.choice.isEmpty())
    {
        choice = QRect(inner.left(), bottom + 2 * LINE_GAP, inner.width(), metrics.height() + 2 * CHOICE_PADDING);
        bottom = choice.bottom() + 1;
    }

    if (row.isConverting)
    {
        bar = QRect(inner.left(), bottom + GAP - LINE_GAP, inner.width(), BAR_HEIGHT);
        bottom = bar.bottom() + 1;
    }
    if (!row.sentence.isEmpty())
    {
        int const top = bottom + GAP - LINE_GAP;
        int const markSize = row.mark == Mark::None ? 0 : smallMetrics.height();
        int const indent = markSize == 0 ? 0 : markSize + GAP / 2;
        mark = QRect(inner.left(), top, markSize, markSize);
        int const revealWidth = row.hasOutput ? smallMetrics.horizontalAdvance(GetRevealText()) + 2 : 0;
        sentence = QRect(inner.left() + indent, top, inner.width() - indent - revealWidth, smallMetrics.height());
        int const wanted =
            smallMetrics.boundingRect(QRect(0, 0, sentence.width(), 10000), Qt::TextWordWrap, row.sentence).height();
        sentence.setHeight(std::min(wanted, MAX_SENTENCE_LINES * smallMetrics.lineSpacing()));
        if (row.hasOutput)
            reveal = QRect(inner.right() + 1 - revealWidth, top, revealWidth, smallMetrics.height());
        bottom = sentence.bottom() + 1;
    }
    height = bottom + MARGIN - place.top();
}

} // namespace Korvex::Desktop
