#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleStore.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"

#include "Core/FileSystem.h"

#include <gtest/gtest.h>

#include <QTextCodec>

#if defined(__linux__)
#include <csignal>
#include <sys/resource.h>
#endif

#include <cstdlib>
#include <filesystem>
#include <set>
#include <thread>
#include <tuple>
#include <vector>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

using Status = UseCases::IOnlineSearchController::Status;
namespace fs = std::filesystem;

QByteArray const SUBTITLE = "1\n00:00:01,000 --> 00:00:02,000\nHello.\n";

class SubtitleStoreTest : public ::testing::Test
{
protected:
    SubtitleStoreTest() : folder(*Core::CreateWorkFolder()) {}
    ~SubtitleStoreTest() override { Core::RemoveWorkFolder(folder); }

    ioPath const folder;
};

/// With a byte order mark.
QByteArray ToUtf16(char const* encoding, QString const& text)
{
    return QTextCodec::codecForName(encoding)->fromUnicode(text);
}

} // namespace

TEST(CleanFileNameTest, MakesAnyNameOneThatEverySystemTakes)
{
    QChar const overriding(0x202E);
    std::vector<std::tuple<QString, QString, QString>> const cases = {
        {"Movie.2019.1080p.srt", "srt", "Movie.2019.1080p.srt"},
        {"Movie.2019.1080p", "srt", "Movie.2019.1080p.srt"},
        {"Movie.SRT", "srt", "Movie.SRT"},
        {"Movie", "SUB", "Movie.sub"},
        {"../../etc/passwd", "srt", "passwd.srt"},
        {"C:\\Windows\\..\\x.srt", "srt", "x.srt"},
        {"a/b\\c/", "ass", "c.ass"},
        {"..", "srt", "subtitle.srt"},
        {"", "", "subtitle.srt"},
        {"/", "exe", "subtitle.srt"},
        {" . . ", "srt", "subtitle.srt"},
        {".srt", "ass", "subtitle.srt"},
        {".bashrc", "srt", "bashrc.srt"},
        {"Movie.srt. .", "srt", "Movie.srt"},
        {"Movie .srt", "srt", "Movie.srt"},
        {"Movie.srt.exe", "srt", "Movie.srt.exe.srt"},
        {"Movie", "../exe", "Movie.srt"},
        {"What? A \"quoted\" <movie>: 1*2|3.srt", "srt", "What_ A _quoted_ _movie__ 1_2_3.srt"},
        {QString("Mov") + QChar(0) + QChar(7) + "ie\n.srt", "srt", "Movie.srt"},
        {QString("Movie") + overriding + "trs.exe", "srt", "Movietrs.exe.srt"},
        {QString("half ") + QChar(0xD83D) + ".srt", "srt", "half _.srt"},
        {"con.srt", "srt", "_con.srt"},
        {"NUL.tar.srt", "srt", "_NUL.tar.srt"},
        {"LPT9 .forced.srt", "srt", "_LPT9 .forced.srt"},
        {QString::fromUtf8("com¹"), "srt", QString::fromUtf8("_com¹.srt")},
        {"Contact.srt", "srt", "Contact.srt"},
        {"file.srt:stream", "srt", "file.srt_stream.srt"},
        {QString::fromUtf8("Фильм 第1話 😀.ass"), "srt", QString::fromUtf8("Фильм 第1話 😀.ass")}};
    for (auto const& [name, extension, expected] : cases)
    {
        QString const clean = CleanFileName(name, extension);
        EXPECT_EQ(clean.toStdString(), expected.toStdString()) << name.toStdString();
        EXPECT_EQ(CleanFileName(clean, "ass"), clean);
    }
}

TEST(CleanFileNameTest, CutsLongNamesBetweenCharactersAndKeepsTheExtension)
{
    for (QString const& filler :
         {QString("x"), QString::fromUtf8("é"), QString::fromUtf8("話"), QString::fromUtf8("😀")})
    {
        for (int shift = 0; shift < 4; ++shift)
        {
            QString const clean = CleanFileName(QString(shift, 'a') + filler.repeated(300) + ".ass", "srt");
            EXPECT_LE(clean.toUtf8().size(), 200);
            EXPECT_GT(clean.toUtf8().size(), 195);
            EXPECT_TRUE(clean.endsWith(filler + ".ass")) << clean.toStdString();
        }
    }
    QString const blanks = CleanFileName("a" + QString(250, ' ') + "b.srt", "srt");
    EXPECT_EQ(blanks, "a.srt");
}

TEST(FindWhatItIsInsteadTest, KnowsWhatServersSendInPlaceOfSubtitles)
{
    QString const page =
        "<!-- cache --><!DOCTYPE HTML><html><head><title> Service\n \"unavailable\" &amp; gone</title>";
    QString const title = "an HTML page (\"Service 'unavailable' & gone\")";
    std::vector<std::pair<QByteArray, QString>> const cases = {
        {"", "an empty file"},
        {"\xEF\xBB\xBF \r\n\t", "an empty file"},
        {ToUtf16("UTF-16LE", "\r\n  "), "an empty file"},
        {QByteArray(100, '\0'), "an empty file"},
        {"\xEF\xBB\xBF\n" + page.toUtf8(), title},
        {ToUtf16("UTF-16LE", page), title},
        {ToUtf16("UTF-16BE", page).mid(2), title},
        {"<?xml version='1.0'?>\n<html><body>x", "an HTML page"},
        {"<HEAD><META charset=x></HEAD>", "an HTML page"},
        {"<h1>Forbidden</h1>", "an HTML page (\"Forbidden\")"},
        {"<?xml version='1.0'?><Error><Code>x</Code><Message>Access denied</Message></Error>",
         "an XML error (\"Access denied\")"},
        {R"({"message": "You have used up your quota", "remaining": 0})", "JSON (\"You have used up your quota\")"},
        {R"( {"errors": ["bad", "worse"], "status": 400})", "JSON (\"bad; worse\")"},
        {R"({"message": "cut o)", "JSON"},
        {"[]", "JSON"},
        {QByteArray("PK\x03\x04rest", 8), "a ZIP archive"},
        {"\x1F\x8B\x08", "a GZIP archive"},
        {"Rar!\x1A\x07\x01", "a RAR archive"},
        {QByteArray("MZ\x90\0\x03\0\0\0", 8), "a program"},
        {"Too many requests", "a notice (\"Too many requests\")"},
        {"Sorry, maximum download count for this address exceeded\n",
         "a notice (\"Sorry, maximum download count for this address exceeded\")"},
        {"1\n00:00:01,000 --> 00:10:00,000\nSupport us and become <b>VIP member</b>\nto remove all ads from "
         "www.OpenSubtitles.org\n",
         "an advertisement (\"Support us and become VIP member to remove all ads from www.OpenSubtitles.org\")"},
        {"{1}{9999}Your download limit for subtitles is used up|Buy a membership",
         "an advertisement (\"Your download limit for subtitles is used up|Buy a membership\")"},
        {"1\n00:00:01,000 --> 00:00:06,000\nDownload subtitles on OpenSubtitles, be a premium member\n\n"
         "2\n00:00:07,000 --> 00:10:00,000\nAdvertise your product here, contact www.OpenSubtitles.org today\n",
         "an advertisement (\"Download subtitles on OpenSubtitles, be a premium member\")"}};
    for (auto const& [bytes, expected] : cases)
        EXPECT_EQ(FindWhatItIsInstead(bytes).value_or("a subtitle").toStdString(), expected.toStdString())
            << bytes.left(80).constData();
}

TEST(FindWhatItIsInsteadTest, TakesEveryKindOfSubtitle)
{
    QByteArray const advertisement = "1\n00:00:01,000 --> 00:00:06,000\nBecome VIP member of www.OpenSubtitles.org\n\n";
    std::vector<QByteArray> const subtitles = {
        SUBTITLE,
        ToUtf16("UTF-16LE", SUBTITLE),
        ToUtf16("UTF-16BE", SUBTITLE).mid(2),
        "00:00:01,000 --> 00:00:02,000\n\xCF\xF0\xE8\xE2\xE5\xF2\n",
        "1\n00:00:01,000 --> 00:00:02,000\n\x82\xB1\x82\xF1\x82\xC9\x82\xBF\x82\xCD\n",
        "{1}{25}{y:i}Hello",
        "[0][20]Hello",
        "00:00:01:Hello",
        "[00:01.00]Hello",
        "[Script Info]\n",
        "<SAMI><HEAD><TITLE>x</TITLE></HEAD><BODY><SYNC Start=1><P>x</BODY></SAMI>",
        "<head></head><body><SYNC Start=1><P>x",
        "<?xml version='1.0'?><tt xmlns='http://www.w3.org/ns/ttml'><head/><body/></tt>",
        "WEBVTT\n\n00:01.000 --> 00:02.000\n<b>x</b>",
        "# VobSub index file, v7 (do not modify this line!)\n",
        QByteArray("\x00\x00\x01\xBA\x44", 5),
        "1\n00:00:01,000 --> 00:00:02,000\nThe limit is exceeded. Become a member!\n",
        "1\n00:00:01,000 --> 00:00:02,000\n<html> is a tag, {\"error\": 1} is JSON\n",
        "MZ is how his diary began\n00:00:01,000 --> 00:00:02,000",
        advertisement + SUBTITLE};
    for (QByteArray const& bytes : subtitles)
        EXPECT_FALSE(FindWhatItIsInstead(bytes))
            << bytes.constData() << ": " << FindWhatItIsInstead(bytes)->toStdString();
}

TEST(FindWhatItIsInsteadTest, RefusesNoRealFile)
{
    char const* const corpus = std::getenv("KORVEX_TEST_CORPUS");
    if (corpus == nullptr)
        GTEST_SKIP() << "KORVEX_TEST_CORPUS names no folder of subtitle files";
    int files = 0;
    for (auto const& entry : fs::recursive_directory_iterator(corpus))
    {
        QString const extension = QString::fromStdString(entry.path().extension().string()).mid(1);
        if (!entry.is_regular_file() || !IsSubtitleExtension(extension))
            continue;
        auto const bytes = Core::ReadFile(entry.path().string(), std::size_t(1) << 30U);
        ASSERT_TRUE(bytes);
        ++files;
        bool const isPicture = bytes->compare(0, 4, "GIF8") == 0;
        bool const isEmpty = bytes->size() <= 3;
        auto const instead = FindWhatItIsInstead(QByteArray::fromStdString(*bytes));
        EXPECT_EQ(instead.has_value(), isPicture || isEmpty)
            << entry.path() << ": " << instead.value_or(QString()).toStdString();
    }
    EXPECT_GT(files, 100);
}

TEST_F(SubtitleStoreTest, WritesIntoAFolderOfItsOwnMakingAndNeverOverANeighbour)
{
    ioPath const inner = folder / "new" / "also new";
    auto const first = StoreSubtitle(SUBTITLE, inner, QString::fromUtf8("../Фильм"));
    EXPECT_EQ(first.status, Status::Success);
    EXPECT_EQ(first.path, inner / "Фильм.srt");
    EXPECT_EQ(*Core::ReadFile(first.path, 1000), SUBTITLE.toStdString());

    fs::create_symlink(folder.utf8string() + "/elsewhere", (inner / "link.srt").utf8string());
    EXPECT_EQ(StoreSubtitle(SUBTITLE, inner, "link.srt").path, inner / "link (2).srt");
    EXPECT_FALSE(Core::PathExists(folder / "elsewhere"));
    EXPECT_EQ(Core::ListFolder(inner).size(), 3U);
}

TEST_F(SubtitleStoreTest, KeepsAllFilesOfOneNameStoredAtOnce)
{
    constexpr int THREADS = 8;
    constexpr int FILES = 25;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < THREADS; ++thread)
        threads.emplace_back(
            [this, thread]
            {
                for (int file = 0; file < FILES; ++file)
                {
                    auto const text = SUBTITLE + QByteArray::number(thread * FILES + file);
                    EXPECT_EQ(StoreSubtitle(text, folder, "x.srt").status, Status::Success);
                }
            });
    for (auto& thread : threads)
        thread.join();
    std::set<std::string> contents;
    for (std::string const& name : Core::ListFolder(folder))
        contents.insert(*Core::ReadFile(folder / name, 1000));
    EXPECT_EQ(contents.size(), std::size_t(THREADS * FILES));
}

TEST_F(SubtitleStoreTest, SaysWhyAFileCannotBeWritten)
{
    ASSERT_FALSE(Core::WriteFile(folder / "file", "x", false));
    auto const noFolder = StoreSubtitle(SUBTITLE, folder / "file", "x.srt");
    EXPECT_EQ(noFolder.status, Status::FileError);
    EXPECT_EQ(noFolder.error, "Failed to create temp directory");

#if defined(__linux__)
    // A folder that even the administrator may not write to.
    auto const readOnly = StoreSubtitle(SUBTITLE, "/proc/self", "x.srt");
    EXPECT_EQ(readOnly.status, Status::FileError);
    EXPECT_TRUE(readOnly.error.startsWith("Failed to open file in mode WriteOnly because: "))
        << readOnly.error.toStdString();
    EXPECT_FALSE(readOnly.error.endsWith(": ")) << readOnly.error.toStdString();

    // A limit on the size of files stands in for a full disk: writing stops after so many bytes.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit const small{10000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    auto const full = StoreSubtitle(SUBTITLE + QByteArray(50000, 'x'), folder, "big.srt");
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(full.status, Status::FileError);
    EXPECT_EQ(full.error.toStdString(),
              "Failed to write " + (folder / "big.srt").utf8string() + " because: File too large");
    EXPECT_EQ(Core::ListFolder(folder), std::vector<std::string>{"file"});
#endif
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
