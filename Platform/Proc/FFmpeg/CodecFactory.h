#pragma once

#include "Core/Factories.h"

namespace Korvex::Proc::FFmpeg
{

/// Decoders over raw subtitle streams: text formats that containers hold as text are read without a codec, all others
/// by FFmpeg's decoders.
class CodecFactory final : public Core::ICodecFactory
{
public:
    [[nodiscard]] boost::intrusive_ptr<IStreamSubtitle>
    CreateSubtitleStream(boost::intrusive_ptr<IStreamRaw> const& raw, std::string const& options) override;
};

} // namespace Korvex::Proc::FFmpeg
