#include "Desktop/Window/ApplyReportDialog.h"

#include "Desktop/Films/ApplyToAll.h"
#include "Desktop/Window/MarkLabel.h"

#include "Gui/Style.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

namespace
{

void AddLine(QGridLayout& grid, ChoiceTransferred const& entry)
{
    int const row = grid.rowCount();
    auto* mark = new MarkLabel;
    mark->SetMark(entry.isChanged ? Mark::Success : Mark::Warning);
    auto* sentence = new QLabel(entry.sentence);
    sentence->setObjectName(QStringLiteral("applyReportSentence"));
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid.addWidget(mark, row, 0, Qt::AlignTop);
    grid.addWidget(sentence, row, 1);
}

} // namespace

ApplyReportDialog::ApplyReportDialog(QString const& source, std::vector<ChoiceTransferred> const& report,
                                     QWidget* parent)
    : QDialog(parent)
{
    constexpr QSize SIZE(560, 360);
    setObjectName(QStringLiteral("applyReportDialog"));
    setWindowTitle(tr("Applied to all films"));
    auto* title = new QLabel(tr("Subtitles as in \"%1\"").arg(source), this);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    Util::ApplyWidgetStyle(title, QStringLiteral("title"), "role");

    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setColumnStretch(1, 1);
    for (ChoiceTransferred const& entry : report)
        AddLine(*grid, entry);
    grid->setRowStretch(grid->rowCount(), 1);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setWidget(content);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(scroll, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(SIZE);
}

ApplyReportDialog::~ApplyReportDialog() = default;

} // namespace Korvex::Desktop
