#include "Proc/FFmpeg/Logging.h"

extern "C"
{
#include <libavutil/log.h>
}

#include <glog/logging.h>

#include <cstdarg>
#include <string>

namespace Korvex::Proc::FFmpeg
{

namespace
{

void WriteLine(void* context, int level, char const* format, std::va_list arguments)
{
    if (level > AV_LOG_ERROR || (level > AV_LOG_FATAL && !VLOG_IS_ON(1)))
        return;
    char line[1024];
    int printPrefix = 1;
    av_log_format_line2(context, level, format, arguments, line, sizeof(line), &printPrefix);
    std::string text(line);
    text.erase(text.find_last_not_of("\r\n") + 1);
    if (level <= AV_LOG_FATAL)
        LOG(ERROR) << text;
    else
        VLOG(1) << text;
}

} // namespace

void RouteLibraryLog()
{
    av_log_set_level(AV_LOG_ERROR);
    av_log_set_callback(&WriteLine);
}

} // namespace Korvex::Proc::FFmpeg
