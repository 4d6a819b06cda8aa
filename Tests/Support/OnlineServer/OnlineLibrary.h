#pragma once

#include "Support/OnlineServer/LegacyService.h"
#include "Support/OnlineServer/Version1Service.h"

namespace Korvex::Testing
{

/// Plays both services with made-up films (`FilmCatalog.cpp`). Version 1 wants `Api-Key: korvex-test-key` and a
/// User-Agent with name and version.
///
///  title                    IMDb id   what is special
///  -----------------------  --------  ----------------------------------------------------------------------------
///  The Lantern Keeper 2014  99000101  4 en, 2 fr (CP1252; machine), de, pt-BR, ru (CP1251), ja (ass);
///                                     hash 0000000000020000, size 131072 (that many zero bytes)
///  Salt & Ember 2019        99000102  version 1 writes &amp;; hash a0601fdf9f610000 (131,072 bytes, byte i is i & 255)
///  Harbour Lights 2008      99000103  two-disc sets en and de; shares the Lantern Keeper's hash
///  Ölberg 2016              99000104  de; a letter that only Unicode lowers
///  Northern Beacon 1987     99000105  ru: release in Cyrillic, CP1251; en
///  Café Meridian 2011       99000108  fr (CP1252), en for the hearing impaired
///  50% Chance of Rain 2017  99000110  percent sign
///  Étude in C# 2013         99000111  number sign
///  Signal Hill (series)               S01E01 99000201 (en, fr), S01E02 99000202 (en, de)
///
/// The most popular English subtitle of The Lantern Keeper is subtitle 7100001, file 8200001, in the legacy interface
/// set 3300001, file 1950000001: "The.Lantern.Keeper.2014.1080p.BluRay.x264-TIDAL.srt". Links of version 1 are
/// particular about upper and lower case; a "%20" in a query of version 1 is redirected to "+". A quota of 20
/// downloads for each interface.
///
/// `<url>/faults/<name>` in place of `<url>` is the same with a fault (`Faults.h`).
class OnlineLibrary
{
public:
    /// One thread at a time.
    [[nodiscard]] HttpReply Answer(HttpRequest request);

private:
    Version1Service m_version1;
    LegacyService m_legacy;
};

} // namespace Korvex::Testing
