#include "Desktop/Window/SettingsDialog.h"

#include "Desktop/Films/FileThread.h"
#include "Desktop/Window/OnlineSettings.h"
#include "Desktop/Window/SettingsOnlinePage.h"
#include "Desktop/Window/SettingsStatisticsPage.h"
#include "Desktop/Words/ErrorWords.h"

#include "App/Configuration.h"
#include "App/JsonLinesTracker.h"
#include "Gui/Style.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

namespace
{

constexpr QSize FIRST_SIZE(640, 460);

} // namespace

class SettingsDialog::Impl
{
public:
    Impl(SettingsDialog& dialog, OnlineSettings& settings)
        : m_dialog(dialog),
          m_settings(settings),
          m_file(App::FindConfigurationFile(&App::LookUpEnvironment)),
          m_online(new SettingsOnlinePage(m_file, settings.GetFolder(), &dialog)),
          m_statistics(new SettingsStatisticsPage(
              QDir::toNativeSeparators(QString::fromStdString(settings.GetStatistics().GetFile().utf8string())),
              settings.IsCounting(), &dialog))
    {
        LayOut();
        connect(m_online, &SettingsOnlinePage::Edited, &dialog, [this] { EnableOk(); });
        connect(m_statistics, &SettingsStatisticsPage::DeleteRequested, &dialog, [this] { DeleteStatistics(); });
        connect(m_buttons, &QDialogButtonBox::accepted, &dialog, &SettingsDialog::accept);
        connect(m_buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
        Retranslate();
        ReadConfiguration();
        ReadStatistics();
    }

    void Accept()
    {
        if (m_isStoring || !m_online->IsValid())
            return;
        m_settings.SetFolder(m_online->GetFolder());
        m_settings.SetCounting(m_statistics->IsCounting());
        if (m_online->IsKeyChanged())
            StoreKey();
        else
            m_dialog.QDialog::accept();
    }

    void Retranslate()
    {
        m_dialog.setWindowTitle(SettingsDialog::tr("Settings"));
        m_tabs->setTabText(0, SettingsDialog::tr("Online service"));
        m_tabs->setTabText(1, SettingsDialog::tr("Statistics"));
        m_buttons->button(QDialogButtonBox::Ok)->setText(SettingsDialog::tr("OK"));
        m_buttons->button(QDialogButtonBox::Cancel)->setText(SettingsDialog::tr("Cancel"));
    }

    /// Layouts do not make a window higher for the sake of a text of several lines.
    void FitHeight()
    {
        int const height = m_dialog.layout()->totalHeightForWidth(m_dialog.width());
        if (height > m_dialog.height())
            m_dialog.resize(m_dialog.width(), height);
    }

private:
    void LayOut()
    {
        m_dialog.setObjectName(QStringLiteral("settingsDialog"));
        m_tabs->setObjectName(QStringLiteral("settingsTabs"));
        m_tabs->addTab(m_online, QString());
        m_tabs->addTab(m_statistics, QString());
        Util::ApplyWidgetStyle(m_buttons->button(QDialogButtonBox::Ok), QStringLiteral("activeButton"), "styleHint");
        Util::ApplyWidgetStyle(m_buttons->button(QDialogButtonBox::Cancel), QStringLiteral("rejectButton"),
                               "styleHint");
        auto* const column = new QVBoxLayout(&m_dialog);
        column->addWidget(m_tabs, 1);
        column->addWidget(m_buttons);
        m_dialog.resize(FIRST_SIZE);
    }

    void ReadConfiguration()
    {
        m_fileThread.Add(FileThread::Urgency::Soon,
                         [this]() -> FileThread::Delivery
                         {
                             return [this, stored = App::LoadConfiguration()]
                             { m_online->ShowConfiguration(App::GetActiveConfiguration(), stored); };
                         });
    }

    void ReadStatistics()
    {
        m_fileThread.Add(FileThread::Urgency::Soon,
                         [this]() -> FileThread::Delivery
                         {
                             return [this, lines = m_settings.GetStatistics().Read()]
                             {
                                 if (lines)
                                     m_statistics->ShowLines(QString::fromStdString(*lines));
                                 else
                                     m_statistics->ShowFailure(Describe(lines.GetError()));
                             };
                         });
    }

    void DeleteStatistics()
    {
        m_fileThread.Add(FileThread::Urgency::Soon,
                         [this]() -> FileThread::Delivery
                         {
                             return [this, failure = m_settings.GetStatistics().Delete()]
                             {
                                 if (failure)
                                     m_statistics->ShowFailure(Describe(*failure));
                                 else
                                     m_statistics->ShowLines({});
                             };
                         });
    }

    void StoreKey()
    {
        m_isStoring = true;
        EnableOk();
        m_fileThread.Add(FileThread::Urgency::Soon,
                         [this, key = m_online->GetKey()]() -> FileThread::Delivery
                         { return [this, failure = App::StoreApiKey(m_file, key)] { FinishStoring(failure); }; });
    }

    void FinishStoring(Core::Status const& failure)
    {
        m_isStoring = false;
        EnableOk();
        if (!failure)
            return m_dialog.QDialog::accept();
        m_tabs->setCurrentWidget(m_online);
        m_online->ShowFailure(Describe(*failure));
    }

    void EnableOk() { m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_online->IsValid() && !m_isStoring); }

    SettingsDialog& m_dialog;
    OnlineSettings& m_settings;
    ioPath m_file;
    QTabWidget* m_tabs = new QTabWidget(&m_dialog);
    SettingsOnlinePage* m_online;
    SettingsStatisticsPage* m_statistics;
    QDialogButtonBox* m_buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, &m_dialog);
    bool m_isStoring = false;
    FileThread m_fileThread; ///< goes first
};

SettingsDialog::SettingsDialog(OnlineSettings& settings, QWidget* parent)
    : QDialog(parent),
      m_impl(std::make_unique<Impl>(*this, settings))
{
}

SettingsDialog::~SettingsDialog() = default;

void SettingsDialog::accept()
{
    m_impl->Accept();
}

void SettingsDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_impl)
        m_impl->Retranslate();
    QDialog::changeEvent(event);
}

bool SettingsDialog::event(QEvent* event)
{
    bool const isHandled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && m_impl)
        m_impl->FitHeight();
    return isHandled;
}

} // namespace Korvex::Desktop
