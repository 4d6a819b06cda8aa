#include "Subtitles/Adapters/SubtitleController.h"
#include "Subtitles/Adapters/SubtitleImpl.h"

#include "Subtitles/Entities/SubtitleCodecs.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Conf/IFormatFile.h"

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;

class SubtitleControllerTest : public testing::Test
{
protected:
    SubtitleControllerTest()
    {
        m_collection->tracks.emplace(Entities::SubtitleTrackID(2u), Entities::SubtitleTrack(2u));
    }

    SubtitleImpl& Impl() { return dynamic_cast<SubtitleImpl&>(*m_collection->impl); }

    void Apply(SubtitleCollectionMode mode)
    {
        m_collection->mode = mode;
        m_controller.SetSubtitleCollection(m_collection);
        m_controller.ApplySettings();
    }

    SubtitleController m_controller;
    std::shared_ptr<SubtitleCollection> m_collection = std::make_shared<SubtitleCollection>();
};

TEST_F(SubtitleControllerTest, KnowsWhatTransportStreamsCarry)
{
    for (std::string const& format : {Conf::IFormatFile::FORMAT_MPEGTS, Conf::IFormatFile::FORMAT_MPEG2TS})
        EXPECT_EQ(m_controller.GetAllowedSoftCodecIds(format), (std::set<std::string>{"dvb_subtitle", "dvb_teletext"}));
    EXPECT_TRUE(m_controller.GetAllowedSoftCodecIds("MATROSKA").empty());
}

TEST_F(SubtitleControllerTest, KnowsFilesByExtensionAndPath)
{
    for (char const* extension : {"srt", "SRT", "ass", "ssa", "Smi"})
        EXPECT_TRUE(m_controller.IsFileExtensionSupported(extension)) << extension;
    for (char const* extension : {".srt", "vtt", "", "sr"})
        EXPECT_FALSE(m_controller.IsFileExtensionSupported(extension)) << extension;
    EXPECT_EQ(m_controller.GetValidExternalFormats(), (std::vector<std::string>{"srt", "ass", "ssa"}));
    EXPECT_TRUE(m_controller.PathIsDVD("/media/dvd://1"));
    EXPECT_FALSE(m_controller.PathIsDVD("/media/dvd/1"));
}

TEST_F(SubtitleControllerTest, EntitiesKnowTheCoresCodecNames)
{
    using Id = Conf::IFormatCodecSubtitle;
    for (std::string const& codec :
         {Id::CODEC_ID_SUBRIP, Id::CODEC_ID_SAMI, Id::CODEC_ID_TEXT, Id::CODEC_ID_WEBVTT, Id::CODEC_ID_MOV_TEXT})
        EXPECT_TRUE(Entities::IsRestylableSubtitleCodec(codec) && Entities::IsTextSubtitleCodec(codec)) << codec;
    for (std::string const& codec : {Id::CODEC_ID_ASS, Id::CODEC_ID_SSA})
        EXPECT_TRUE(!Entities::IsRestylableSubtitleCodec(codec) && Entities::IsTextSubtitleCodec(codec)) << codec;
    EXPECT_TRUE(Entities::IsRestylableSubtitleCodec("microdvd"));
    EXPECT_FALSE(Entities::IsTextSubtitleCodec(Id::CODEC_ID_HDMV_PGS_SUBTITLE));
}

TEST_F(SubtitleControllerTest, AnUndecidedCollectionChangesNothing)
{
    m_collection->currentTrack = Entities::SubtitleTrackID(2u);
    Apply(SubtitleCollectionMode::SelectedTrack);
    auto const mixer = Impl().GetSubtitleMixerSettings();
    EXPECT_NE(mixer, nullptr);

    Apply(SubtitleCollectionMode::ModeNone);
    EXPECT_EQ(Impl().GetSubtitleMixerSettings(), mixer) << "nothing decided, nothing changed";
    m_controller.ClearSettings();
    EXPECT_EQ(Impl().GetSubtitleMixerSettings(), nullptr);
}

TEST_F(SubtitleControllerTest, LeavesAnotherImplementationsHolderAlone)
{
    class ForeignImpl final : public Entities::ISubtitleImpl
    {
    public:
        std::string GetImpl() const override { return "FOREIGN"; }
    };
    auto const foreign = std::make_shared<ForeignImpl>();
    m_controller.ApplySettings();
    m_collection->impl = foreign;
    Apply(SubtitleCollectionMode::AllSoftSubtitles);
    EXPECT_EQ(m_collection->impl, foreign);

    auto const own = std::make_shared<SubtitleImpl>();
    m_collection->impl = own;
    Apply(SubtitleCollectionMode::AllSoftSubtitles);
    EXPECT_EQ(m_collection->impl, own);
    EXPECT_NE(own->GetSubtitleSoftSettings(), nullptr);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
