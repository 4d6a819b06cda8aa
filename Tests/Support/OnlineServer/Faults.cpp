#include "Support/OnlineServer/Faults.h"

#include "Support/OnlineServer/FaultyFiles.h"
#include "Support/OnlineServer/LegacyService.h"

#include <QUrl>

#include <algorithm>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr int LATE_MS = 2'000;
constexpr int SLOW_PIECES = 20;
constexpr int SLOW_PAUSE_MS = 100;
constexpr int HUGE_PIECE_BYTES = 64 * 1024;
constexpr qint64 HUGE_BYTES = 512LL * 1024 * 1024;
constexpr int BOMB_BYTES = 64 * 1024 * 1024;

std::vector<ServiceStage> const EVERYWHERE = {ServiceStage::Search, ServiceStage::Link, ServiceStage::File};
std::vector<ServiceStage> const DOWNLOADS = {ServiceStage::Link, ServiceStage::File};
std::vector<ServiceStage> const FILES = {ServiceStage::File};

HttpReply MakePage(int status, QByteArray const& title)
{
    HttpReply reply(status, "<!DOCTYPE html>\n<html>\n<head><title>" + title + "</title></head>\n<body><h1>" + title +
                                "</h1><p>Please come back later.</p></body>\n</html>\n");
    reply.contentType = "text/html; charset=utf-8";
    return reply;
}

HttpReply MakeMessage(int status, QByteArray const& body)
{
    return HttpReply(status, body);
}

HttpReply Redirect(QByteArray const& location)
{
    HttpReply reply(302, {}, {{"Location", location}});
    reply.contentType = "text/html";
    return reply;
}

HttpReply RedirectToOtherName(HttpReply, FaultyRequest const& faulty)
{
    QUrl url = QUrl::fromEncoded(faulty.context.origin + faulty.path);
    url.setHost(QStringLiteral("localhost"));
    return Redirect(url.toEncoded());
}

HttpReply RefuseForQuota(HttpReply inOrder, FaultyRequest const& faulty)
{
    if (faulty.request.method == "POST")
        return MakeMessage(406, R"({"requests":21,"remaining":0,"message":"You have downloaded your allowed 20 )"
                                R"(subtitles for 24h.Your quota will be renewed in 05 hours and 12 minutes )"
                                R"((2031-04-23 23:59:59 UTC) ts=1935000000 ","reset_time":"05 hours and 12 minutes",)"
                                R"("reset_time_utc":"2031-04-23T23:59:59.000Z"})");
    if (!LegacyService::IsDownload(faulty.path))
        return inOrder;
    HttpReply reply = MakePage(429, "Download limit reached");
    reply.headers = {{"Download-Quota", "0"}};
    return reply;
}

HttpReply SendHugeBody(HttpReply inOrder, FaultyRequest const&)
{
    inOrder.body = QByteArray(HUGE_PIECE_BYTES, ' ');
    inOrder.bodyCount = HUGE_BYTES / HUGE_PIECE_BYTES;
    return inOrder;
}

/// What goes wrong on the wire, whatever is sent.
std::vector<Fault> MakeWireFaults()
{
    return {
        {"slow", "the body comes in 20 pieces, 100 ms apart", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.pieceBytes = std::max(1, reply.body.size() / SLOW_PIECES);
             reply.pauseMs = SLOW_PAUSE_MS;
             return reply;
         }},
        {"late", "the answer comes after 2 seconds", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.delayMs = LATE_MS;
             return reply;
         }},
        {"stall", "no answer, the connection stays open", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.neverAnswers = true;
             return reply;
         }},
        {"drop", "the connection is closed in the middle of the body", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.dropAfterBytes = reply.body.size() / 2;
             return reply;
         }},
        {"hang-up", "the connection is closed without an answer", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.dropsInsteadOfAnswer = true;
             return reply;
         }},
        {"gzip", "the body is compressed", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.isGzip = true;
             return reply;
         }},
        {"deflate", "the body is compressed the other way", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.isDeflate = true;
             return reply;
         }},
        {"gzip-bomb", "a small compressed body that unpacks to 64 MiB", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.body = QByteArray(BOMB_BYTES, ' ');
             reply.isGzip = true;
             return reply;
         }},
        {"huge", "a body of 512 MiB", EVERYWHERE, SendHugeBody},
        {"redirect-loop", "302 to the same address", EVERYWHERE,
         [](HttpReply, FaultyRequest const& faulty) { return Redirect(faulty.context.prefix + faulty.path); }, true},
        {"redirect-host", "302 to this server under another name (localhost), where all is in order", EVERYWHERE,
         RedirectToOtherName, true},
    };
}

/// Answers that are none, and refusals.
std::vector<Fault> MakeAnswerFaults()
{
    return {
        {"empty", "200 without a body", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.body.clear();
             return reply;
         }},
        {"broken-json", "the body is cut off, the HTTP is in order", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.body.truncate(reply.body.size() * 2 / 3);
             return reply;
         }},
        {"text-before-array", "a warning of the server's scripts stands before the body", EVERYWHERE,
         [](HttpReply reply, FaultyRequest const&)
         {
             reply.body.prepend("Warning: Undefined array key 1 in search.php on line 12\n");
             return reply;
         }},
        {"html", "503 with a page", EVERYWHERE,
         [](HttpReply, FaultyRequest const&) { return MakePage(503, "Down for maintenance"); }},
        {"html-200", "200 with a page", EVERYWHERE,
         [](HttpReply, FaultyRequest const&) { return MakePage(200, "Down for maintenance"); }},
        {"server-error", "500 with a message", EVERYWHERE,
         [](HttpReply, FaultyRequest const&)
         { return MakeMessage(500, R"({"status":500,"error":"Internal Server Error"})"); }},
        {"bad-gateway", "502 with plain text", EVERYWHERE,
         [](HttpReply, FaultyRequest const&)
         {
             HttpReply reply(502, "upstream connect error");
             reply.contentType = "text/plain";
             return reply;
         }},
        {"unavailable", "503 without a body", EVERYWHERE,
         [](HttpReply, FaultyRequest const&) { return HttpReply(503); }},
        {"bad-request", "400 with a list of errors", EVERYWHERE,
         [](HttpReply, FaultyRequest const&)
         { return MakeMessage(400, R"({"errors":["Not enough parameters","Try a title"],"status":400})"); }},
        {"rate-limit", "429 with Retry-After", EVERYWHERE,
         [](HttpReply, FaultyRequest const&)
         {
             HttpReply reply = MakeMessage(429, R"({"message":"Throttle limit reached. Retry later."})");
             reply.headers = {{"Retry-After", "7"}, {"RateLimit-Remaining", "0"}, {"RateLimit-Reset", "7"}};
             return reply;
         }},
        {"wrong-key", "403 as for a key that is not known", EVERYWHERE,
         [](HttpReply, FaultyRequest const&)
         { return MakeMessage(403, R"({"message":"You cannot consume this service"})"); }},
        {"quota", "searching works, downloading is refused: 406 (version 1), 429 with a page (legacy)", DOWNLOADS,
         RefuseForQuota},
    };
}

/// Files that are not what was asked for.
std::vector<Fault> MakeFileFaults()
{
    auto const archive = [](QByteArray (*make)(QString const&))
    {
        return [make](HttpReply reply, FaultyRequest const& faulty)
        {
            reply.body = make(QString::fromUtf8(faulty.wantedFileName));
            return reply;
        };
    };
    return {
        {"advert", "a subtitle of one line that advertises a membership", FILES,
         [](HttpReply reply, FaultyRequest const& faulty)
         { return SendInstead(std::move(reply), faulty, MakeAdvertisement()); }},
        {"html-file", "a page in place of the subtitle's text", FILES,
         [](HttpReply reply, FaultyRequest const& faulty)
         { return SendInstead(std::move(reply), faulty, MakePage(200, "Too many downloads").body); }},
        {"empty-file", "a subtitle without a byte", FILES,
         [](HttpReply reply, FaultyRequest const& faulty) { return SendInstead(std::move(reply), faulty, {}); }},
        {"bomb-zip", "an archive of 64 MiB in a few KiB", FILES, archive(MakeBombArchive)},
        {"lying-size-zip", "the same, which claims to be 1,500 bytes", FILES, archive(MakeLyingArchive)},
        {"nested-zip", "an archive with the subtitle in an archive", FILES, archive(MakeNestedArchive)},
        {"evil-names-zip", "an archive with .., absolute and device names, and a link", FILES,
         archive(MakeEvilArchive)},
    };
}

} // namespace

std::vector<Fault> const& GetFaults()
{
    static std::vector<Fault> const FAULTS = []
    {
        std::vector<Fault> all = MakeWireFaults();
        for (auto const& make : {MakeAnswerFaults, MakeFileFaults})
        {
            std::vector<Fault> const more = make();
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    }();
    return FAULTS;
}

Fault const* FindFault(QByteArray const& name, ServiceStage stage, bool& strikes)
{
    static std::vector<std::pair<QByteArray, ServiceStage>> const LIMITS = {
        {"search-", ServiceStage::Search}, {"link-", ServiceStage::Link}, {"file-", ServiceStage::File}};
    auto const limit =
        std::find_if(LIMITS.begin(), LIMITS.end(), [&name](auto const& pair) { return name.startsWith(pair.first); });
    QByteArray const bareName = limit == LIMITS.end() ? name : name.mid(limit->first.size());
    auto const fault = std::find_if(GetFaults().begin(), GetFaults().end(),
                                    [&bareName](Fault const& candidate) { return candidate.name == bareName; });
    if (fault == GetFaults().end())
        return nullptr;
    std::vector<ServiceStage> const& stages = fault->stages;
    strikes =
        limit == LIMITS.end() ? std::find(stages.begin(), stages.end(), stage) != stages.end() : limit->second == stage;
    return &*fault;
}

} // namespace Korvex::Testing
