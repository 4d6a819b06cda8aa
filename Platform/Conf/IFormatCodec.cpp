#include "Conf/IFormatCodec.h"

#include <utility>

namespace Korvex::Conf
{

std::string const IFormatCodec::CODEC_ID_NONE;

namespace
{

class NamedCodec final : public IFormatCodec
{
public:
    explicit NamedCodec(std::string codecId) : m_codecId(std::move(codecId)) {}
    [[nodiscard]] std::string GetCodecID() const override { return m_codecId; }

private:
    std::string m_codecId;
};

} // namespace

boost::intrusive_ptr<IFormatCodec> MakeFormatCodec(std::string codecId)
{
    return boost::intrusive_ptr<IFormatCodec>(new NamedCodec(std::move(codecId)));
}

} // namespace Korvex::Conf
