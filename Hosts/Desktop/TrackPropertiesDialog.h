#pragma once

#include "Desktop/Film.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace Korvex::Desktop
{

/// What the user says of an added subtitle file: language, title, marks. It cannot be accepted while the language is
/// none that is known. GUI thread.
class TrackPropertiesDialog final : public QDialog
{
    Q_OBJECT
public:
    /// @param fileName of the subtitle file; it stands in the track's title when none is given
    TrackPropertiesDialog(QString const& fileName, TrackProperties const& properties, QWidget* parent = nullptr);
    ~TrackPropertiesDialog() override;

    [[nodiscard]] TrackProperties GetProperties() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    class Form;
    std::unique_ptr<Form> m_form;
};

/// The short name of the language that the user wrote: its name in English or in the language itself, or a short name;
/// empty for an empty text. Not set when there is none. Any three letters are a short name.
[[nodiscard]] std::optional<std::string> FindLanguage(QString const& written);

} // namespace Korvex::Desktop
