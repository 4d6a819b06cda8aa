#include "Desktop/TextHelp/AlternativeButton.h"

#include "Desktop/TextHelp/TextHelpTexts.h"

#include "Gui/KLabel.h"
#include "Proc/TextSample.h"

#include <QVBoxLayout>
#include <QVariant>

namespace Korvex::Desktop
{

AlternativeButton::AlternativeButton(QWidget* parent) : QPushButton(parent), m_line(new KLabel), m_name(new KLabel)
{
    static constexpr int MARGIN_X = 10;
    static constexpr int MARGIN_Y = 6;
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN_X, MARGIN_Y, MARGIN_X, MARGIN_Y);
    layout->setSpacing(0);
    m_name->setProperty("role", QStringLiteral("dim"));
    for (KLabel* const label : {m_line, m_name})
    {
        label->setTextFormat(Qt::PlainText);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        layout->addWidget(label);
    }
}

AlternativeButton::~AlternativeButton() = default;

void AlternativeButton::SetAlternative(Proc::TextAlternative const& alternative)
{
    QString const line = QString::fromStdString(alternative.line);
    QString const name = TextHelpTexts::NameEncoding(alternative.encoding);
    m_encoding = QString::fromStdString(alternative.encoding);
    m_line->setText(line);
    m_line->setAlignment(line.isRightToLeft() ? Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter
                                              : Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
    m_name->setText(name);
    setAccessibleName(name + QStringLiteral(": ") + line);
}

QString AlternativeButton::GetEncoding() const
{
    return m_encoding;
}

QSize AlternativeButton::sizeHint() const
{
    return layout()->sizeHint();
}

QSize AlternativeButton::minimumSizeHint() const
{
    return layout()->minimumSize();
}

} // namespace Korvex::Desktop
