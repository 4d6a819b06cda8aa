#include "Desktop/Conversion/BatchReport.h"

#include <QCoreApplication>
#include <QStringList>

namespace Korvex::Desktop
{

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(BatchReport)
};

int Count(std::vector<BatchReport::Entry> const& entries)
{
    return static_cast<int>(entries.size());
}

/// The first ones: the list of films has the others.
QString JoinNames(std::vector<BatchReport::Entry> const& entries)
{
    constexpr int MOST_NAMES = 3;
    QStringList names;
    for (BatchReport::Entry const& entry : entries)
        names.append(names.size() < MOST_NAMES ? entry.name : QStringLiteral("..."));
    return names.mid(0, MOST_NAMES + 1).join(QStringLiteral(", "));
}

} // namespace

QString DescribeBatch(BatchReport const& report)
{
    if (report.converted.empty() && report.failed.empty())
        return {};
    QStringList sentences;
    if (!report.converted.empty())
        sentences.append(Texts::tr("%n film(s) converted.", nullptr, Count(report.converted)));
    if (!report.remarked.empty())
        sentences.append(
            Texts::tr("%n film(s) with remarks: %1", nullptr, Count(report.remarked)).arg(JoinNames(report.remarked)));
    if (!report.failed.empty())
        sentences.append(Texts::tr("%n film(s) could not be converted: %1", nullptr, Count(report.failed))
                             .arg(JoinNames(report.failed)));
    if (report.cancelledCount > 0)
        sentences.append(Texts::tr("%n film(s) cancelled.", nullptr, report.cancelledCount));
    return sentences.join(QLatin1Char('\n'));
}

} // namespace Korvex::Desktop
