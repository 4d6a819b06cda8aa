#include "Desktop/Window/AboutDialog.h"

#include "Gui/Style.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(tr("About Korvex Subtitles"));
    auto* title = new QLabel(QStringLiteral("Korvex Subtitles"), this);
    Util::ApplyWidgetStyle(title, QStringLiteral("title"), "role");
    auto* version = new QLabel(tr("Version %1").arg(QCoreApplication::applicationVersion()), this);
    Util::ApplyWidgetStyle(version, QStringLiteral("dim"), "role");
    auto* text =
        new QLabel(tr("Converts films with their subtitles: as tracks that can be switched on and off, or drawn "
                      "into the picture.\n\n"
                      "Free software under the GNU General Public License, version 3 or later. It comes "
                      "without any warranty.\n\n"
                      "It is built on Qt, FFmpeg and libass."),
                   this);
    text->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(version);
    layout->addWidget(text, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int WIDTH = 440;
    setMinimumWidth(WIDTH);
    text->setMinimumHeight(text->heightForWidth(WIDTH - 40));
}

AboutDialog::~AboutDialog() = default;

} // namespace Korvex::Desktop
