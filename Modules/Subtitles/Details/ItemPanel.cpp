#include "Subtitles/Details/ItemPanel.h"

#include "Gui/KLabel.h"
#include "Gui/Style.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::SubtitleTrackID;

class ItemPanel::Impl
{
public:
    using Observer = Adapters::ISubtitleCollectionEventObserver;

    explicit Impl(ItemPanel& panel) : m_panel(panel)
    {
        NameWidgets();
        LayOut();
        Retranslate();
        WireList();
        WireButtons();
    }

    Core::EventHandlerList<Observer, Core::SyncExecutePolicy>& GetObservers() { return m_observers; }
    [[nodiscard]] SubtitleCollection& GetList() const { return *m_list; }
    [[nodiscard]] QCheckBox& GetApplyToAllBox() const { return *m_applyToAll; }

    void Retranslate()
    {
        m_panel.setAccessibleName(ItemPanel::tr("Subtitles of this film"));
        m_header->setText(ItemPanel::tr("Choose subtitles"));
        m_addLabel->setText(ItemPanel::tr("Add subtitles"));
        m_choose->setText(ItemPanel::tr("Choose file"));
        m_find->setText(ItemPanel::tr("Find file"));
        m_applyToAll->setText(ItemPanel::tr("Apply to all files"));
        m_applyToAll->setToolTip(ItemPanel::tr("Makes the same choice for every film of the list"));
        m_done->setText(ItemPanel::tr("Done"));
    }

private:
    void NameWidgets()
    {
        m_panel.setObjectName(QStringLiteral("itemPanel"));
        m_header->setObjectName(QStringLiteral("itemHeaderLabel"));
        m_list->setObjectName(QStringLiteral("itemSubtitleCollection"));
        m_addLabel->setObjectName(QStringLiteral("itemAddLabel"));
        m_choose->setObjectName(QStringLiteral("chooseButton"));
        m_find->setObjectName(QStringLiteral("findButton"));
        m_applyToAll->setObjectName(QStringLiteral("applyToAllCheckBox"));
        m_done->setObjectName(QStringLiteral("doneButton"));
        m_done->setDefault(true);
        Util::ApplyWidgetStyle(m_done, QStringLiteral("activeButton"), "styleHint");
    }

    void LayOut()
    {
        auto* const sources = new QHBoxLayout;
        sources->addWidget(m_choose, 1);
        sources->addWidget(m_find, 1);
        auto* const bottom = new QHBoxLayout;
        bottom->addWidget(m_applyToAll);
        bottom->addStretch();
        bottom->addWidget(m_done);

        auto* const column = new QVBoxLayout(&m_panel);
        column->addWidget(m_header);
        column->addWidget(m_list, 1);
        column->addWidget(m_addLabel);
        column->addLayout(sources);
        column->addLayout(bottom);
    }

    void WireList()
    {
        connect(m_list, &SubtitleCollection::NoSubtitlesSelected, &m_panel,
                [this] { Tell([](Observer* observer) { observer->OnNoSubtitlesSelected(); }); });
        connect(m_list, &SubtitleCollection::AllSoftSubtitlesSelected, &m_panel,
                [this] { Tell([](Observer* observer) { observer->OnAllSoftSubtitlesSelected(); }); });
        connect(m_list, &SubtitleCollection::SubtitleTrackSelected, &m_panel,
                [this](SubtitleTrackID const& id)
                { Tell([&](Observer* observer) { observer->OnSubtitleTrackSelected(id); }); });
        connect(m_list, &SubtitleCollection::ExtractSubtitleRequested, &m_panel,
                [this](SubtitleTrackID const& id)
                { Tell([&](Observer* observer) { observer->OnExtractSubtitleRequested(id); }); });
    }

    void WireButtons()
    {
        connect(m_choose, &QPushButton::clicked, &m_panel,
                [this] { Tell([](Observer* observer) { observer->OnChooseFileRequested(); }); });
        connect(m_find, &QPushButton::clicked, &m_panel,
                [this] { Tell([](Observer* observer) { observer->OnFindFileRequested("itemPanel"); }); });
        // Not toggled(): what a presenter pushes in is not told back.
        connect(m_applyToAll, &QCheckBox::clicked, &m_panel,
                [this](bool apply) { Tell([=](Observer* observer) { observer->OnApplyToAllFilesChanged(apply); }); });
        connect(m_done, &QPushButton::clicked, &m_panel,
                [this] { Tell([](Observer* observer) { observer->OnChoiceFinished(); }); });
    }

    template <typename Event>
    void Tell(Event const& event)
    {
        m_observers.Notify(event);
    }

    ItemPanel& m_panel;
    KLabel* m_header = new KLabel(&m_panel);
    SubtitleCollection* m_list = new SubtitleCollection(&m_panel);
    KLabel* m_addLabel = new KLabel(&m_panel);
    QPushButton* m_choose = new QPushButton(&m_panel);
    QPushButton* m_find = new QPushButton(&m_panel);
    QCheckBox* m_applyToAll = new QCheckBox(&m_panel);
    QPushButton* m_done = new QPushButton(&m_panel);
    Core::EventHandlerList<Observer, Core::SyncExecutePolicy> m_observers;
};

ItemPanel::ItemPanel() : m_impl(std::make_unique<Impl>(*this)) {}

ItemPanel::~ItemPanel() = default;

void ItemPanel::RegisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void ItemPanel::UnregisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void ItemPanel::AddSubtitleTrack(Entities::SubtitleTrack const& track)
{
    m_impl->GetList().AddTrack(track);
}

void ItemPanel::ClearTracks()
{
    m_impl->GetList().Clear();
}

void ItemPanel::SetApplyToAllFiles(bool apply)
{
    m_impl->GetApplyToAllBox().setChecked(apply);
}

void ItemPanel::SetCurrentTrack(SubtitleTrackID const& id)
{
    m_impl->GetList().SetCurrentTrack(id);
}

void ItemPanel::SetWithoutSubtitles()
{
    m_impl->GetList().SetWithoutSubtitles();
}

void ItemPanel::SetAllSoftSubtitles()
{
    m_impl->GetList().SetAllSoftSubtitles();
}

void ItemPanel::SetSoftSubAvailable(bool available)
{
    m_impl->GetList().SetSoftSubAvailable(available);
}

bool ItemPanel::GetApplyToAllFiles()
{
    return m_impl->GetApplyToAllBox().isChecked();
}

std::string ItemPanel::GetCurrentTitle()
{
    return m_impl->GetList().GetTitleOfChoice().toStdString();
}

void ItemPanel::Hide()
{
    hide();
}

void ItemPanel::SetTrackMenuHandler(SubtitleCollection::TrackMenuHandler const& handler)
{
    m_impl->GetList().SetTrackMenuHandler(handler);
}

void ItemPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_impl->Retranslate();
    KFrame::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
