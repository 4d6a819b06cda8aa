#pragma once

#include "Subtitles/Entities/Language.h"

#include <QFrame>

#include <set>
#include <vector>

class QLineEdit;
class QListView;

namespace Korvex::Converter::Subtitles::Details
{

class LanguageSelectorModel;

/// What the language selector opens: a field to search in, and a list with a check box for each language. The field
/// keeps the focus; Up and Down move in the list, Enter checks what is marked there. GUI thread.
class LanguageSelectorList final : public QFrame
{
    Q_OBJECT
public:
    using LanguageID = Entities::Language::LanguageID;

    LanguageSelectorList(std::vector<LanguageID> const& likely, std::set<LanguageID> const& chosen);
    ~LanguageSelectorList() override;

Q_SIGNALS:
    /// By the user; empty for every language.
    void Chosen(std::set<LanguageID> const& languages);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Filter();
    void Toggle();
    void Retranslate();

    LanguageSelectorModel* m_model;
    QLineEdit* m_search;
    QListView* m_list;
};

} // namespace Korvex::Converter::Subtitles::Details
