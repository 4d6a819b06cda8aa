#include "Desktop/Window/SettingsStatisticsPage.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

SettingsStatisticsPage::SettingsStatisticsPage(QString const& file, bool isCounting, QWidget* parent)
    : QWidget(parent),
      m_file(file),
      m_explanation(new QLabel(this)),
      m_switch(new QCheckBox(this)),
      m_recorded(new QLabel(this)),
      m_lines(new QPlainTextEdit(this)),
      m_delete(new QPushButton(this))
{
    setObjectName(QStringLiteral("settingsStatisticsPage"));
    m_explanation->setObjectName(QStringLiteral("statisticsExplanation"));
    m_switch->setObjectName(QStringLiteral("statisticsCheckBox"));
    m_recorded->setObjectName(QStringLiteral("statisticsRecorded"));
    m_lines->setObjectName(QStringLiteral("statisticsLines"));
    m_delete->setObjectName(QStringLiteral("deleteStatisticsButton"));

    m_explanation->setWordWrap(true);
    m_recorded->setWordWrap(true);
    m_recorded->setBuddy(m_lines);
    m_switch->setChecked(isCounting);
    m_lines->setReadOnly(true);
    m_lines->setTabChangesFocus(true);
    m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_delete->setEnabled(false);

    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_explanation);
    column->addWidget(m_switch);
    column->addWidget(m_recorded);
    column->addWidget(m_lines, 1);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_delete);
    row->addStretch(1);
    column->addLayout(row);
    connect(m_delete, &QAbstractButton::clicked, this, &SettingsStatisticsPage::DeleteRequested);
    Retranslate();
}

SettingsStatisticsPage::~SettingsStatisticsPage() = default;

bool SettingsStatisticsPage::IsCounting() const
{
    return m_switch->isChecked();
}

void SettingsStatisticsPage::ShowLines(QString const& lines)
{
    m_lines->setPlainText(lines);
    m_delete->setEnabled(!lines.isEmpty());
}

void SettingsStatisticsPage::ShowFailure(QString const& sentence)
{
    m_lines->setPlainText(sentence);
    m_delete->setEnabled(true);
}

void SettingsStatisticsPage::Retranslate()
{
    m_explanation->setText(
        tr("If you agree, the program counts how the online search is used: from where it is opened, which fields are "
           "filled in, how many searches find something, nothing or fail, and how many files are fetched. Names, "
           "folders and what you type are never recorded. The record stays on this computer; it is sent to nobody."));
    m_switch->setText(tr("&Count how the online search is used"));
    m_recorded->setText(tr("&Recorded in \"%1\":").arg(QString(m_file).replace(QLatin1Char('&'), QLatin1String("&&"))));
    m_lines->setPlaceholderText(tr("Nothing has been recorded."));
    m_lines->setAccessibleName(tr("What has been recorded"));
    m_delete->setText(tr("&Delete"));
}

void SettingsStatisticsPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

} // namespace Korvex::Desktop
