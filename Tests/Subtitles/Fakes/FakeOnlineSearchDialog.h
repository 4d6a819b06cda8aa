#pragma once

#include "Subtitles/Adapters/IAutocompleteControl.h"
#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include "Core/EventHandlerList.h"

#include <memory>
#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::Testing
{

class FakeAutocompleteControl final : public Adapters::IAutocompleteControl
{
public:
    using Observer = Adapters::IAutocompleteControlEventObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    void SetText(QString const& value) override { text = value; }
    QString GetText() const override { return text; }
    void ShowSuggestions(std::vector<QString> const& titles) override { suggestions = titles; }
    QWidget* GetWidget() override { return nullptr; }

    Core::EventHandlerList<Observer> observers;
    QString text;
    std::vector<QString> suggestions;
};

/// Keeps what it was told, and raises what a user would do through `observers`.
class FakeOnlineSearchDialog final : public Adapters::IOnlineSearchDialog
{
public:
    using Observer = Adapters::IOnlineSearchDialogEventObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    void Open(QString const& name) override
    {
        filmName = name;
        isOpen = true;
    }
    void Raise() override { ++raised; }
    void Close() override
    {
        if (std::exchange(isOpen, false))
            observers.Notify([](auto* observer) { observer->OnDialogClosed(); });
    }
    std::shared_ptr<Adapters::IAutocompleteControl> GetTitleControl() override { return title; }
    void SetFields(Adapters::OnlineSearchFields const& value) override { fields = value; }
    Adapters::OnlineSearchFields GetFields() const override { return fields; }
    void SetFileSearchAvailable(bool isAvailable) override { isFileSearchAvailable = isAvailable; }
    std::set<Entities::Language::LanguageID> GetLanguages() const override { return languages; }
    void SetResults(std::vector<Adapters::OnlineSearchRow> const& value) override { rows = value; }
    void SetState(Adapters::OnlineSearchState value, QString const& text, Adapters::OnlineSearchMark kind) override
    {
        state = value;
        sentence = text;
        mark = kind;
    }

    Core::EventHandlerList<Observer> observers;
    std::shared_ptr<FakeAutocompleteControl> title = std::make_shared<FakeAutocompleteControl>();
    bool isOpen = false;
    int raised = 0;
    QString filmName;
    Adapters::OnlineSearchFields fields;
    bool isFileSearchAvailable = false;
    std::set<Entities::Language::LanguageID> languages;
    std::vector<Adapters::OnlineSearchRow> rows;
    Adapters::OnlineSearchState state = Adapters::OnlineSearchState::Ready;
    Adapters::OnlineSearchMark mark = Adapters::OnlineSearchMark::None;
    QString sentence;
};

} // namespace Korvex::Converter::Subtitles::Testing
