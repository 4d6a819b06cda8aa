#include "Subtitles/Details/SubtitleSourceSelector.h"

#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QVBoxLayout>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int MARGIN = 8;

} // namespace

SubtitleSourceSelector::SubtitleSourceSelector(QWidget* parent)
    : QFrame(parent),
      m_chooseButton(new QPushButton),
      m_findButton(new QPushButton)
{
    m_chooseButton->setObjectName(QStringLiteral("chooseButton"));
    m_findButton->setObjectName(QStringLiteral("findButton"));

    auto* const frame = new QFrame;
    frame->setObjectName(QStringLiteral("chooseButtonFrame"));
    auto* const buttons = new QVBoxLayout(frame);
    buttons->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    buttons->addWidget(m_chooseButton);
    buttons->addWidget(m_findButton);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);
    setFocusProxy(m_chooseButton);

    connect(m_chooseButton, &QPushButton::clicked, this, &SubtitleSourceSelector::ChooseFileRequested);
    connect(m_findButton, &QPushButton::clicked, this, &SubtitleSourceSelector::FindFileRequested);

    QStyle* const style = QStyleFactory::create(QStringLiteral("Fusion"));
    style->setParent(this); // setStyle does not own it
    setStyle(style);
}

SubtitleSourceSelector::~SubtitleSourceSelector() = default;

void SubtitleSourceSelector::SetChooseButtonText(QString const& text)
{
    m_chooseButton->setText(text);
}

void SubtitleSourceSelector::SetFindButtonText(QString const& text)
{
    m_findButton->setText(text);
}

} // namespace Korvex::Converter::Subtitles::Details
