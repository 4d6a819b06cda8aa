#pragma once

#include "Core/Factories.h"

namespace Korvex::Proc
{

/// Parsers over media files and subtitle files alike.
class ParserFactory final : public Core::IParserFactory
{
public:
    [[nodiscard]] boost::intrusive_ptr<IParser> CreateParser(boost::intrusive_ptr<Core::IDataInput> const& input,
                                                             SettingsParser const& settings) override;
};

} // namespace Korvex::Proc
