#include "Subtitles/Fakes/FakeController.h"

#include "Subtitles/Entities/SubtitlePresenterSettings.h"
#include "Subtitles/UseCases/IEditingPresenter.h"
#include "Subtitles/UseCases/SubtitlesInteractor.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleEncoding;
using Entities::SubtitleTextSettings;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

/// Keeps what it was told to show.
class FakeEditingPresenter final : public IEditingPresenter
{
public:
    using Observer = IEditingPresenterEventObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    void FillEncodingComboBox() override { connecting += "encodings "; }
    void FillAligmentComboBox() override { connecting += "aligns "; }
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const&) override { connecting += "connect "; }
    void ClearConnectToWidgets() override { connecting += "disconnect "; }
    void SetFont(QFont const& value) override { look.font = value; }
    void SetTextColor(QColor const& value) override { look.textColor = value; }
    void SetOutlineColor(QColor const& value) override { look.outlineColor = value; }
    void SetEncoding(SubtitleEncoding value) override { encoding = value; }
    void SetAlign(Entities::SubtitleAlign value) override { look.align = value; }
    void SetSynchronizationOffset(double value) override { offset = value; }
    void SetPositionShift(int value) override { look.positionShift = value; }
    void FontEnabled(bool value) override { Enable("font", value); }
    void TextColorEnabled(bool value) override { Enable("text", value); }
    void OutlineColorEnabled(bool value) override { Enable("outline", value); }
    void EncodingEnabled(bool value) override { Enable("encoding", value); }
    void AlignEnabled(bool value) override { Enable("align", value); }
    void SynchronizationOffsetEnabled(bool value) override { Enable("offset", value); }
    void PositionShiftEnabled(bool value) override { Enable("shift", value); }
    void HideSubtitleCollectiondWidget(bool value) override { isListHidden = value; }

    Core::EventHandlerList<Observer> observers;
    SubtitleTextSettings look{99, QFont("Arial", 9), Qt::green, Qt::green, Entities::SubtitleAlign::Left};
    SubtitleEncoding encoding = SubtitleEncoding::CP932;
    double offset = 9.0;
    std::set<std::string> enabled;
    std::string connecting;
    bool isListHidden = false;

private:
    void Enable(std::string const& control, bool isEnabled)
    {
        if (isEnabled)
            enabled.insert(control);
        else
            enabled.erase(control);
    }
};

class SubtitlesInteractorTest : public testing::Test, public Entities::ISubtitlesInteractorEventObserver
{
protected:
    SubtitlesInteractorTest()
    {
        m_interactor.RegisterEventHandler(this);
        SubtitleTrack track(2u);
        track.encoding = SubtitleEncoding::KOI8R;
        track.synchronizationOffset = 1.5;
        m_collection->tracks.emplace(track.id, track);
        m_collection->mode = SubtitleCollectionMode::SelectedTrack;
        m_collection->currentTrack = track.id;
        m_collection->textSettings.positionShift = 4;
    }

    void OnSubtitlesChanged(Entities::SubtitleCollectionID collection) override { m_changed.push_back(collection); }

    SubtitleTrack& Track() { return m_collection->tracks.at(m_collection->currentTrack); }

    std::shared_ptr<SubtitleCollection> m_collection = std::make_shared<SubtitleCollection>();
    std::shared_ptr<FakeEditingPresenter> m_presenter = std::make_shared<FakeEditingPresenter>();
    std::shared_ptr<Testing::FakeController> m_controller = std::make_shared<Testing::FakeController>();
    SubtitlesInteractor m_interactor{m_presenter, m_controller};
    std::vector<Entities::SubtitleCollectionID> m_changed;
};

TEST_F(SubtitlesInteractorTest, ShowsTheCurrentTrack)
{
    m_interactor.SetSubtitleCollection(m_collection);
    EXPECT_EQ(m_presenter->enabled, (std::set<std::string>{"align", "offset", "shift"}));
    EXPECT_EQ(m_presenter->encoding, SubtitleEncoding::KOI8R);
    EXPECT_EQ(m_presenter->offset, 1.5);
    EXPECT_EQ(m_presenter->look, m_collection->textSettings);

    Track().styleEditable = true;
    Track().encodingEditable = true;
    m_interactor.SubtitleTrackSelected();
    EXPECT_EQ(m_presenter->enabled.size(), 7u);
}

TEST_F(SubtitlesInteractorTest, ShowsDefaultsWhereThereIsNothingToEdit)
{
    auto const expectDefaults = [this]
    {
        EXPECT_TRUE(m_presenter->enabled.empty());
        EXPECT_EQ(m_presenter->encoding, SubtitleEncoding::Auto);
        EXPECT_EQ(m_presenter->offset, 0.0);
        EXPECT_EQ(m_presenter->look, SubtitleTextSettings());
    };
    m_interactor.SetSubtitleCollection(m_collection);
    m_collection->withoutSubtitles = 1;
    m_interactor.SetWithoutSubtitles();
    expectDefaults();
    m_collection->withoutSubtitles = 0;
    m_interactor.SubtitleTrackSelected();
    m_collection->mode = SubtitleCollectionMode::AllSoftSubtitles;
    m_interactor.SetAllSoftSubtitles();
    expectDefaults();
    EXPECT_EQ(m_collection->textSettings.positionShift, 4) << "only shown";
}

TEST_F(SubtitlesInteractorTest, WritesEditsToTheTrackOrTheCollection)
{
    m_interactor.SetSubtitleCollection(m_collection);
    auto& editor = m_presenter->observers;
    editor.Notify([](auto* observer) { observer->OnFontChanged(QFont("Arial", 30)); });
    EXPECT_EQ(m_controller->calls, Testing::SETTINGS_MADE);
    EXPECT_EQ(m_changed, std::vector{m_collection->collectionId});
    editor.Notify([](auto* observer) { observer->OnTextColorChanged(Qt::red); });
    editor.Notify([](auto* observer) { observer->OnOutlineColorChanged(Qt::blue); });
    editor.Notify([](auto* observer) { observer->OnEncodingChanged(SubtitleEncoding::BIG5); });
    editor.Notify([](auto* observer) { observer->OnAlignChanged(Entities::SubtitleAlign::Top); });
    editor.Notify([](auto* observer) { observer->OnSynchronizationOffsetChanged(-2.0); });
    editor.Notify([](auto* observer) { observer->OnPositionShiftChanged(-7); });
    EXPECT_EQ(m_collection->textSettings,
              SubtitleTextSettings(-7, QFont("Arial", 30), Qt::red, Qt::blue, Entities::SubtitleAlign::Top));
    EXPECT_EQ(Track().encoding, SubtitleEncoding::BIG5);
    EXPECT_EQ(Track().synchronizationOffset, -2.0);
}

TEST_F(SubtitlesInteractorTest, AlwaysHasATrackToWriteInto)
{
    m_presenter->observers.Notify([](auto* observer) { observer->OnPositionShiftChanged(1); });
    EXPECT_TRUE(m_controller->calls.empty()) << "no collection yet";

    m_collection->currentTrack = SubtitleTrackID(9u);
    m_interactor.SetSubtitleCollection(m_collection);
    m_presenter->observers.Notify([](auto* observer) { observer->OnEncodingChanged(SubtitleEncoding::UTF8); });
    EXPECT_EQ(m_collection->tracks.at(SubtitleTrackID(9u)).encoding, SubtitleEncoding::UTF8);
    EXPECT_TRUE(m_collection->tracks.at(SubtitleTrackID(9u)).IsEmpty());
}

TEST_F(SubtitlesInteractorTest, TakesOverMediaInfoAndWidgets)
{
    m_interactor.SetSubtitleCollection(m_collection);
    auto const other = std::make_shared<SubtitleCollection>();
    other->tracks.emplace(SubtitleTrackID(5u), SubtitleTrack(5u));
    other->currentTrack = SubtitleTrackID(5u);
    auto const id = m_collection->collectionId;
    m_interactor.UpdateMediaInfo(other);
    EXPECT_EQ(m_collection->currentTrack, SubtitleTrackID(5u));
    EXPECT_EQ(m_collection->tracks.size(), 1u);
    EXPECT_EQ(m_collection->collectionId, id);
    EXPECT_EQ(m_presenter->encoding, SubtitleEncoding::Auto);

    m_interactor.ReconnectToWidgets({});
    EXPECT_EQ(m_presenter->connecting, "connect aligns encodings ");
    m_interactor.ExtractSubtitle();
    EXPECT_TRUE(m_presenter->isListHidden);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
