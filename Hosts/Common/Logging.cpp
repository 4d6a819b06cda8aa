#include "Common/Logging.h"

#include <glog/logging.h>

namespace Korvex::Hosts
{

void LogErrorsToStandardError(char const* programName)
{
    FLAGS_logtostderr = true;
    FLAGS_minloglevel = google::GLOG_ERROR;
    google::InitGoogleLogging(programName);
}

} // namespace Korvex::Hosts
