#include "Subtitles/Details/OnlineSearchWindowFields.h"

#include "Subtitles/Details/ImdbIdValidator.h"
#include "Subtitles/Details/LanguageSelector.h"

#include "Gui/Icons.h"
#include "Gui/Style.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int NUMBER_LENGTH = 4;      ///< of a season or an episode
constexpr int NUMBER_FIELD_WIDTH = 6; ///< characters
constexpr int IMDB_FIELD_WIDTH = 15;
constexpr int FIELD_PADDING = 24; ///< pixels, of both sides and the borders
constexpr int CAPTION_GAP = 2;
constexpr int ROW_GAP = 6;

/// Before the other fields are made: the Tab key goes in that order.
QWidget* Adopt(QWidget* title, QWidget* parent)
{
    if (title != nullptr)
        title->setParent(parent);
    return title;
}

/// A caption above its field.
QVBoxLayout* Stack(QLabel* caption, QWidget* field)
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(CAPTION_GAP);
    column->addWidget(caption);
    if (field != nullptr)
        column->addWidget(field);
    caption->setBuddy(field);
    return column;
}

void SetUpNumberField(QLineEdit& field)
{
    static QRegularExpression const DIGITS(QStringLiteral("[0-9]{0,%1}").arg(NUMBER_LENGTH));
    field.setValidator(new QRegularExpressionValidator(DIGITS, &field));
    field.setFixedWidth(NUMBER_FIELD_WIDTH * field.fontMetrics().averageCharWidth() + FIELD_PADDING);
}

} // namespace

OnlineSearchWindowFields::OnlineSearchWindowFields(QWidget* title, QWidget* parent)
    : QFrame(parent),
      m_title(Adopt(title, this)),
      m_titleLabel(new QLabel(this)),
      m_seasonLabel(new QLabel(this)),
      m_season(new QLineEdit(this)),
      m_episodeLabel(new QLabel(this)),
      m_episode(new QLineEdit(this)),
      m_episodeButton(new QPushButton(this)),
      m_search(new QPushButton(this)),
      m_imdbLabel(new QLabel(this)),
      m_imdb(new QLineEdit(this)),
      m_imdbWarning(new QAction(this)),
      m_imdbReason(new QLabel(this)),
      m_languagesLabel(new QLabel(this)),
      m_languages(new LanguageSelector(this)),
      m_file(new QCheckBox(this))
{
    NameWidgets();
    LayOut();
    Wire();
    ShowEpisodeFields();
    m_file->hide();
    Retranslate();
}

OnlineSearchWindowFields::~OnlineSearchWindowFields() = default;

void OnlineSearchWindowFields::NameWidgets()
{
    setObjectName(QStringLiteral("onlineSearchFields"));
    m_titleLabel->setObjectName(QStringLiteral("searchTitleLabel"));
    m_seasonLabel->setObjectName(QStringLiteral("seasonLabel"));
    m_season->setObjectName(QStringLiteral("seasonEdit"));
    m_episodeLabel->setObjectName(QStringLiteral("episodeLabel"));
    m_episode->setObjectName(QStringLiteral("episodeEdit"));
    m_episodeButton->setObjectName(QStringLiteral("showEpisodeButton"));
    m_search->setObjectName(QStringLiteral("searchButton"));
    m_imdbLabel->setObjectName(QStringLiteral("imdbLabel"));
    m_imdb->setObjectName(QStringLiteral("imdbEdit"));
    m_imdbReason->setObjectName(QStringLiteral("imdbReasonLabel"));
    m_languagesLabel->setObjectName(QStringLiteral("languagesLabel"));
    m_languages->setObjectName(QStringLiteral("languagesButton"));
    m_file->setObjectName(QStringLiteral("exactFileCheckBox"));
    for (QLabel* const caption : {m_titleLabel, m_seasonLabel, m_episodeLabel, m_imdbLabel, m_languagesLabel})
        Util::ApplyWidgetStyle(caption, QStringLiteral("dim"), "role");
    Util::ApplyWidgetStyle(m_episodeButton, QStringLiteral("flatButton"), "styleHint");
    for (QPushButton* const button : {m_episodeButton, m_search})
        button->setAutoDefault(false);
}

void OnlineSearchWindowFields::LayOut()
{
    SetUpNumberField(*m_season);
    SetUpNumberField(*m_episode);
    m_imdb->setValidator(new ImdbIdValidator(m_imdb));
    m_imdb->setFixedWidth(IMDB_FIELD_WIDTH * m_imdb->fontMetrics().averageCharWidth() + FIELD_PADDING);
    m_search->setIcon(GUI::MakeIcon(GUI::IconKind::Find));
    m_imdbWarning->setIcon(GUI::MakeIcon(GUI::IconKind::Warning, GUI::ColorRole::Error));
    m_imdb->addAction(m_imdbWarning, QLineEdit::TrailingPosition);
    m_imdbReason->setWordWrap(true);

    auto* const first = new QHBoxLayout;
    first->addLayout(Stack(m_titleLabel, m_title), 1);
    first->addLayout(Stack(m_seasonLabel, m_season));
    first->addLayout(Stack(m_episodeLabel, m_episode));
    first->addWidget(m_episodeButton, 0, Qt::AlignBottom);
    first->addWidget(m_search, 0, Qt::AlignBottom);
    auto* const second = new QHBoxLayout;
    second->addLayout(Stack(m_imdbLabel, m_imdb));
    second->addLayout(Stack(m_languagesLabel, m_languages), 1);
    second->addWidget(m_file, 0, Qt::AlignBottom);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ROW_GAP);
    column->addLayout(first);
    column->addLayout(second);
    column->addWidget(m_imdbReason);
}

void OnlineSearchWindowFields::Wire()
{
    for (QLineEdit* const field : {m_season, m_episode, m_imdb})
        connect(field, &QLineEdit::textEdited, this, &OnlineSearchWindowFields::Edited);
    connect(m_imdb, &QLineEdit::textChanged, this, [this] { JudgeImdbId(); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* before, QWidget* now)
            {
                if (before == m_imdb || now == m_imdb)
                    JudgeImdbId();
            });
    connect(m_episodeButton, &QPushButton::clicked, this,
            [this]
            {
                m_isEpisodeWanted = true;
                ShowEpisodeFields();
                m_season->setFocus(Qt::OtherFocusReason);
            });
    connect(m_search, &QPushButton::clicked, this, &OnlineSearchWindowFields::SearchRequested);
    connect(m_languages, &LanguageSelector::LanguagesEdited, this, &OnlineSearchWindowFields::LanguagesEdited);
    connect(m_file, &QCheckBox::clicked, this, &OnlineSearchWindowFields::Edited);
}

void OnlineSearchWindowFields::SetFields(Adapters::OnlineSearchFields const& fields)
{
    m_season->setText(fields.season);
    m_episode->setText(fields.episode);
    m_imdb->setText(fields.imdbId);
    m_file->setChecked(fields.isFileSearched);
    ShowEpisodeFields();
}

Adapters::OnlineSearchFields OnlineSearchWindowFields::GetFields() const
{
    return {m_season->text(), m_episode->text(), m_imdb->text(), m_isFileSearchAvailable && m_file->isChecked()};
}

void OnlineSearchWindowFields::SetFileSearchAvailable(bool isAvailable)
{
    m_isFileSearchAvailable = isAvailable;
    m_file->setVisible(isAvailable);
}

void OnlineSearchWindowFields::SetLanguages(std::set<LanguageID> const& languages)
{
    m_languages->SetLanguages(languages);
}

std::set<OnlineSearchWindowFields::LanguageID> const& OnlineSearchWindowFields::GetLanguages() const
{
    return m_languages->GetLanguages();
}

void OnlineSearchWindowFields::SetSearchEnabled(bool isEnabled)
{
    m_search->setEnabled(isEnabled);
}

void OnlineSearchWindowFields::SetSeries(bool isSeries)
{
    m_isSeries = isSeries;
    ShowEpisodeFields();
}

bool OnlineSearchWindowFields::IsSearchField(QWidget const* widget) const
{
    return widget == m_season || widget == m_episode || widget == m_imdb || widget == m_file;
}

/// Fields that the user is in do not vanish under the hand.
void OnlineSearchWindowFields::ShowEpisodeFields()
{
    m_isEpisodeWanted |= m_season->hasFocus() || m_episode->hasFocus();
    bool const areShown =
        m_isEpisodeWanted || m_isSeries || !m_season->text().isEmpty() || !m_episode->text().isEmpty();
    for (QWidget* const part : std::initializer_list<QWidget*>{m_seasonLabel, m_season, m_episodeLabel, m_episode})
        part->setVisible(areShown);
    m_episodeButton->setVisible(!areShown);
}

void OnlineSearchWindowFields::JudgeImdbId()
{
    ImdbIdValidator::Fault const fault = ImdbIdValidator::FindFault(m_imdb->text());
    // Nobody who still types wants to be told off for the digits to come.
    bool const isUnfinished = fault == ImdbIdValidator::Fault::TooShort && m_imdb->hasFocus();
    QString const reason = ImdbIdValidator::Explain(fault);
    m_imdbReason->setText(reason);
    m_imdbReason->setVisible(!reason.isEmpty());
    Util::ApplyWidgetStyle(m_imdbReason, isUnfinished ? QStringLiteral("dim") : QStringLiteral("error"), "role");
    m_imdbWarning->setVisible(!reason.isEmpty() && !isUnfinished);
    m_imdbWarning->setToolTip(reason);
    m_imdb->setAccessibleDescription(reason);
    Util::ApplyWidgetStyle(m_imdb, m_imdbWarning->isVisible() ? QStringLiteral("true") : QStringLiteral("false"),
                           "wrongInput");
}

void OnlineSearchWindowFields::Retranslate()
{
    m_titleLabel->setText(tr("&Title"));
    m_seasonLabel->setText(tr("&Season"));
    m_season->setAccessibleName(tr("Season"));
    m_episodeLabel->setText(tr("&Episode"));
    m_episode->setAccessibleName(tr("Episode"));
    m_episodeButton->setText(tr("&Episode..."));
    m_episodeButton->setToolTip(tr("Search for an episode of a series"));
    m_search->setText(tr("Sea&rch"));
    m_imdbLabel->setText(tr("I&MDb id"));
    m_imdb->setAccessibleName(tr("IMDb id"));
    m_imdb->setToolTip(tr("The film's number at IMDb, as in tt0123456"));
    m_languagesLabel->setText(tr("&Languages"));
    m_file->setText(tr("E&xactly this file"));
    m_file->setToolTip(tr("Finds subtitles by the fingerprint of the file, whatever its name is"));
    JudgeImdbId();
}

void OnlineSearchWindowFields::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
