#include "Proc/ParserFactory.h"

#include "Proc/IParser.h"
#include "Proc/MediaProbe.h"
#include "Proc/Settings.h"

#include "Core/DataInput.h"

#include <glog/logging.h>

namespace Korvex::Proc
{

namespace
{

class ParsedStream final : public IStream
{
public:
    explicit ParsedStream(StreamInfo info) : m_info(std::move(info)), m_codec(Conf::MakeFormatCodec(m_info.codecId)) {}

    [[nodiscard]] boost::intrusive_ptr<Conf::IFormatCodec> GetFormatCodec() const override { return m_codec; }
    [[nodiscard]] StreamInfo const& GetInfo() const override { return m_info; }

private:
    StreamInfo m_info;
    boost::intrusive_ptr<Conf::IFormatCodec> m_codec;
};

class Parser final : public IParser
{
public:
    explicit Parser(MediaInfo info) : m_info(std::move(info))
    {
        for (StreamInfo const& stream : m_info.streams)
            m_streams.emplace_back(new ParsedStream(stream));
    }

    [[nodiscard]] std::size_t GetStreamCount() const override { return m_streams.size(); }
    [[nodiscard]] boost::intrusive_ptr<IStream> GetStream(std::size_t index) const override
    {
        return index < m_streams.size() ? m_streams[index] : nullptr;
    }
    [[nodiscard]] MediaInfo const& GetMediaInfo() const override { return m_info; }

private:
    MediaInfo m_info;
    std::vector<boost::intrusive_ptr<IStream>> m_streams;
};

} // namespace

boost::intrusive_ptr<IParser> ParserFactory::CreateParser(boost::intrusive_ptr<Core::IDataInput> const& input,
                                                          SettingsParser const& settings)
try
{
    if (!input)
        return {};
    Core::Result<MediaInfo> info = ProbeStreams(input->GetPath(), settings.encoding);
    if (!info)
        return {};
    return new Parser(std::move(info).Value());
}
catch (std::exception const& failure)
{
    LOG(ERROR) << "Failed to parse \"" << input->GetPath().utf8string() << "\": " << failure.what();
    return {};
}

} // namespace Korvex::Proc
