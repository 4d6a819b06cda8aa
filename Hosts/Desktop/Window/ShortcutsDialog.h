#pragma once

#include <QDialog>

namespace Korvex::Desktop
{

class Actions;

/// All keys of the program at a glance.
class ShortcutsDialog final : public QDialog
{
    Q_OBJECT
public:
    explicit ShortcutsDialog(Actions const& actions, QWidget* parent = nullptr);
    ~ShortcutsDialog() override;
};

} // namespace Korvex::Desktop
