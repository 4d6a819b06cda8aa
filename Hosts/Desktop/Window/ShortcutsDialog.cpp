#include "Desktop/Window/ShortcutsDialog.h"

#include "Desktop/Window/Actions.h"

#include "Gui/Style.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

namespace
{

void AddLine(QGridLayout& grid, QString const& keys, QString const& text)
{
    int const row = grid.rowCount();
    auto* keyLabel = new QLabel(keys);
    Util::ApplyWidgetStyle(keyLabel, QStringLiteral("dim"), "role");
    grid.addWidget(new QLabel(text), row, 0);
    grid.addWidget(keyLabel, row, 1);
}

/// Menu texts without their mnemonics, which stand in parentheses where a script has no letters to underline, and dots.
QString Clean(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("\\s*\\(&.\\)")));
    text.remove(QLatin1Char('&'));
    text.remove(QLatin1String("..."));
    return text;
}

QString FormatKey(Qt::Key key)
{
    return QKeySequence(key).toString(QKeySequence::NativeText);
}

} // namespace

ShortcutsDialog::ShortcutsDialog(Actions const& actions, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("shortcutsDialog"));
    setWindowTitle(tr("Keyboard shortcuts"));
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    constexpr int COLUMN_GAP = 32;
    grid->setHorizontalSpacing(COLUMN_GAP);
    grid->setColumnStretch(0, 1);
    for (QAction const* action : actions.ListAll())
        AddLine(*grid, action->shortcut().toString(QKeySequence::NativeText), Clean(action->text()));
    AddLine(*grid, FormatKey(Qt::Key_Return), tr("In the list: subtitles of the film"));
    AddLine(*grid, FormatKey(Qt::Key_Menu), tr("In the list: menu of the film"));
    AddLine(*grid, FormatKey(Qt::Key_Escape), tr("Close what is open"));

    auto* scroll = new QScrollArea(this);
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(content->sizeHint().width() + COLUMN_GAP);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int MAX_HEIGHT = 640;
    resize(sizeHint().width(), qMin(content->sizeHint().height() + buttons->sizeHint().height() + 60, MAX_HEIGHT));
}

ShortcutsDialog::~ShortcutsDialog() = default;

} // namespace Korvex::Desktop
