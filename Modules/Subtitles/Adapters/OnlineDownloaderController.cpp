#include "Subtitles/Adapters/OnlineDownloaderController.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QtEndian>

namespace Korvex::Converter::Subtitles::Adapters
{

namespace
{

constexpr qint64 BLOCK_BYTES = 65536;

/// The sum of the block's little-endian 64-bit words; empty when the block cannot be read whole.
std::optional<std::uint64_t> SumBlock(QFile& file, qint64 offset)
{
    if (!file.seek(offset))
        return std::nullopt;
    QByteArray const block = file.read(BLOCK_BYTES);
    if (block.size() != BLOCK_BYTES)
        return std::nullopt;
    std::uint64_t sum = 0;
    for (qint64 i = 0; i < BLOCK_BYTES; i += static_cast<qint64>(sizeof(quint64)))
        sum += qFromLittleEndian<quint64>(block.constData() + i);
    return sum;
}

} // namespace

/// The services' own way: size plus the words of the first and the last 64 KiB, modulo 2^64.
std::optional<UseCases::MediaFingerprint> OnlineDownloaderController::DetermineFingerprint(ioPath const& path) const
{
    QString const name = QString::fromStdString(path.utf8string());
    if (!QFileInfo(name).isFile()) // opening a pipe would wait for whoever writes to it
        return std::nullopt;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    qint64 const byteSize = file.size(); // once: a file that is still being written has another one the next moment
    if (byteSize < 2 * BLOCK_BYTES)
        return std::nullopt;
    auto const first = SumBlock(file, 0);
    auto const last = SumBlock(file, byteSize - BLOCK_BYTES);
    if (!first || !last)
        return std::nullopt;
    auto const size = static_cast<std::uint64_t>(byteSize);
    QString const hash = QStringLiteral("%1").arg(size + *first + *last, 16, 16, QLatin1Char('0'));
    return UseCases::MediaFingerprint{hash.toStdString(), size};
}

} // namespace Korvex::Converter::Subtitles::Adapters
