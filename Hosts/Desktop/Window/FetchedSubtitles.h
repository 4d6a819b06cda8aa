#pragma once

#include "Desktop/Films/Film.h"

#include <QObject>

#include <memory>

namespace Korvex::Desktop
{

class FilmList;
class Notices;

/// Says which files the online search has brought to which film, and takes them out again when the user wants that:
/// what was chosen before counts again then, and the files stay on the disk. GUI thread.
class FetchedSubtitles final : public QObject
{
    Q_OBJECT
public:
    /// All have to outlive it.
    FetchedSubtitles(Hosts::HostServices& services, FilmList& films, Notices& notices, QObject* parent = nullptr);
    ~FetchedSubtitles() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
