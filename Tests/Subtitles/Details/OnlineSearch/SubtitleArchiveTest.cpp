#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleArchive.h"

#include "Support/OnlineServer/Archives.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>

#include <random>
#include <vector>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

using Korvex::Testing::MakeZip;
using Members = std::vector<Korvex::Testing::ArchiveMember>;
using Status = UseCases::IOnlineSearchController::Status;

ArchiveWish MakeWish(QString const& name, QString const& format = "srt", int disc = 1, int discs = 1)
{
    return {name, format, {}, disc, discs};
}

/// The bytes of the chosen file, or the status of the failure.
std::string Take(Members const& entries, ArchiveWish const& wish)
{
    auto const unpacked = UnpackSubtitle(MakeZip(entries), wish);
    EXPECT_EQ(unpacked.error.isEmpty(), unpacked.status == Status::Success);
    if (unpacked.status == Status::Success)
        return unpacked.bytes.toStdString();
    return unpacked.status == Status::ServerError ? "ServerError" : "FileError";
}

} // namespace

TEST(SubtitleArchiveTest, ChoosesTheFileThatIsMeant)
{
    Members const discs = {{"info.nfo", "n"},
                           {"sub/Movie.CD2.srt", "two"},
                           {"sub/Movie.CD1.srt", "one"},
                           {"Movie.CD1.sub", "one of the other format"}};
    EXPECT_EQ(Take(discs, MakeWish("Movie.CD2.srt")), "two");
    EXPECT_EQ(Take(discs, MakeWish("MOVIE.cd1.SRT")), "one");
    EXPECT_EQ(Take(discs, MakeWish("other.srt", "srt", 2, 2)), "two");
    EXPECT_EQ(Take(discs, MakeWish("other.sub", "sub")), "one of the other format");
    EXPECT_EQ(Take(discs, MakeWish("other.srt")), "ServerError") << "two are equally good";
    EXPECT_EQ(Take(discs, MakeWish("Movie.CD2.ass", "ass")), "ServerError");
    EXPECT_EQ(Take(discs, MakeWish("info.nfo", "nfo")), "ServerError");
    EXPECT_EQ(Take({{"b.srt", "second"}, {"A.srt", "first"}}, MakeWish("x", "srt", 2, 2)), "second");
    EXPECT_EQ(Take({{"x.srt", "first of two"}, {"x.srt", "second"}}, MakeWish("x.srt")), "first of two");
    EXPECT_EQ(Take({{"readme.txt", "?"}}, MakeWish("x.srt")), "ServerError");
    EXPECT_EQ(Take({{"readme.txt", "?"}, {"film.sami", "text"}}, MakeWish("x", "smi")), "text");

    ArchiveWish wish = MakeWish("Movie.CD2.srt");
    wish.md5 = QCryptographicHash::hash("one", QCryptographicHash::Md5).toHex().toUpper();
    EXPECT_EQ(Take(discs, wish), "one") << "the hash decides against the name";
    wish.md5 = QByteArray(32, '0');
    EXPECT_EQ(Take(discs, wish), "two");
}

TEST(SubtitleArchiveTest, TakesNamesOfUnknownCodePagesForWhatTheyAre)
{
    QString const wanted = QString::fromUtf8("Фильм S01E02.srt");
    Members const entries = {{"\xD4\xE8\xEB\xFC\xEC S01E01.srt", "one"}, {"\xD4\xE8\xEB\xFC\xEC S01E02.srt", "two"}};
    EXPECT_EQ(Take(entries, MakeWish(wanted)), "two");
    EXPECT_EQ(Take({{"x.srt", "x"}, {wanted.toUtf8(), "plain"}}, MakeWish(wanted)), "plain");
    EXPECT_EQ(Take({{"x.srt", "x"}, {wanted.toUtf8(), "marked", 0, 0x0800}}, MakeWish(wanted)), "marked");
    EXPECT_EQ(Take({{"", "nameless"}}, MakeWish(wanted)), "nameless");
    auto const hostile = UnpackSubtitle(MakeZip({{"../../\xFF\xFE/etc/x.srt", "x"}}), MakeWish("x.srt"));
    EXPECT_EQ(hostile.bytes, "x");
}

TEST(SubtitleArchiveTest, LeavesAsideWhatIsNoFileToTake)
{
    constexpr quint32 LINK = 0xA1FFU << 16U;
    constexpr quint32 PIPE = 0x1180U << 16U;
    Members const entries = {
        {"a/x.srt/", ""},
        {"b/x.srt", "/etc/passwd", LINK},
        {"c/x.srt", "", PIPE},
        {"d/x.srt", "secret", 0, 1},
        {"__MACOSX/x.srt", "m"},
        {"e/._x.srt", "m"},
        {"f/x.srt", MakeZip({{"x.srt", "inner"}})},
        {"x.srt.zip", "z"},
    };
    EXPECT_EQ(Take(entries, MakeWish("x.srt")), "ServerError");
    auto withFile = entries;
    withFile.push_back({"g/x.srt", "file"});
    EXPECT_EQ(Take(withFile, MakeWish("x.srt")), "file");
}

TEST(SubtitleArchiveTest, BelievesNoHeaderAndStopsAtItsLimits)
{
    QByteArray const text(100000, 'x');
    EXPECT_TRUE(Take({{"x.srt", text, 0, 0, true}}, MakeWish("x.srt")) == text.toStdString());
    EXPECT_EQ(Take({{"x.srt", text, 0, 0, true, 10}}, MakeWish("x.srt")), "FileError");
    EXPECT_EQ(Take({{"x.srt", text, 0, 0, true, 200000}}, MakeWish("x.srt")), "FileError");
    EXPECT_EQ(Take({{"x.srt", text, 0, 0, false, -1, 1}}, MakeWish("x.srt")), "FileError") << "wrong checksum";

    QByteArray const bomb(17 << 20, 'x');
    EXPECT_EQ(Take({{"x.srt", bomb, 0, 0, true}}, MakeWish("x.srt")), "ServerError");
    EXPECT_EQ(Take({{"x.srt", bomb, 0, 0, true, 1000}}, MakeWish("x.srt")), "FileError");
    Members many(5, {"bomb.srt", bomb.left(15 << 20), 0, 0, true});
    many.push_back({"x.srt", "wanted"});
    ArchiveWish wish = MakeWish("x.srt");
    wish.md5 = QCryptographicHash::hash("nothing", QCryptographicHash::Md5).toHex();
    EXPECT_EQ(Take(many, wish), "wanted") << "hashing gives up, the name is left";

    EXPECT_EQ(Take(Members(1000, {"x.srt", "x"}), MakeWish("x.srt")), "x");
    EXPECT_EQ(Take(Members(1001, {"x.srt", "x"}), MakeWish("x.srt")), "ServerError");
}

TEST(SubtitleArchiveTest, SaysWhatIsNoArchive)
{
    auto const unpack = [](QByteArray const& bytes)
    {
        auto const unpacked = UnpackSubtitle(bytes, MakeWish("x.srt"));
        EXPECT_EQ(unpacked.status, Status::FileError);
        return unpacked.error.toStdString();
    };
    EXPECT_EQ(unpack(""), "The archive cannot be opened: it is an empty file");
    EXPECT_EQ(unpack("<html><title>Quota</title>"), "The archive cannot be opened: it is an HTML page (\"Quota\")");
    EXPECT_EQ(unpack(MakeZip({})), "The archive cannot be opened: it is an empty ZIP archive");
    EXPECT_EQ(unpack("1\n00:00:01,000 --> 00:00:02,000\nx"),
              "The archive cannot be opened: it is damaged or no ZIP archive");
    QByteArray const archive = MakeZip({{"x.srt", "text"}});
    EXPECT_EQ(unpack(archive.chopped(30)), "The archive cannot be opened: it is damaged or no ZIP archive");
    EXPECT_EQ(unpack(archive.chopped(10)), "The archive cannot be opened: its directory is damaged");
    EXPECT_EQ(UnpackSubtitle("#!/bin/sh\n" + archive, MakeWish("x.srt")).bytes, "text") << "self-extracting";
}

TEST(SubtitleArchiveTest, GivesTheBytesOrAnErrorForEveryDamage)
{
    QByteArray text;
    for (int line = 0; line < 200; ++line)
        text += QByteArray::number(line * line) + "\n";
    QByteArray const archive = MakeZip({{"info.nfo", "n"}, {"x.srt", text, 0, 0, true}, {"y.srt", text}});
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round)
    {
        QByteArray damaged =
            archive.left(round % 4 == 0 ? static_cast<int>(random() % archive.size()) : archive.size());
        for (unsigned flips = 1 + random() % 3; flips > 0 && !damaged.isEmpty(); --flips)
            damaged[static_cast<int>(random() % damaged.size())] = static_cast<char>(random());
        auto const unpacked = UnpackSubtitle(damaged, MakeWish("x.srt"));
        EXPECT_TRUE(unpacked.status != Status::Success || unpacked.bytes == text);
        EXPECT_EQ(unpacked.status == Status::Success, unpacked.error.isEmpty());
    }
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
