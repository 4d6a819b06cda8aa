#include "Proc/Register.h"

#include "Proc/FFmpeg/CodecFactory.h"
#include "Proc/FFmpeg/Logging.h"
#include "Proc/IParser.h"
#include "Proc/ParserFactory.h"
#include "Proc/Streams.h"

#include "Core/CoreManager.h"

#include <mutex>

namespace Korvex::Proc
{

void RegisterFactories()
{
    static std::once_flag once;
    std::call_once(once,
                   []
                   {
                       FFmpeg::RouteLibraryLog();
                       Core::CoreManager& manager = Core::CoreManager::Instance();
                       manager.SetParserFactory(new ParserFactory());
                       manager.SetCodecFactory(new FFmpeg::CodecFactory());
                   });
}

} // namespace Korvex::Proc
