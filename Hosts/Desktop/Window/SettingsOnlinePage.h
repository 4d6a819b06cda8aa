#pragma once

#include "Core/ioPath.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <string>

namespace Korvex::App
{
struct Configuration;
} // namespace Korvex::App

namespace Korvex::Desktop
{

/// The page of the settings about the subtitle service: which client is in force and why, the API key, the addresses,
/// the folder for fetched files. Shows and holds what was entered; storing it is its owner's. GUI thread.
class SettingsOnlinePage final : public QWidget
{
    Q_OBJECT
public:
    /// @param file the configuration file
    SettingsOnlinePage(ioPath const& file, ioPath const& folder, QWidget* parent = nullptr);
    ~SettingsOnlinePage() override;

    /// @param active what this run of the program goes by
    /// @param stored what the next one will go by; its key is what can be edited
    void ShowConfiguration(App::Configuration const& active, App::Configuration const& stored);
    /// A sentence about the key; empty: none.
    void ShowFailure(QString const& sentence);

    /// The key may be stored: it was read, changed and is one.
    [[nodiscard]] bool IsKeyChanged() const;
    /// Nothing that was entered is wrong.
    [[nodiscard]] bool IsValid() const;
    [[nodiscard]] std::string GetKey() const;
    [[nodiscard]] ioPath GetFolder() const;

Q_SIGNALS:
    void Edited();

protected:
    void changeEvent(QEvent* event) override;

private:
    class Form;
    std::unique_ptr<Form> m_form;
};

} // namespace Korvex::Desktop
