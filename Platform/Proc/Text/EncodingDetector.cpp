#include "Proc/Text/EncodingDetector.h"

#include "Proc/Text/CharacterConverter.h"

#include <uchardet.h>

#include <memory>

namespace Korvex::Proc::Text
{

namespace
{

struct UchardetDeleter
{
    void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};
using UchardetPointer = std::unique_ptr<std::remove_pointer_t<uchardet_t>, UchardetDeleter>;

std::string AskUchardet(std::string_view bytes)
{
    UchardetPointer const detector(uchardet_new());
    if (uchardet_handle_data(detector.get(), bytes.data(), bytes.size()) != 0)
    {
        return {};
    }
    uchardet_data_end(detector.get());
    return NormalizeEncodingName(uchardet_get_charset(detector.get()));
}

} // namespace

DetectedEncoding DetectEncoding(std::string_view bytes, DetectionHints const&)
{
    DetectedEncoding result;
    result.encoding = AskUchardet(bytes);
    result.source = TextDecodeReport::Source::Detector;
    result.confidence = 0.8;
    if (result.encoding.empty() || !CharacterConverter::Make(result.encoding))
    {
        result = {"CP1252", TextDecodeReport::Source::Fallback, 0.1};
    }
    return result;
}

} // namespace Korvex::Proc::Text
