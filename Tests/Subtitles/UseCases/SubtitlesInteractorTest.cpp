#include "Subtitles/Fakes/FakeController.h"

#include "Subtitles/Entities/SubtitlePresenterSettings.h"
#include "Subtitles/UseCases/IEditingPresenter.h"
#include "Subtitles/UseCases/SubtitlesInteractor.h"

#include <utility>

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

/// Writes down in `calls` what it was told to show.
class FakeEditingPresenter final : public IEditingPresenter
{
public:
    using Observer = IEditingPresenterEventObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    void FillEncodingComboBox() override { calls += "encodings "; }
    void FillAligmentComboBox() override { calls += "aligns "; }
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const&) override { calls += "connect "; }
    void ClearConnectToWidgets() override { calls += "disconnect "; }
    void SetFont(QFont const& font) override { calls += "font=" + std::to_string(font.pointSize()) + ' '; }
    void SetTextColor(QColor const& color) override { calls += "text=" + color.name().toStdString() + ' '; }
    void SetOutlineColor(QColor const& color) override { calls += "outline=" + color.name().toStdString() + ' '; }
    void SetEncoding(SubtitleEncoding value) override { Note("encoding=", static_cast<int>(value)); }
    void SetAlign(Entities::SubtitleAlign value) override { Note("align=", static_cast<int>(value)); }
    void SetSynchronizationOffset(double seconds) override { Note("offset=", static_cast<int>(seconds * 10)); }
    void SetPositionShift(int lines) override { Note("shift=", lines); }
    void FontEnabled(bool value) override { Note("font", value); }
    void TextColorEnabled(bool value) override { Note("text", value); }
    void OutlineColorEnabled(bool value) override { Note("outline", value); }
    void EncodingEnabled(bool value) override { Note("encoding", value); }
    void AlignEnabled(bool value) override { Note("align", value); }
    void SynchronizationOffsetEnabled(bool value) override { Note("offset", value); }
    void PositionShiftEnabled(bool value) override { Note("shift", value); }
    void HideSubtitleCollectiondWidget(bool value) override { Note("hide", value); }

    std::string TakeCalls() { return std::exchange(calls, {}); }

    Core::EventHandlerList<Observer> observers;
    std::string calls;

private:
    void Note(char const* what, int value) { calls += what + std::to_string(value) + ' '; }
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

TEST_F(SubtitlesInteractorTest, ShowsTheCurrentTrackThenItsLook)
{
    m_interactor.SetSubtitleCollection(m_collection);
    EXPECT_EQ(m_presenter->TakeCalls(), "align1 encoding0 font0 outline0 text0 shift1 offset1 encoding=4 offset=15 "
                                        "font=20 align=0 outline=#000000 shift=4 text=#ffffff ");
    Track().styleEditable = true;
    Track().encodingEditable = true;
    m_interactor.SubtitleTrackSelected();
    EXPECT_EQ(m_presenter->TakeCalls().substr(0, 45), "align1 encoding1 font1 outline1 text1 shift1 ");
    m_collection->currentTrack = SubtitleTrackID(9u);
    m_interactor.SubtitleTrackSelected();
    EXPECT_EQ(m_presenter->TakeCalls(), "") << "no such track";
}

TEST_F(SubtitlesInteractorTest, ShowsDefaultsWhereThereIsNothingToEdit)
{
    std::string const defaults = "align0 encoding0 font0 outline0 shift0 offset0 text0 encoding=0 offset=0 "
                                 "font=20 align=0 outline=#000000 shift=0 text=#ffffff ";
    m_collection->withoutSubtitles = 1;
    m_interactor.SetSubtitleCollection(m_collection);
    EXPECT_EQ(m_presenter->TakeCalls(), defaults);
    m_collection->withoutSubtitles = 0;
    m_collection->mode = SubtitleCollectionMode::AllSoftSubtitles;
    m_interactor.SetAllSoftSubtitles();
    EXPECT_EQ(m_presenter->TakeCalls(), defaults);
    EXPECT_EQ(m_collection->textSettings.positionShift, 4) << "only shown";
}

TEST_F(SubtitlesInteractorTest, TakesOverMediaInfoAndWidgets)
{
    m_interactor.SetSubtitleCollection(m_collection);
    auto const other = std::make_shared<SubtitleCollection>();
    other->tracks.emplace(SubtitleTrackID(5u), SubtitleTrack(5u));
    other->currentTrack = SubtitleTrackID(5u);
    m_presenter->calls.clear();
    m_interactor.UpdateMediaInfo(other);
    EXPECT_EQ(m_collection->currentTrack, SubtitleTrackID(5u));
    EXPECT_EQ(m_collection->tracks.size(), 1u);
    EXPECT_NE(m_presenter->TakeCalls().find("encoding=0"), std::string::npos);

    m_interactor.ReconnectToWidgets({});
    m_interactor.ExtractSubtitle();
    m_interactor.ClearConnectToWidgets();
    EXPECT_EQ(m_presenter->TakeCalls(), "connect aligns encodings hide1 disconnect ");
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

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
