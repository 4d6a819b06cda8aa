#pragma once

#include "Subtitles/Entities/Language.h"

#include "Gui/DropDownButton.h"

#include <QPointer>

#include <set>

namespace Korvex::GUI
{
class ModalPopup;
} // namespace Korvex::GUI

namespace Korvex::Converter::Subtitles::Details
{

/// A button that names the languages to search in and opens a list of all of them over its window. GUI thread.
class LanguageSelector final : public GUI::DropDownButton
{
    Q_OBJECT
public:
    using LanguageID = Entities::Language::LanguageID;

    explicit LanguageSelector(QWidget* parent = nullptr);
    ~LanguageSelector() override;

    /// Empty: every language. Emits nothing.
    void SetLanguages(std::set<LanguageID> const& languages);
    [[nodiscard]] std::set<LanguageID> const& GetLanguages() const { return m_languages; }

Q_SIGNALS:
    /// Once the list has closed, if the user has chosen others: whoever hears it may search anew.
    void LanguagesEdited(std::set<LanguageID> const& languages);

protected:
    void changeEvent(QEvent* event) override;

private:
    void OpenList();
    void OnListClosed(std::set<LanguageID> const& before);
    void ShowLanguages();

    std::set<LanguageID> m_languages;
    QPointer<GUI::ModalPopup> m_popup;
};

} // namespace Korvex::Converter::Subtitles::Details
