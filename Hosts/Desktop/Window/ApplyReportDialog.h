#pragma once

#include <QDialog>

#include <vector>

namespace Korvex::Desktop
{

struct ChoiceTransferred;

/// What "apply to all" did for each film, in sentences.
class ApplyReportDialog final : public QDialog
{
    Q_OBJECT
public:
    /// @param source the name of the film whose choice was applied
    ApplyReportDialog(QString const& source, std::vector<ChoiceTransferred> const& report, QWidget* parent = nullptr);
    ~ApplyReportDialog() override;
};

} // namespace Korvex::Desktop
