#pragma once

#include "Desktop/Films/Film.h"

#include <QDialog>

#include <memory>

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

} // namespace Korvex::Desktop
