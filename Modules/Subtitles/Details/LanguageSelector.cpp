#include "Subtitles/Details/LanguageSelector.h"

#include "Subtitles/Details/LanguageSelectorList.h"
#include "Subtitles/Details/LanguageSelectorMemory.h"
#include "Subtitles/Details/LanguageSelectorModel.h"

#include "Gui/ModalPopup.h"

#include <QEvent>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::Language::LanguageID;

LanguageSelector::LanguageSelector(QWidget* parent) : GUI::DropDownButton(parent)
{
    ShowLanguages();
    connect(this, &QAbstractButton::clicked, this, [this] { OpenList(); });
}

LanguageSelector::~LanguageSelector() = default;

void LanguageSelector::SetLanguages(std::set<LanguageID> const& languages)
{
    m_languages = languages;
    ShowLanguages();
}

void LanguageSelector::OpenList()
{
    if (m_popup)
        return;
    std::vector<LanguageID> likely = LanguageSelectorMemory::ListLikely();
    for (LanguageID const language : m_languages)
        if (std::find(likely.begin(), likely.end(), language) == likely.end())
            likely.push_back(language);
    auto* const list = new LanguageSelectorList(likely, m_languages);
    m_popup = new GUI::ModalPopup(window());
    m_popup->setObjectName(QStringLiteral("languagePopup"));
    connect(list, &LanguageSelectorList::Chosen, this, &LanguageSelector::SetLanguages);
    connect(m_popup, &GUI::ModalPopup::Closed, this, [this, before = m_languages] { OnListClosed(before); });
    list->setMinimumWidth(width());
    m_popup->SetPopup(list);
    m_popup->SetPopupPosition(mapTo(window(), rect().bottomLeft()));
    m_popup->show();
    m_popup->raise();
}

void LanguageSelector::OnListClosed(std::set<LanguageID> const& before)
{
    OnHideDropDown();
    if (m_popup)
        m_popup->deleteLater();
    m_popup = nullptr;
    if (m_languages != before)
        Q_EMIT LanguagesEdited(m_languages);
}

void LanguageSelector::ShowLanguages()
{
    QStringList names;
    for (LanguageID const language : m_languages)
        names << QString::fromStdString(Entities::Language::GetDisplayText(language));
    names.sort(Qt::CaseInsensitive);
    QString const text =
        names.isEmpty() ? LanguageSelectorModel::GetAllLanguagesText() : names.join(QLatin1String(", "));
    setText(text);
    setAccessibleName(tr("Languages: %1").arg(text));
}

void LanguageSelector::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ShowLanguages();
    GUI::DropDownButton::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
