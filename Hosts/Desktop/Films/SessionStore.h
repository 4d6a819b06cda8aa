#pragma once

#include "Core/ioPath.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>
#include <string>

namespace Korvex::Desktop
{

class FilmList;

/// The file that the session is kept in: what KORVEX_SESSION names, else "session.json" in the user's data folder.
[[nodiscard]] ioPath FindSessionFile();

/// Keeps the list, the choices, the output settings and the window's extras in a file: written a moment after a change,
/// on a thread of its own, and when it goes. GUI thread.
class SessionStore final : public QObject
{
    Q_OBJECT
public:
    /// `list` has to outlive the store. Nothing is read or written before `Restore`.
    SessionStore(FilmList& list, ioPath file, QObject* parent = nullptr);
    /// Writes what has changed since the last time.
    ~SessionStore() override;

    /// Fills the list and begins to keep it. A file that cannot be used is set aside under a free name; then, and only
    /// then, the sentence that says so is not empty.
    [[nodiscard]] QString Restore();

    /// Bytes that mean something to the window alone.
    void SetExtra(std::string const& name, QByteArray const& bytes);
    [[nodiscard]] QByteArray GetExtra(std::string const& name) const;

Q_SIGNALS:
    /// It could not be written; said once until it works again.
    void SavingFailed(QString const& sentence);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
