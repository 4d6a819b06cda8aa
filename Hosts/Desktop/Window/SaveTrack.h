#pragma once

#include "Desktop/Films/Film.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace Korvex::Desktop
{

/// What the user is asked before a track is saved.
struct SaveQuestion
{
    QString path;           ///< suggested; no file of this name exists
    QStringList extensions; ///< without dot, the suggested one first
};

/// Saves tracks as files of their own, one after the other, on a thread of its own: a track of a film is read from the
/// film's beginning to its end. What takes longer is shown in a small window with a button to cancel it. GUI thread.
class SaveTrack final : public QObject
{
    Q_OBJECT
public:
    /// Gives the chosen path, empty when the user changed their mind. A path of an existing file means that it may be
    /// replaced. May run an event loop.
    using AskForPath = std::function<QString(QWidget* window, SaveQuestion const&)>;

    /// @param window under the dialogs; has to outlive this object
    explicit SaveTrack(QWidget* window);
    SaveTrack(QWidget* window, AskForPath askForPath);
    /// Cancels what runs and waits for it.
    ~SaveTrack() override;

    /// Asks where to, from the event loop, and starts. A track that is neither listed nor left out is passed over.
    void Save(Film const& film, Converter::Subtitles::Entities::SubtitleTrackID const& id);
    /// Something is being written, or waits for that.
    [[nodiscard]] bool IsActive() const;

Q_SIGNALS:
    /// One sentence: what was written, and what was lost.
    void Saved(QString const& sentence);
    /// One sentence: why nothing was written, and what to do. Not after a cancel.
    void Failed(QString const& sentence);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
