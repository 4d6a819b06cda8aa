#pragma once

#include "Support/OnlineServer/Faults.h"
#include "Support/OnlineServer/HttpMessage.h"
#include "Support/OnlineServer/LegacyService.h"
#include "Support/OnlineServer/OnlineLibrarySettings.h"
#include "Support/OnlineServer/RequestTarget.h"
#include "Support/OnlineServer/Version1Service.h"

namespace Korvex::Testing
{

/// Plays both services with made-up films (`FilmCatalog.cpp`). Version 1 wants `Api-Key: korvex-test-key` and a
/// User-Agent with name and version, the legacy interface any User-Agent.
///
///  title                    IMDb id   what is special
///  -----------------------  --------  ----------------------------------------------------------------------------
///  The Lantern Keeper 2014  99000101  4 en, 2 fr (CP1252; machine), de, es (ass), pt-BR, ru (CP1251), ja, zh-CN;
///                                     hash 0000000000020000, size 131072 (that many zero bytes)
///  Salt & Ember 2019        99000102  version 1 writes &amp;; the fr row has no file name; hash a0601fdf9f610000
///                                     (131,072 bytes, byte i is i & 255)
///  Harbour Lights 2008      99000103  two-disc sets en and de; shares the Lantern Keeper's hash
///  Ölberg 2016              99000104  de, en; a letter that only Unicode lowers
///  Northern Beacon 1987     99000105  original title and release in Cyrillic, CP1251, archive names in CP866
///  Night Ferry 2003         99000106  original title in Japanese; ja (ass), en
///  Io                       99000107  no year; two letters
///  Café Meridian 2011       99000108  fr (CP1252), en for the hearing impaired
///  The Quiet Orchard 1961      51987  IMDb id of five digits ("tt0051987"); no legacy id in the fr row
///  50% Chance of Rain 2017  99000110  percent sign
///  Étude in C# 2013         99000111  number sign
///  Paper Moons, Paper Seas  99000112  the year is "2005-2007", which is no number
///  The Long Catalogue 1999  99000113  120 en rows: three pages of 50
///  Signal Hill (series)     99000200  S01E01 99000201 (2 en, fr), S01E02 99000202 (en, de), S01E03, S02E01 (en)
///  Die Werft (series)       99000300  S01E01 99000301 (de), S01E02 99000302 (de, en)
///
/// The most popular English subtitle of The Lantern Keeper is subtitle 7100001, file 8200001, in the legacy interface
/// set 3300001, file 1950000001: "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL.srt". Links of version 1 work once
/// and are particular about upper and lower case, as nothing else here is. A quota of 20 downloads for each interface.
///
/// `<url>/faults/<name>` in place of `<url>` is the same with a fault (`GetFaults()`).
class OnlineLibrary
{
public:
    explicit OnlineLibrary(OnlineLibrarySettings const& settings = {});

    /// One thread at a time.
    [[nodiscard]] HttpReply Answer(HttpRequest const& request);

private:
    [[nodiscard]] HttpReply AnswerInOrder(HttpRequest const& request, RequestTarget const& target,
                                          ServiceContext const& context);

    Version1Service m_version1;
    LegacyService m_legacy;
};

} // namespace Korvex::Testing
