#include "Support/OnlineServer/OnlineLibrary.h"

#include "Support/OnlineServer/Faults.h"
#include "Support/OnlineServer/FilmCatalog.h"

namespace Korvex::Testing
{

namespace
{

/// The name of the fault that the target begins with, taken off the target; empty when there is none.
QByteArray TakeFaultName(QByteArray& target)
{
    constexpr char FAULTS[] = "/faults/";
    if (!target.startsWith(FAULTS))
        return {};
    QByteArray const name = target.split('/').value(2);
    target.remove(0, static_cast<int>(sizeof(FAULTS)) - 1 + name.size());
    return name;
}

} // namespace

HttpReply OnlineLibrary::Answer(HttpRequest request)
{
    QByteArray const faultName = TakeFaultName(request.target);
    Fault const* const fault = FindFault(faultName);
    if (!faultName.isEmpty() && !fault)
        return HttpReply(404, R"({"message":"There is no such fault; korvex-testserver --help lists them"})");

    QByteArray const prefix = fault ? "/faults/" + faultName : QByteArray();
    ServiceContext const context{"http://" + request.Header("Host") + prefix, prefix, faultName == "quota"};
    bool const isVersion1 = request.target.startsWith("/api/v1/") || Version1Service::IsFileLink(request);
    HttpReply reply = isVersion1 ? m_version1.Answer(request, context) : m_legacy.Answer(request, context);
    bool const isSet = LegacyService::IsDownload(request);
    bool const isOfFilesAlone = fault && (fault->isOfFiles || faultName != fault->name);
    bool const strikes = fault && (isSet || Version1Service::IsFileLink(request) || !isOfFilesAlone);
    // A redirect leads to the answer, which is what goes wrong.
    if (!strikes || !fault->spoil || reply.status == 301)
        return reply;
    Subtitle const* const set = isSet ? LegacyService::FindSubtitle(request) : nullptr;
    fault->spoil(reply, {request, set ? set->files.front().name.toUtf8() : QByteArray()});
    return reply;
}

} // namespace Korvex::Testing
