#include "Check.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleArchive.h"

#include <glog/logging.h>
#include <quazip.h>
#include <quazipfile.h>

#include <QBuffer>

#include <cstdint>

using namespace Korvex::Converter::Subtitles;

namespace
{

/// A set of two discs with its note, to begin from.
QByteArray MakeArchive()
{
    QBuffer device;
    QuaZip zip(&device);
    bool isDone = zip.open(QuaZip::mdCreate);
    for (char const* const name : {"set.nfo", "Movie.CD1.srt", "Movie.CD2.srt"})
    {
        QuaZipFile file(&zip);
        isDone = isDone && file.open(QIODevice::WriteOnly, QuaZipNewInfo(QString::fromLatin1(name))) &&
                 file.write(QByteArray(name).repeated(20)) > 0;
        file.close();
    }
    zip.close();
    Korvex::Fuzz::Require(isDone && zip.getZipError() == ZIP_OK);
    return device.data();
}

/// What begins as an archive is one. All else is a list of places in a sound archive, two bytes each, and what to put
/// there: flips of bits alone would hardly ever come upon an archive that can be opened.
QByteArray ReadInput(std::uint8_t const* data, std::size_t size)
{
    static QByteArray const SOUND = MakeArchive();
    if (size > 2 && data[0] == 'P' && data[1] == 'K')
        return {reinterpret_cast<char const*>(data), static_cast<int>(size)};
    QByteArray archive = SOUND;
    for (std::size_t at = 0; at + 2 < size; at += 3)
        archive[(data[at] << 8 | data[at + 1]) % archive.size()] = static_cast<char>(data[at + 2]);
    return archive;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/)
{
    FLAGS_minloglevel = google::GLOG_FATAL;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using Korvex::Fuzz::Require;
    QByteArray const archive = ReadInput(data, size);
    Details::OpenSubtitles::ArchiveWish wish;
    wish.fileName = QStringLiteral("Movie.CD2.srt");
    wish.format = QStringLiteral("srt");
    wish.discNumber = 2;
    wish.discCount = 2;
    for (QByteArray const& md5 : {QByteArray(), QByteArray(32, '0')})
    {
        wish.md5 = md5;
        auto const unpacked = Details::OpenSubtitles::UnpackSubtitle(archive, wish);
        bool const isDone = unpacked.status == UseCases::IOnlineSearchController::Success;
        Require(isDone || size > 2); // the sound one
        Require(isDone == unpacked.error.isEmpty());
        Require(isDone || (unpacked.bytes.isEmpty() && unpacked.fileName.isEmpty()));
        Require(unpacked.bytes.size() <= 16 << 20);
        Require(!unpacked.fileName.endsWith(QLatin1String(".nfo"), Qt::CaseInsensitive));
    }
    return 0;
}
