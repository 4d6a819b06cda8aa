#pragma once

#include <QDialog>

#include <memory>

namespace Korvex::Desktop
{

class OnlineSettings;

/// What is set for the program as a whole: the subtitle service and the statistics. Files are read and written on
/// another thread. GUI thread.
class SettingsDialog final : public QDialog
{
    Q_OBJECT
public:
    /// `settings` has to outlive it.
    explicit SettingsDialog(OnlineSettings& settings, QWidget* parent = nullptr);
    ~SettingsDialog() override;

    /// Stores what was entered; the dialog stays open where that fails.
    void accept() override;

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
