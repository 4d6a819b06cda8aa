#pragma once

#include "Desktop/Film.h"
#include "Desktop/OutputSettings.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace Korvex::Desktop
{

/// All films, in the order in which they were added. Reads them one after the other on a thread of its own: headers
/// first, then a thumbnail. GUI thread.
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
    void Remove(FilmId id);
    [[nodiscard]] Film* Find(FilmId id) const;
    [[nodiscard]] std::vector<Film*> GetFilms() const;

    [[nodiscard]] OutputSettings const& GetOutput() const;
    void SetOutput(OutputSettings const& settings);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    /// Display: the file name; Decoration: the thumbnail; ToolTip: path and problems; FilmRole.
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool removeRows(int row, int count, QModelIndex const& parent = {}) override;

Q_SIGNALS:
    void OutputChanged();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
