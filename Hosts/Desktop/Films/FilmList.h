#pragma once

#include "Desktop/Films/Film.h"
#include "Desktop/Films/OutputSettings.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace Korvex::Desktop
{

/// All films, in the order in which they were added. Reads them one after the other on a thread of its own: headers
/// first, then a thumbnail. GUI thread; a QGuiApplication has to exist.
class FilmList final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role
    {
        FilmRole = Qt::UserRole, ///< Film*
    };

    explicit FilmList(Hosts::HostServices& services, QObject* parent = nullptr);
    ~FilmList() override;

    /// Adds the films; a path that is in the list already is skipped. Returns the films of all the paths.
    std::vector<Film*> Add(std::vector<ioPath> const& paths);
    /// Subtitle files go to the film of their name, else to `current` (null: none). Returns those that found no film.
    std::vector<ioPath> AddSubtitleFiles(std::vector<ioPath> const& files, Film* current);
    /// Also while it is being read. Not from inside one of the film's own signals.
    void Remove(FilmId id);
    /// The film is at another place now: it is read there, and its choices are made again. False: another film of the
    /// list is there, and nothing changes.
    [[nodiscard]] bool Locate(FilmId id, ioPath const& path);
    /// Looks which films are gone, and reads those anew that are there again or are not what they were, or whose
    /// unreadable subtitle files have changed; the answer comes as their changes. Done by itself whenever the program
    /// comes to the front.
    void CheckFiles();
    [[nodiscard]] Film* Find(FilmId id) const;
    [[nodiscard]] std::vector<Film*> GetFilms() const;
    /// -1 when it is not in the list.
    [[nodiscard]] int FindRow(FilmId id) const;

    [[nodiscard]] OutputSettings const& GetOutput() const;
    void SetOutput(OutputSettings const& settings);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    /// Display: the file name; Decoration: the thumbnail; ToolTip: path and problems;
    /// AccessibleDescription: choice and problems; FilmRole.
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool removeRows(int row, int count, QModelIndex const& parent = {}) override;

Q_SIGNALS:
    void OutputChanged();
    /// Like the film's own signals, for whoever follows all of them.
    void FilmChanged(Korvex::Desktop::FilmId id);
    void ApplyToAllRequested(Korvex::Desktop::FilmId id);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
