#include "Desktop/Window/SettingsOnlinePage.h"

#include "Desktop/Window/OnlineSettings.h"

#include "App/Configuration.h"
#include "Gui/KLabel.h"
#include "Gui/Style.h"

#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace Korvex::Desktop
{

namespace
{

constexpr char const* KEY_VARIABLE = "KORVEX_OPENSUBTITLES_API_KEY";

QString ToText(ioPath const& path)
{
    return QDir::toNativeSeparators(QString::fromStdString(path.utf8string()));
}

bool IsKeyFromEnvironment(App::Configuration const& configuration)
{
    return std::any_of(configuration.values.begin(), configuration.values.end(),
                       [](App::ConfiguredValue const& value) {
                           return value.variable == KEY_VARIABLE &&
                                  value.source == App::ConfigurationSource::Environment;
                       });
}

QString DescribeClient(App::Configuration const& configuration)
{
    bool const hasKey = !configuration.openSubtitlesApiKey.empty();
    if (App::UsesOpenSubtitlesVersion1(configuration))
        return hasKey ? SettingsOnlinePage::tr("version 1 of OpenSubtitles, because an API key is set.")
                      : SettingsOnlinePage::tr("version 1 of OpenSubtitles, because the configuration file says so. It "
                                               "answers nobody without an API key: enter one below.");
    return hasKey ? SettingsOnlinePage::tr("the older interface of OpenSubtitles, because the configuration file says "
                                           "so. The API key is not used.")
                  : SettingsOnlinePage::tr("the older interface of OpenSubtitles, because no API key is set.");
}

bool IsSameService(App::Configuration const& one, App::Configuration const& other)
{
    return one.openSubtitlesApiKey == other.openSubtitlesApiKey &&
           App::UsesOpenSubtitlesVersion1(one) == App::UsesOpenSubtitlesVersion1(other);
}

QLabel* MakeText(QWidget& parent, char const* name, char const* role)
{
    auto* const label = new QLabel(&parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (role != nullptr)
        Util::ApplyWidgetStyle(label, QLatin1String(role), "role");
    return label;
}

} // namespace

class SettingsOnlinePage::Form
{
public:
    Form(SettingsOnlinePage& page, ioPath file, ioPath folderBefore)
        : folder(std::move(folderBefore)),
          m_page(page),
          m_file(std::move(file))
    {
        SetNames();
        LayOut();
        Connect();
        Retranslate();
    }

    void ShowConfiguration(App::Configuration const& nowActive, App::Configuration const& nowStored)
    {
        m_active = std::make_unique<App::Configuration>(nowActive);
        stored = std::make_unique<App::Configuration>(nowStored);
        m_key->setEnabled(!IsKeyFromEnvironment(*stored));
        m_key->setText(m_key->isEnabled() ? QString::fromStdString(stored->openSubtitlesApiKey) : QString());
        Retranslate();
    }

    void ShowFailure(QString const& sentence)
    {
        m_failure->setText(sentence);
        m_failure->setVisible(!sentence.isEmpty());
    }

    [[nodiscard]] std::string GetKey() const { return m_key->text().trimmed().toStdString(); }

    [[nodiscard]] bool IsKeyUsable() const
    {
        std::string const key = GetKey();
        return std::all_of(key.begin(), key.end(), [](char c) { return c > ' ' && c < '\x7F'; });
    }

    [[nodiscard]] bool CanEditKey() const { return stored && m_key->isEnabled(); }

    void Retranslate()
    {
        m_keyLabel->setText(SettingsOnlinePage::tr("API &key:"));
        m_key->setAccessibleName(SettingsOnlinePage::tr("API key"));
        m_showsKey->setText(SettingsOnlinePage::tr("&Show"));
        m_folderLabel->setText(SettingsOnlinePage::tr("Fetched &files:"));
        m_folder->setAccessibleName(SettingsOnlinePage::tr("Folder for fetched files"));
        m_choose->setText(SettingsOnlinePage::tr("&Choose..."));
        m_usual->setText(SettingsOnlinePage::tr("&Usual folder"));
        m_version1Label->setText(SettingsOnlinePage::tr("Version 1:"));
        m_legacyLabel->setText(SettingsOnlinePage::tr("Older interface:"));
        m_addressHint->setText(
            SettingsOnlinePage::tr("The addresses are set in the configuration file \"%1\".").arg(ToText(m_file)));
        ShowService();
        ShowFolder();
        Judge();
    }

    ioPath folder;
    std::unique_ptr<App::Configuration> stored; ///< null until it has been read

private:
    void SetNames()
    {
        m_page.setObjectName(QStringLiteral("settingsOnlinePage"));
        m_key->setObjectName(QStringLiteral("apiKeyEdit"));
        m_showsKey->setObjectName(QStringLiteral("showKeyCheckBox"));
        m_folder->setObjectName(QStringLiteral("downloadFolderEdit"));
        m_choose->setObjectName(QStringLiteral("chooseDownloadFolderButton"));
        m_usual->setObjectName(QStringLiteral("usualDownloadFolderButton"));
        m_version1->setObjectName(QStringLiteral("version1Address"));
        m_legacy->setObjectName(QStringLiteral("legacyAddress"));
    }

    void LayOut()
    {
        constexpr int GAP = 8;
        m_key->setEchoMode(QLineEdit::Password);
        m_key->setEnabled(false);
        m_folder->setReadOnly(true);
        m_keyLabel->setBuddy(m_key);
        m_folderLabel->setBuddy(m_choose);
        for (KLabel* address : {m_version1, m_legacy})
            address->SetElideMode(Qt::ElideMiddle);

        auto* const keyRow = new QHBoxLayout;
        keyRow->addWidget(m_key, 1);
        keyRow->addWidget(m_showsKey);
        auto* const folderButtons = new QHBoxLayout;
        folderButtons->addWidget(m_choose);
        folderButtons->addWidget(m_usual);
        folderButtons->addStretch(1);
        // A form layout would leave too much room for texts of several lines.
        auto* const grid = new QGridLayout;
        grid->setColumnStretch(1, 1);
        grid->addWidget(m_keyLabel, 0, 0);
        grid->addLayout(keyRow, 0, 1);
        grid->addWidget(m_keyHint, 1, 1);
        grid->addWidget(m_folderLabel, 2, 0);
        grid->addWidget(m_folder, 2, 1);
        grid->addLayout(folderButtons, 3, 1);
        grid->addWidget(m_version1Label, 4, 0);
        grid->addWidget(m_version1, 4, 1);
        grid->addWidget(m_legacyLabel, 5, 0);
        grid->addWidget(m_legacy, 5, 1);
        grid->addWidget(m_addressHint, 6, 1);

        auto* const column = new QVBoxLayout(&m_page);
        for (QLabel* label : {m_client, m_next, m_problems})
            column->addWidget(label);
        column->addSpacing(GAP);
        column->addLayout(grid);
        column->addWidget(m_failure);
        column->addStretch(1);
        for (QLabel* label : {m_next, m_problems, m_failure})
            label->hide();
    }

    void Connect()
    {
        connect(m_key, &QLineEdit::textChanged, &m_page, [this] { Judge(); });
        connect(m_showsKey, &QCheckBox::toggled, &m_page,
                [this](bool isShown) { m_key->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password); });
        connect(m_choose, &QAbstractButton::clicked, &m_page, [this] { ChooseFolder(); });
        connect(m_usual, &QAbstractButton::clicked, &m_page,
                [this]
                {
                    folder = FindUsualSubtitlesFolder();
                    ShowFolder();
                });
    }

    void ShowService()
    {
        if (!stored)
            return;
        m_client->setText(SettingsOnlinePage::tr("In use: %1").arg(DescribeClient(*m_active)));
        m_next->setText(
            SettingsOnlinePage::tr("From the next start of the program on: %1").arg(DescribeClient(*stored)));
        m_next->setVisible(!IsSameService(*m_active, *stored));
        m_version1->setText(QString::fromStdString(m_active->openSubtitlesUrl));
        m_legacy->setText(QString::fromStdString(m_active->openSubtitlesLegacyUrl));
        QStringList problems;
        for (std::string const& problem : stored->problems)
            problems << QString::fromStdString(problem);
        m_problems->setText(problems.join(QLatin1Char('\n')));
        m_problems->setVisible(!problems.isEmpty());
    }

    void ShowFolder()
    {
        m_folder->setText(ToText(folder));
        m_folder->home(false);
        m_folder->setToolTip(m_folder->text());
        m_usual->setEnabled(folder != FindUsualSubtitlesFolder());
    }

    void ChooseFolder()
    {
        auto* const dialog = new QFileDialog(&m_page, SettingsOnlinePage::tr("Folder for fetched subtitle files"));
        dialog->setObjectName(QStringLiteral("downloadFolderDialog"));
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        dialog->setDirectory(QString::fromStdString(folder.utf8string()));
        connect(dialog, &QFileDialog::fileSelected, &m_page,
                [this](QString const& chosen)
                {
                    folder = ioPath(chosen.toStdString());
                    ShowFolder();
                });
        dialog->open();
    }

    void Judge()
    {
        bool const isUsable = IsKeyUsable();
        QString hint = SettingsOnlinePage::tr("It comes from the account pages of opensubtitles.com, is kept in the "
                                              "configuration file, and is used from the next start on.");
        if (stored && IsKeyFromEnvironment(*stored))
            hint =
                SettingsOnlinePage::tr("The variable %1 of the environment sets it.").arg(QLatin1String(KEY_VARIABLE));
        else if (!isUsable)
            hint = SettingsOnlinePage::tr("This is no API key: a key has no blanks and no special characters. Copy it "
                                          "again.");
        m_keyHint->setText(hint);
        Util::ApplyWidgetStyle(m_keyHint, isUsable ? QStringLiteral("dim") : QStringLiteral("error"), "role");
        ShowFailure({});
        Q_EMIT m_page.Edited();
    }

    SettingsOnlinePage& m_page;
    ioPath m_file;
    std::unique_ptr<App::Configuration> m_active;
    QLabel* m_client = MakeText(m_page, "clientLabel", nullptr);
    QLabel* m_next = MakeText(m_page, "nextClientLabel", "dim");
    QLabel* m_problems = MakeText(m_page, "configurationProblems", "warning");
    QLabel* m_keyLabel = new QLabel(&m_page);
    QLineEdit* m_key = new QLineEdit(&m_page);
    QCheckBox* m_showsKey = new QCheckBox(&m_page);
    QLabel* m_keyHint = MakeText(m_page, "apiKeyHint", "dim");
    QLabel* m_folderLabel = new QLabel(&m_page);
    QLineEdit* m_folder = new QLineEdit(&m_page);
    QPushButton* m_choose = new QPushButton(&m_page);
    QPushButton* m_usual = new QPushButton(&m_page);
    QLabel* m_version1Label = new QLabel(&m_page);
    KLabel* m_version1 = new KLabel(&m_page);
    QLabel* m_legacyLabel = new QLabel(&m_page);
    KLabel* m_legacy = new KLabel(&m_page);
    QLabel* m_addressHint = MakeText(m_page, "addressHint", "dim");
    QLabel* m_failure = MakeText(m_page, "settingsFailure", "error");
};

SettingsOnlinePage::SettingsOnlinePage(ioPath const& file, ioPath const& folder, QWidget* parent)
    : QWidget(parent),
      m_form(std::make_unique<Form>(*this, file, folder))
{
}

SettingsOnlinePage::~SettingsOnlinePage() = default;

void SettingsOnlinePage::ShowConfiguration(App::Configuration const& active, App::Configuration const& stored)
{
    m_form->ShowConfiguration(active, stored);
}

void SettingsOnlinePage::ShowFailure(QString const& sentence)
{
    m_form->ShowFailure(sentence);
}

bool SettingsOnlinePage::IsKeyChanged() const
{
    return m_form->CanEditKey() && m_form->GetKey() != m_form->stored->openSubtitlesApiKey;
}

bool SettingsOnlinePage::IsValid() const
{
    return m_form->IsKeyUsable();
}

std::string SettingsOnlinePage::GetKey() const
{
    return m_form->GetKey();
}

ioPath SettingsOnlinePage::GetFolder() const
{
    return m_form->folder;
}

void SettingsOnlinePage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_form)
        m_form->Retranslate();
    QWidget::changeEvent(event);
}

} // namespace Korvex::Desktop
