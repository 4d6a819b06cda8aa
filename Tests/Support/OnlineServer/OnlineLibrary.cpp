#include "Support/OnlineServer/OnlineLibrary.h"

#include "Support/OnlineServer/FilmCatalog.h"

namespace Korvex::Testing
{

namespace
{

constexpr char FAULT_PREFIX[] = "/faults/";
constexpr char VERSION_1_PREFIX[] = "/api/v1/";

/// The name of the fault that the path begins with, taken off the path; empty when there is none.
QByteArray TakeFaultName(QByteArray& path)
{
    if (!path.startsWith(FAULT_PREFIX))
        return {};
    int const begin = sizeof(FAULT_PREFIX) - 1;
    int const end = path.indexOf('/', begin);
    QByteArray const name = path.mid(begin, end < 0 ? -1 : end - begin);
    path = end < 0 ? QByteArray("/") : path.mid(end);
    return name;
}

ServiceStage GetStage(HttpRequest const& request, QByteArray const& path)
{
    if (Version1Service::IsFileLink(path) || LegacyService::IsDownload(path))
        return ServiceStage::File;
    return request.method == "POST" ? ServiceStage::Link : ServiceStage::Search;
}

} // namespace

OnlineLibrary::OnlineLibrary(OnlineLibrarySettings const& settings) : m_version1(settings), m_legacy(settings) {}

HttpReply OnlineLibrary::Answer(HttpRequest const& request)
{
    RequestTarget target(request.target);
    QByteArray const faultName = TakeFaultName(target.path);
    ServiceContext context{"http://" + request.Header("Host"), {}};
    if (faultName.isEmpty())
        return AnswerInOrder(request, target, context);

    context.prefix = FAULT_PREFIX + faultName;
    ServiceStage const stage = GetStage(request, target.path);
    bool strikes = false;
    Fault const* const fault = FindFault(faultName, stage, strikes);
    if (!fault)
        return HttpReply(404, R"({"message":"There is no such fault; korvex-testserver --help lists them"})");
    if (!strikes)
        return AnswerInOrder(request, target, context);
    HttpReply reply = fault->isInFrontOfService ? HttpReply() : AnswerInOrder(request, target, context);
    FaultyRequest faulty{request, context, target.ToBytes(), target.path.contains("/subad/"), {}};
    if (stage == ServiceStage::File)
    {
        Subtitle const* const subtitle = LegacyService::FindSubtitle(target.path);
        faulty.wantedFileName = subtitle ? subtitle->files.front().fileName.toUtf8()
                                         : QByteArray::fromPercentEncoding(target.path.split('/').last());
    }
    return fault->spoil(std::move(reply), faulty);
}

HttpReply OnlineLibrary::AnswerInOrder(HttpRequest const& request, RequestTarget const& target,
                                       ServiceContext const& context)
{
    if (target.path.startsWith(VERSION_1_PREFIX) || Version1Service::IsFileLink(target.path))
        return m_version1.Answer(request, target, context);
    return m_legacy.Answer(request, target, context);
}

} // namespace Korvex::Testing
