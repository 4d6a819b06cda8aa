#include "Desktop/TextHelp/TextHelpView.h"

#include "Desktop/TextHelp/AlternativeButton.h"
#include "Desktop/TextHelp/TextHelpTexts.h"
#include "Desktop/Words/ErrorWords.h"

#include "Gui/KLabel.h"
#include "Gui/Style.h"
#include "Subtitles/Entities/SubtitleTextSettings.h"

#include <QEvent>
#include <QVBoxLayout>
#include <QVariant>

#include <array>

namespace Korvex::Desktop
{

namespace
{

constexpr std::size_t MOST_LINES = 5;
constexpr std::size_t MOST_ALTERNATIVES = 3;
constexpr std::size_t MOST_STAND_INS = 2;
constexpr int SECTION_SPACING = 10;
constexpr int LINE_SPACING = 2;

char const* const DIM = "dim";
char const* const WARNING = "warning";

/// A label for sentences that may take several lines.
QLabel* MakeNote(char const* name, char const* role, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setProperty("role", QLatin1String(role));
    label->setWordWrap(true);
    // Texts of files and names of fonts are no markup, whatever they look like.
    label->setTextFormat(Qt::PlainText);
    label->hide();
    return label;
}

bool IsDefaultFont(std::string const& family)
{
    QString const usual = Converter::Subtitles::Entities::SubtitleTextSettings().font.family();
    return usual.compare(QString::fromStdString(family), Qt::CaseInsensitive) == 0;
}

void ShowNote(QLabel& label, QString const& text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

} // namespace

class TextHelpView::Impl
{
public:
    explicit Impl(TextHelpView& owner)
        : sample(new QFrame(&owner)),
          detection(MakeNote("detectionLabel", DIM, &owner)),
          replacedBytes(MakeNote("replacedBytesLabel", WARNING, &owner)),
          alternativesTitle(MakeNote("alternativesLabel", DIM, &owner)),
          missingFont(MakeNote("missingFontLabel", WARNING, &owner)),
          standIns(MakeNote("standInsLabel", DIM, &owner)),
          unavailable(MakeNote("unavailableLabel", WARNING, &owner)),
          failure(MakeNote("failureLabel", WARNING, &owner))
    {
        sample->setObjectName(QStringLiteral("textSample"));
        auto* const sampleLayout = new QVBoxLayout(sample);
        sampleLayout->setSpacing(LINE_SPACING);
        for (KLabel*& line : lines)
        {
            line = new KLabel(sample);
            line->setTextFormat(Qt::PlainText);
            sampleLayout->addWidget(line);
        }

        auto* const layout = new QVBoxLayout(&owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(SECTION_SPACING);
        for (QWidget* const widget : std::initializer_list<QWidget*>{failure, sample, detection, replacedBytes})
            layout->addWidget(widget);
        layout->addWidget(alternativesTitle);
        auto* const buttonLayout = new QVBoxLayout;
        buttonLayout->setSpacing(SECTION_SPACING / 2);
        for (AlternativeButton*& button : alternatives)
        {
            button = new AlternativeButton(&owner);
            buttonLayout->addWidget(button);
            QObject::connect(button, &AlternativeButton::clicked, &owner,
                             [&owner, chosen = button] { Q_EMIT owner.EncodingChosen(chosen->GetEncoding()); });
        }
        layout->addLayout(buttonLayout);
        for (QLabel* const label : {missingFont, standIns, unavailable})
            layout->addWidget(label);
    }

    void ShowSample(Proc::TextSample const& text)
    {
        for (std::size_t i = 0; i < lines.size(); ++i)
        {
            lines[i]->setVisible(i < text.lines.size());
            QString const line = i < text.lines.size() ? QString::fromStdString(text.lines[i]) : QString();
            lines[i]->setText(line);
            lines[i]->setAlignment(line.isRightToLeft() ? Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter
                                                        : Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
        }
        ShowNote(*detection, TextHelpTexts::DescribeDetection(text));
        ShowNote(*replacedBytes,
                 text.decoding.replacedBytes > 0 ? TextHelpTexts::DescribeReplacedBytes(text.decoding) : QString());
        for (std::size_t i = 0; i < alternatives.size(); ++i)
        {
            bool const isUsed = i < text.alternatives.size();
            if (isUsed)
                alternatives[i]->SetAlternative(text.alternatives[i]);
            alternatives[i]->setVisible(isUsed);
        }
    }

    void ShowFonts(TextHelp const& text)
    {
        // A font that nobody chose is nobody's loss.
        Util::ApplyWidgetStyle(missingFont, IsDefaultFont(text.fontFamily) ? DIM : WARNING, "role");
        ShowNote(*missingFont, text.fontStandIn.empty()
                                   ? QString()
                                   : TextHelpTexts::DescribeMissingFont(text.fontFamily, text.fontStandIn));
        QStringList sentences;
        for (std::size_t i = 0; i < std::min(text.fonts.standIns.size(), MOST_STAND_INS); ++i)
            sentences += TextHelpTexts::DescribeStandIn(text.fonts.family, text.fonts.standIns[i]);
        ShowNote(*standIns, sentences.join(QLatin1Char('\n')));
        ShowNote(*unavailable, text.fonts.unavailable.empty()
                                   ? QString()
                                   : TextHelpTexts::DescribeUnavailable(text.fonts.unavailable));
    }

    TextHelp help;
    QFrame* sample;
    std::array<KLabel*, MOST_LINES> lines{};
    QLabel* detection;
    QLabel* replacedBytes;
    QLabel* alternativesTitle;
    std::array<AlternativeButton*, MOST_ALTERNATIVES> alternatives{};
    QLabel* missingFont;
    QLabel* standIns;
    QLabel* unavailable;
    QLabel* failure;
};

TextHelpView::TextHelpView(QWidget* parent) : QWidget(parent), m_impl(std::make_unique<Impl>(*this))
{
    Clear();
}

TextHelpView::~TextHelpView() = default;

void TextHelpView::Show(TextHelp const& help)
{
    m_impl->help = help;
    Proc::TextSample const sample = help.sample.value_or(Proc::TextSample());
    m_impl->ShowSample(sample);
    m_impl->ShowFonts(help);
    ShowNote(*m_impl->failure, help.failure ? Describe(*help.failure) : QString());
    ShowNote(*m_impl->alternativesTitle, sample.alternatives.empty() ? QString() : tr("It could also read:"));
    m_impl->sample->setAccessibleName(tr("First lines of the text"));
    m_impl->sample->setVisible(help.sample.has_value());
    m_impl->detection->setVisible(help.sample.has_value());
    setVisible(!IsEmpty());
}

void TextHelpView::Clear()
{
    Show({});
}

bool TextHelpView::IsEmpty() const
{
    TextHelp const& help = m_impl->help;
    return !help.sample && !help.failure && help.fontStandIn.empty() && help.fonts.standIns.empty() &&
           help.fonts.unavailable.empty();
}

void TextHelpView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Show(TextHelp(m_impl->help));
    QWidget::changeEvent(event);
}

} // namespace Korvex::Desktop
