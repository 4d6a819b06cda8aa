#pragma once

#include <QDialog>

namespace Korvex::Desktop
{

/// Which version of the program this is, and under which licence.
class AboutDialog final : public QDialog
{
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent = nullptr);
    ~AboutDialog() override;
};

} // namespace Korvex::Desktop
