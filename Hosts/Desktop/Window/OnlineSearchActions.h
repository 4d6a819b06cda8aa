#pragma once

#include "Desktop/Films/Film.h"

#include <QObject>

#include <memory>

namespace Korvex::Desktop
{

class Actions;
class FilmList;
class FilmListPane;
class OnlineSettings;

/// The online search as the window has it: opens it for the film that is shown, names the folder for what it fetches,
/// and ends it with its film. GUI thread.
class OnlineSearchActions final : public QObject
{
    Q_OBJECT
public:
    /// All have to outlive it.
    struct Parts
    {
        Hosts::HostServices& services;
        FilmList& films;
        FilmListPane& pane;
        Actions const& actions;
        OnlineSettings& settings;
    };
    explicit OnlineSearchActions(Parts const& parts, QObject* parent = nullptr);
    ~OnlineSearchActions() override;

    /// What runs is cancelled.
    void CloseSearch();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
