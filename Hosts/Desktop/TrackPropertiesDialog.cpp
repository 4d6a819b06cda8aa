#include "Desktop/TrackPropertiesDialog.h"

#include "Subtitles/Entities/Language.h"

#include "Gui/KComboBox.h"
#include "Gui/KLabel.h"
#include "Gui/Style.h"

#include <QCheckBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace Korvex::Desktop
{

namespace Language = Converter::Subtitles::Entities::Language;

using Language::LanguageID;

namespace
{

constexpr int WIDTH = 420;

/// How a language is shown and found.
struct Names
{
    LanguageID id = LanguageID::None;
    QString english;
    QString own;  ///< what its speakers call it; empty where that is the same, or Qt does not know
    QString both; ///< "German – Deutsch"
    std::string shortName;
};

/// The shortest name that the language has anywhere: Qt's name of a country's kind of it may name the country too.
QString FindOwnName(std::string const& localeName)
{
    QLocale const locale(QString::fromStdString(localeName));
    if (locale.language() == QLocale::C)
        return {};
    QString name = locale.nativeLanguageName();
    for (QLocale const& other : QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyCountry))
    {
        QString const otherName = other.nativeLanguageName();
        if (!otherName.isEmpty() && otherName.size() < name.size())
            name = otherName;
    }
    return name;
}

Names MakeNames(LanguageID id)
{
    Language::LanguageData const& language = Language::GetLanguageData(id);
    Names names{id, QString::fromStdString(language.displayName), FindOwnName(language.locale), {}, {}};
    names.shortName = language.shortNames.front();
    if (names.own.compare(names.english, Qt::CaseInsensitive) == 0)
        names.own.clear();
    names.both = names.own.isEmpty() ? names.english : QStringLiteral("%1 \u2013 %2").arg(names.english, names.own);
    return names;
}

/// In the order of the identifiers.
std::vector<Names> const& ListNames()
{
    static std::vector<Names> const LIST = []
    {
        std::vector<Names> list;
        for (LanguageID const id : Language::GetAllLanguages())
            list.push_back(MakeNames(id));
        return list;
    }();
    return LIST;
}

std::vector<Names> SortByEnglishName(std::vector<Names> list)
{
    std::sort(list.begin(), list.end(), [](Names const& a, Names const& b) { return a.english < b.english; });
    return list;
}

/// Null for `None`.
Names const* FindNames(LanguageID id)
{
    auto const& list = ListNames();
    auto const found = std::find_if(list.begin(), list.end(), [id](Names const& names) { return names.id == id; });
    return found == list.end() ? nullptr : &*found;
}

/// The languages that the user has set up for the system, the preferred one first.
std::vector<LanguageID> ListUsersLanguages()
{
    std::vector<LanguageID> languages;
    for (QString const& name : QLocale::system().uiLanguages())
    {
        LanguageID const id = Language::GetLanguageFromShortName(name.toStdString());
        if (id != LanguageID::None && std::find(languages.begin(), languages.end(), id) == languages.end())
            languages.push_back(id);
    }
    return languages;
}

bool IsThreeLetters(QString const& text)
{
    return text.size() == 3 && std::all_of(text.begin(), text.end(),
                                           [](QChar c) { return c >= QLatin1Char('a') && c <= QLatin1Char('z'); });
}

QString DescribeLanguage(std::string const& shortName)
{
    Names const* const names = FindNames(Language::GetLanguageFromShortName(shortName));
    return names == nullptr ? QString::fromStdString(shortName) : names->both;
}

} // namespace

std::optional<std::string> FindLanguage(QString const& written)
{
    QString const text = written.simplified();
    if (text.isEmpty())
        return std::string();
    // Kinds of one language share their speakers' name for it: the first counts.
    for (QString Names::*const name : {&Names::both, &Names::english, &Names::own})
    {
        for (Names const& names : ListNames())
        {
            if (text.compare(names.*name, Qt::CaseInsensitive) == 0)
                return names.shortName;
        }
    }
    QString const shortName = text.toLower();
    if (Names const* const names = FindNames(Language::GetLanguageFromShortName(shortName.toStdString())))
        return names->shortName;
    return IsThreeLetters(shortName) ? std::optional(shortName.toStdString()) : std::nullopt;
}

class TrackPropertiesDialog::Form
{
public:
    Form(TrackPropertiesDialog& dialog, QString const& fileName, TrackProperties const& properties)
        : m_dialog(dialog),
          m_fileName(fileName)
    {
        SetNames();
        LayOut();
        FillLanguages();
        m_language->setEditText(DescribeLanguage(properties.language));
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
        return {FindLanguage(m_language->currentText()).value_or(std::string()),
                m_title->text().simplified().toStdString(), m_isDefault->isChecked(), m_isForced->isChecked()};
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

    void FillLanguages()
    {
        m_language->setEditable(true);
        m_language->setInsertPolicy(QComboBox::NoInsert);
        m_language->completer()->setCompletionMode(QCompleter::PopupCompletion);
        m_language->completer()->setFilterMode(Qt::MatchContains);
        m_language->completer()->setCaseSensitivity(Qt::CaseInsensitive);
        m_language->addItem(QString());
        std::vector<LanguageID> const own = ListUsersLanguages();
        for (LanguageID const id : own)
            m_language->addItem(FindNames(id)->both);
        if (!own.empty())
            m_language->insertSeparator(m_language->count());
        for (Names const& names : SortByEnglishName(ListNames()))
            m_language->addItem(names.both);
        GUI::FixComboBox(m_language);
    }

    void JudgeLanguage()
    {
        bool const isKnown = FindLanguage(m_language->currentText()).has_value();
        m_hint->setText(isKnown ? QString()
                                : TrackPropertiesDialog::tr(
                                      "This language is not known: choose one from the list, or write its code, such "
                                      "as \"en\" or \"pt-br\"."));
        m_hint->setVisible(!isKnown);
        FitHeight();
        m_buttons->button(QDialogButtonBox::Ok)->setEnabled(isKnown);
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
