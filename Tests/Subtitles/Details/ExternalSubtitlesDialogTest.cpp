#include "Support/WidgetSupport.h"

#include "Subtitles/Details/ExternalSubtitlesDialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace Korvex::Converter::Subtitles::Details
{
namespace
{

/// Answers the dialog once it is up; says in which folder it stood and what it offered.
struct Shown
{
    QString folder;
    QStringList filters;
    bool takesSeveral = false;
};

std::vector<ioPath> Answer(ExternalSubtitlesDialog& dialog, Shown& shown,
                           std::function<void(QFileDialog&)> const& answer)
{
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll,
                     [&]
                     {
                         auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                         if (box == nullptr)
                             return;
                         poll.stop();
                         shown = {box->directory().absolutePath(), box->nameFilters(),
                                  box->fileMode() == QFileDialog::ExistingFiles};
                         answer(*box);
                     });
    poll.start(10);
    return dialog.ChooseFiles({"srt", "ssa"});
}

void Write(QString const& path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

TEST(ExternalSubtitlesDialogTest, OffersTheFormatsTakesSeveralFilesAndRemembersTheFolder)
{
    QTemporaryDir const folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.filePath("settings"));
    QString const films = QDir(folder.path()).canonicalPath() + "/Фильмы";
    ASSERT_TRUE(QDir().mkpath(films));
    QString const lower = films + "/a.srt";
    QString const upper = films + "/B.SSA";
    Write(lower);
    Write(upper);

    Shown shown;
    ExternalSubtitlesDialog first;
    auto const chosen = Answer(first, shown,
                               [&](QFileDialog& box)
                               {
                                   box.setDirectory(films);
                                   auto* const names = box.findChild<QLineEdit*>("fileNameEdit");
                                   ASSERT_NE(names, nullptr);
                                   names->setText("\"a.srt\" \"B.SSA\"");
                                   QTest::keyClick(names, Qt::Key_Return);
                               });
    EXPECT_EQ(chosen, (std::vector<ioPath>{lower.toStdString(), upper.toStdString()}));
    EXPECT_EQ(shown.filters, QStringList{"Subtitle files (*.srt *.SRT *.ssa *.SSA)"});
    EXPECT_TRUE(shown.takesSeveral);

    ExternalSubtitlesDialog second;
    EXPECT_TRUE(Answer(second, shown, [](QFileDialog& box) { box.reject(); }).empty());
    EXPECT_EQ(shown.folder, films);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "no dialog is left behind";
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details
