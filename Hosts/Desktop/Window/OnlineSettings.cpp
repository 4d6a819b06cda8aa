#include "Desktop/Window/OnlineSettings.h"

#include "Desktop/Films/SessionStore.h"

#include "App/JsonLinesTracker.h"

#include <QStandardPaths>

namespace Korvex::Desktop
{

namespace
{

constexpr char const* FOLDER = "subtitlesFolder";
constexpr char const* STATISTICS = "statistics";
constexpr char const* AGREED = "on";

ioPath FindDataFolder()
{
    return ioPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString()) / "korvex";
}

} // namespace

ioPath FindStatisticsFile()
{
    return FindDataFolder() / "statistics.jsonl";
}

ioPath FindUsualSubtitlesFolder()
{
    return FindDataFolder() / "subtitles";
}

OnlineSettings::OnlineSettings(SessionStore& store, App::JsonLinesTracker& statistics, QObject* parent)
    : QObject(parent),
      m_store(store),
      m_statistics(statistics)
{
    m_statistics.SetEnabled(store.GetExtra(STATISTICS) == AGREED);
}

OnlineSettings::~OnlineSettings() = default;

ioPath OnlineSettings::GetFolder() const
{
    QByteArray const folder = m_store.GetExtra(FOLDER);
    return folder.isEmpty() ? FindUsualSubtitlesFolder() : ioPath(folder.toStdString());
}

void OnlineSettings::SetFolder(ioPath const& folder)
{
    if (folder == GetFolder())
        return;
    m_store.SetExtra(FOLDER, folder == FindUsualSubtitlesFolder() ? QByteArray()
                                                                  : QByteArray::fromStdString(folder.utf8string()));
    Q_EMIT FolderChanged();
}

bool OnlineSettings::IsCounting() const
{
    return m_statistics.IsEnabled();
}

void OnlineSettings::SetCounting(bool isCounting)
{
    m_store.SetExtra(STATISTICS, isCounting ? QByteArray(AGREED) : QByteArray());
    m_statistics.SetEnabled(isCounting);
}

} // namespace Korvex::Desktop
