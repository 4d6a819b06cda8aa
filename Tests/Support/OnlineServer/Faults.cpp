#include "Support/OnlineServer/Faults.h"

#include "Support/OnlineServer/Archives.h"

#include <algorithm>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr int LATE_MS = 2'000;
constexpr int SLOW_PIECES = 20;
constexpr int SLOW_PAUSE_MS = 100;
constexpr int HUGE_BYTES = 20 * 1024 * 1024; // more than the 16 MiB that a client takes
constexpr int BOMB_BYTES = 64 * 1024 * 1024;

using Spoiler = decltype(Fault::spoil);

Spoiler Send(HttpReply const& instead)
{
    return [instead](HttpReply& reply, auto const&) { reply = instead; };
}

/// Packed where an archive is in order.
Spoiler SendFile(QByteArray const& bytes)
{
    return [bytes](HttpReply& reply, FaultyRequest const& faulty) {
        reply.body = faulty.packedName.isEmpty() ? bytes : MakeZip({{faulty.packedName, bytes}});
    };
}

QByteArray MakeText(int size = 0)
{
    QByteArray const cue = "1\r\n00:00:01,000 --> 00:00:02,000\r\nAgain and again and again.\r\n\r\n";
    return cue.repeated(1 + size / cue.size());
}

/// Names that lead out of any folder, that Windows reserves or misreads, and a link; the first is to be taken.
QByteArray MakeEvilArchive(QByteArray const& packedName)
{
    constexpr quint32 LINK = 0120777U << 16U;
    std::vector<ArchiveMember> members = {{"../../" + packedName, MakeText()}};
    for (char const* const name :
         {"/evil.srt", "C:\\evil.srt", "..\\..\\evil.srt", "\\\\server\\share\\evil.srt", "folder/../../evil.srt",
          "CON.srt", "nul", "LPT1.srt", "stream.srt:hidden", "trailing.srt. ", ".hidden.srt", "line\nbreak.srt"})
        members.push_back({name, MakeText()});
    members.push_back({"link.srt", "../../../etc/passwd", LINK});
    return MakeZip(members);
}

/// What goes wrong on the wire, whatever is sent.
std::vector<Fault> MakeWireFaults()
{
    return {
        {"slow", "the body comes in 20 pieces, 100 ms apart", false,
         [](HttpReply& reply, auto const&)
         {
             reply.pieceBytes = std::max(1, reply.body.size() / SLOW_PIECES);
             reply.pauseMs = SLOW_PAUSE_MS;
         }},
        {"late", "the answer comes after 2 seconds", false,
         [](HttpReply& reply, auto const&) { reply.delayMs = LATE_MS; }},
        {"stall", "no answer, the connection stays open", false,
         [](HttpReply& reply, auto const&) { reply.neverAnswers = true; }},
        {"drop", "the connection is closed in the middle of the body", false,
         [](HttpReply& reply, auto const&) { reply.dropAfterBytes = reply.body.size() / 2; }},
        {"hang-up", "the connection is closed without an answer", false,
         [](HttpReply& reply, auto const&) { reply.dropsInsteadOfAnswer = true; }},
        {"gzip-bomb", "a small compressed body that unpacks to 64 MiB", false,
         [](HttpReply& reply, auto const&) {
             reply = HttpReply(200, Gzip(QByteArray(BOMB_BYTES, ' ')), {{"Content-Encoding", "gzip"}});
         }},
        {"huge", "a body of 20 MiB", false, [](HttpReply& reply, auto const&) { reply.body.resize(HUGE_BYTES); }},
        {"redirect-host", "302 to this server under another name (localhost), where all is in order", false,
         [](HttpReply& reply, FaultyRequest const& faulty)
         {
             QByteArray const host = faulty.request.Header("Host").replace("127.0.0.1", "localhost");
             reply = HttpReply(302, {}, {{"Location", "http://" + host + faulty.request.target}});
         }},
        {"redirect-loop", "302 to the same path", false, Send(HttpReply(302, {}, {{"Location", "?again"}}))},
    };
}

/// Answers that are none, and refusals.
std::vector<Fault> MakeAnswerFaults()
{
    HttpHeaders const later = {{"Retry-After", "7"}};
    return {
        {"empty", "200 without a body", false, Send(HttpReply(200))},
        {"broken-json", "the body is cut off, the HTTP is in order", false,
         [](HttpReply& reply, auto const&) { reply.body.truncate(reply.body.size() * 2 / 3); }},
        {"html", "503 with a page", false, Send(MakePage(503, "Down for maintenance"))},
        {"html-200", "200 with a page", false, Send(MakePage(200, "Down for maintenance"))},
        {"server-error", "500 with a message", false, Send(HttpReply(500, R"({"error":"Internal Server Error"})"))},
        {"bad-gateway", "502 with plain text", false, Send(HttpReply(502, "upstream connect error"))},
        {"unavailable", "503 without a body", false, Send(HttpReply(503))},
        {"bad-request", "400 with a list of errors", false,
         Send(HttpReply(400, R"({"errors":["Not enough parameters","Try a title"],"status":400})"))},
        {"rate-limit", "429 with Retry-After", false,
         Send(HttpReply(429, R"({"message":"Throttle limit reached. Retry later."})", later))},
        {"wrong-key", "403 as for a key that is not known", false,
         Send(HttpReply(403, R"({"message":"You cannot consume this service"})"))},
        {"quota", "downloading is refused: 406 (version 1), 429 with a page (legacy)", true, {}},
    };
}

/// Files that are not what was asked for.
std::vector<Fault> MakeFileFaults()
{
    return {
        {"advert", "a subtitle of one line that advertises a membership", true,
         SendFile("1\r\n00:00:06,000 --> 00:01:12,074\r\n"
                  "Become a VIP member at www.OpenSubtitles.org to download more subtitles\r\n\r\n")},
        {"html-file", "a page in place of the subtitle's text", true,
         SendFile(MakePage(200, "Too many downloads").body)},
        {"empty-file", "a subtitle without a byte", true, SendFile({})},
        {"bomb-zip", "an archive of 64 MiB in a few KiB", true,
         [](HttpReply& reply, FaultyRequest const& faulty) {
             reply.body = MakeZip({{faulty.packedName, MakeText(BOMB_BYTES), 0, 0, true}});
         }},
        {"nested-zip", "an archive with the subtitle in an archive", true,
         [](HttpReply& reply, FaultyRequest const& faulty) {
             reply.body = MakeZip({{"inner.zip", MakeZip({{faulty.packedName, MakeText()}})}});
         }},
        {"evil-names-zip", "an archive with .., absolute and device names, and a link", true,
         [](HttpReply& reply, FaultyRequest const& faulty) { reply.body = MakeEvilArchive(faulty.packedName); }},
    };
}

} // namespace

std::vector<Fault> const& GetFaults()
{
    static std::vector<Fault> const FAULTS = []
    {
        std::vector<Fault> all = MakeWireFaults();
        for (auto const& more : {MakeAnswerFaults(), MakeFileFaults()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return FAULTS;
}

Fault const* FindFault(QByteArray const& name)
{
    auto const fault = std::find_if(GetFaults().begin(), GetFaults().end(),
                                    [&name](Fault const& candidate)
                                    { return name == candidate.name || name == "file-" + candidate.name; });
    return fault == GetFaults().end() ? nullptr : &*fault;
}

} // namespace Korvex::Testing
