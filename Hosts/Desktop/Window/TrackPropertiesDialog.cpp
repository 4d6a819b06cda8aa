#include "Desktop/Window/TrackPropertiesDialog.h"

#include "Desktop/Words/LanguageNames.h"

#include "Gui/KComboBox.h"
#include "Gui/KLabel.h"
#include "Gui/Style.h"

#include <QCheckBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <optional>
#include <string>

namespace Korvex::Desktop
{

namespace
{

constexpr int WIDTH = 420;

} // namespace

class TrackPropertiesDialog::Form
{
public:
    Form(TrackPropertiesDialog& dialog, QString const& fileName, TrackProperties const& properties)
        : m_dialog(dialog),
          m_fileName(fileName),
          m_shortName(properties.language)
    {
        SetNames();
        LayOut();
        SetUpLanguages();
        m_title->setText(QString::fromStdString(properties.title));
        m_isDefault->setChecked(properties.isDefault);
        m_isForced->setChecked(properties.isForced);
        Retranslate();
        connect(m_language, &QComboBox::editTextChanged, &m_dialog, [this] { JudgeLanguage(); });
        connect(m_buttons, &QDialogButtonBox::accepted, &m_dialog, &QDialog::accept);
        connect(m_buttons, &QDialogButtonBox::rejected, &m_dialog, &QDialog::reject);
        m_language->setFocus();
        m_language->lineEdit()->selectAll();
    }

    [[nodiscard]] TrackProperties GetProperties() const
    {
        return {m_shortName.value_or(std::string()), m_title->text().simplified().toStdString(),
                m_isDefault->isChecked(), m_isForced->isChecked()};
    }

    void Retranslate()
    {
        m_dialog.setWindowTitle(TrackPropertiesDialog::tr("Subtitle track"));
        m_file->setText(m_fileName);
        m_languageLabel->setText(TrackPropertiesDialog::tr("&Language:"));
        m_language->lineEdit()->setPlaceholderText(TrackPropertiesDialog::tr("Not stated"));
        m_language->setAccessibleName(TrackPropertiesDialog::tr("Language"));
        m_titleLabel->setText(TrackPropertiesDialog::tr("&Title:"));
        m_title->setAccessibleName(TrackPropertiesDialog::tr("Title"));
        m_isDefault->setText(TrackPropertiesDialog::tr("On by &default"));
        m_isDefault->setToolTip(TrackPropertiesDialog::tr("Players show this track unless another one is chosen"));
        m_isForced->setText(TrackPropertiesDialog::tr("&Forced"));
        m_isForced->setToolTip(
            TrackPropertiesDialog::tr("Only what has to be read in any case: signs and foreign speech"));
        m_buttons->button(QDialogButtonBox::Ok)->setText(TrackPropertiesDialog::tr("OK"));
        m_buttons->button(QDialogButtonBox::Cancel)->setText(TrackPropertiesDialog::tr("Cancel"));
        FillLanguages();
        JudgeLanguage();
    }

private:
    void SetNames()
    {
        m_dialog.setObjectName(QStringLiteral("trackPropertiesDialog"));
        m_language->setObjectName(QStringLiteral("languageComboBox"));
        m_title->setObjectName(QStringLiteral("titleEdit"));
        m_isDefault->setObjectName(QStringLiteral("defaultCheckBox"));
        m_isForced->setObjectName(QStringLiteral("forcedCheckBox"));
        m_hint->setObjectName(QStringLiteral("languageHint"));
        Util::ApplyWidgetStyle(m_buttons->button(QDialogButtonBox::Ok), QStringLiteral("activeButton"), "styleHint");
        Util::ApplyWidgetStyle(m_buttons->button(QDialogButtonBox::Cancel), QStringLiteral("rejectButton"),
                               "styleHint");
    }

    void LayOut()
    {
        m_file->SetElideMode(Qt::ElideMiddle);
        m_hint->setWordWrap(true);
        m_languageLabel->setBuddy(m_language);
        m_titleLabel->setBuddy(m_title);

        auto* const form = new QFormLayout;
        form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        form->addRow(m_languageLabel, m_language);
        form->addRow(nullptr, m_hint);
        form->addRow(m_titleLabel, m_title);
        form->addRow(nullptr, m_isDefault);
        form->addRow(nullptr, m_isForced);

        auto* const column = new QVBoxLayout(&m_dialog);
        column->addWidget(m_file);
        column->addLayout(form);
        column->addStretch();
        column->addWidget(m_buttons);
        m_dialog.setMinimumWidth(WIDTH);
    }

    void SetUpLanguages()
    {
        m_language->setEditable(true);
        m_language->setInsertPolicy(QComboBox::NoInsert);
        m_language->completer()->setCompletionMode(QCompleter::PopupCompletion);
        m_language->completer()->setFilterMode(Qt::MatchContains);
        m_language->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    }

    /// What the user wrote and is no language stays as it is.
    void FillLanguages()
    {
        QSignalBlocker const blocker(m_language);
        QString const text = m_shortName ? DescribeLanguage(*m_shortName) : m_language->currentText();
        m_language->clear();
        m_language->addItem(QString());
        QStringList const own = ListUsersLanguages();
        m_language->addItems(own);
        if (!own.isEmpty())
            m_language->insertSeparator(m_language->count());
        m_language->addItems(ListAllLanguages());
        m_language->setEditText(text);
        GUI::FixComboBox(m_language); // it makes room for the longest
    }

    void JudgeLanguage()
    {
        m_shortName = FindLanguage(m_language->currentText());
        m_hint->setText(m_shortName ? QString()
                                    : TrackPropertiesDialog::tr(
                                          "This language is not known: choose one from the list, or write its code, "
                                          "such as \"en\" or \"pt-br\"."));
        m_hint->setVisible(!m_shortName);
        FitHeight();
        m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_shortName.has_value());
    }

    /// Layouts do not make a window higher for the sake of a text of several lines.
    void FitHeight()
    {
        QLayout& layout = *m_dialog.layout();
        layout.activate();
        int const height = layout.totalHeightForWidth(m_dialog.width());
        if (height > m_dialog.height())
            m_dialog.resize(m_dialog.width(), height);
    }

    TrackPropertiesDialog& m_dialog;
    QString m_fileName;
    std::optional<std::string> m_shortName; ///< of the language that is written; not set when it is none
    KLabel* m_file = new KLabel(&m_dialog);
    QLabel* m_languageLabel = new QLabel(&m_dialog);
    KComboBox* m_language = new KComboBox(&m_dialog);
    QLabel* m_hint = new QLabel(&m_dialog);
    QLabel* m_titleLabel = new QLabel(&m_dialog);
    QLineEdit* m_title = new QLineEdit(&m_dialog);
    QCheckBox* m_isDefault = new QCheckBox(&m_dialog);
    QCheckBox* m_isForced = new QCheckBox(&m_dialog);
    QDialogButtonBox* m_buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, &m_dialog);
};

TrackPropertiesDialog::TrackPropertiesDialog(QString const& fileName, TrackProperties const& properties,
                                             QWidget* parent)
    : QDialog(parent),
      m_form(std::make_unique<Form>(*this, fileName, properties))
{
}

TrackPropertiesDialog::~TrackPropertiesDialog() = default;

TrackProperties TrackPropertiesDialog::GetProperties() const
{
    return m_form->GetProperties();
}

void TrackPropertiesDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_form)
        m_form->Retranslate();
    QDialog::changeEvent(event);
}

} // namespace Korvex::Desktop
