#include "Support/WidgetSupport.h"

#include "Gui/LookAndFeelManager.h"

#include <QApplication>
#include <QDir>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>

QT_BEGIN_NAMESPACE
void PrintTo(QString const& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

namespace
{

std::unique_ptr<Korvex::GUI::LookAndFeelManager> lookAndFeel;
QtMessageHandler handlerOfQt = nullptr;

/// What Qt complains about on the way is a fault of the test or of what it tests: a style sheet that cannot be read, a
/// painter on nothing, a connection to what is not there.
void FailOnComplaints(QtMsgType type, QMessageLogContext const& context, QString const& text)
{
    bool const isOfTheMachine = text.startsWith(QLatin1String("This plugin does not support")) ||
                                text.startsWith(QLatin1String("QStandardPaths: "));
    if (!isOfTheMachine && (type == QtWarningMsg || type == QtCriticalMsg))
        ADD_FAILURE() << qPrintable(text);
    handlerOfQt(type, context, text);
}

} // namespace

namespace Korvex::Testing
{

App::ILookAndFeelManager& GetLookAndFeel()
{
    return *lookAndFeel;
}

void ForEachTheme(std::function<void(QString const& themeName)> const& body)
{
    App::Theme const before = lookAndFeel->GetTheme();
    for (App::Theme const theme : {App::Theme::Light, App::Theme::Dark})
    {
        QString const name = theme == App::Theme::Light ? QStringLiteral("light") : QStringLiteral("dark");
        SCOPED_TRACE(qPrintable(name));
        lookAndFeel->SetTheme(theme);
        body(name);
    }
    lookAndFeel->SetTheme(before);
}

void ShowAndWait(QWidget& widget)
{
    widget.show();
    widget.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
    QCoreApplication::processEvents();
}

QString AskForToolTip(QWidget& widget)
{
    QPoint const corner(2, 2);
    QHelpEvent event(QEvent::ToolTip, corner, widget.mapToGlobal(corner));
    QCoreApplication::sendEvent(&widget, &event);
    QString const text = QToolTip::isVisible() ? QToolTip::text() : QString();
    QToolTip::hideText();
    // The tip fades out; without this the next question would still see it.
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->windowType() == Qt::ToolTip)
            window->hide();
    return text;
}

void SaveScreenshot(QWidget& widget, QString const& name)
{
    QString const folder = qEnvironmentVariable("KORVEX_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    QString const path = QDir(folder).filePath(name + QStringLiteral(".png"));
    EXPECT_TRUE(QDir().mkpath(folder) && widget.grab().save(path)) << "Cannot write " << qPrintable(path);
}

} // namespace Korvex::Testing

int main(int argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    testing::InitGoogleMock(&argumentCount, arguments);
    // Never destroyed: the offscreen platform loses its screen when it is unloaded, and a search for leaks would report
    // that.
    static auto* const application = new QApplication(argumentCount, arguments);
    Q_UNUSED(application)
    handlerOfQt = qInstallMessageHandler(FailOnComplaints);
    lookAndFeel = std::make_unique<Korvex::GUI::LookAndFeelManager>(Korvex::App::Theme::Light);
    int const result = RUN_ALL_TESTS();
    lookAndFeel.reset();
    qInstallMessageHandler(nullptr);
    return result;
}
