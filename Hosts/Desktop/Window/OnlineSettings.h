#pragma once

#include "Core/ioPath.h"

#include <QObject>

namespace Korvex::App
{
class JsonLinesTracker;
} // namespace Korvex::App

namespace Korvex::Desktop
{

class SessionStore;

/// The file that statistics are kept in while the user agrees to them.
[[nodiscard]] ioPath FindStatisticsFile();
/// Where fetched subtitles go unless the user says otherwise: "korvex/subtitles" in the user's data folder.
[[nodiscard]] ioPath FindUsualSubtitlesFolder();

/// What the user decided about the online search. The session keeps it. GUI thread.
class OnlineSettings final : public QObject
{
    Q_OBJECT
public:
    /// What was decided last time takes effect; the store has restored by then. Both have to outlive it.
    OnlineSettings(SessionStore& store, App::JsonLinesTracker& statistics, QObject* parent = nullptr);
    ~OnlineSettings() override;

    /// Where fetched subtitles go.
    [[nodiscard]] ioPath GetFolder() const;
    void SetFolder(ioPath const& folder);

    /// Whether it is counted how the search is used. Not until the user has agreed.
    [[nodiscard]] bool IsCounting() const;
    void SetCounting(bool isCounting);

    [[nodiscard]] App::JsonLinesTracker& GetStatistics() const { return m_statistics; }

Q_SIGNALS:
    void FolderChanged();

private:
    SessionStore& m_store;
    App::JsonLinesTracker& m_statistics;
};

} // namespace Korvex::Desktop
