#pragma once

#include "Support/OnlineServer/HttpMessage.h"

#include <QString>

namespace Korvex::Testing
{

struct FaultyRequest;

/// What is sent in place of a subtitle file: packed where the file in order is, else as it is.
[[nodiscard]] HttpReply SendInstead(HttpReply inOrder, FaultyRequest const& faulty, QByteArray const& bytes);

[[nodiscard]] QByteArray MakeAdvertisement();

/// Archives in place of the one in order; `fileName` is that of the wanted subtitle.
[[nodiscard]] QByteArray MakeBombArchive(QString const& fileName);
[[nodiscard]] QByteArray MakeLyingArchive(QString const& fileName);
[[nodiscard]] QByteArray MakeNestedArchive(QString const& fileName);
/// Names that lead out of any folder, that Windows reserves or misreads, and a link; the wanted bytes are in the first.
[[nodiscard]] QByteArray MakeEvilArchive(QString const& fileName);

} // namespace Korvex::Testing
