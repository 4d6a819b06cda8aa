#include "Subtitles/Entities/SubtitleCollectionID.h"

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

std::uint32_t NextNumber()
{
    static std::uint32_t last = 0;
    return ++last;
}

} // namespace

SubtitleCollectionID::SubtitleCollectionID() : m_number(NextNumber()) {}

SubtitleCollectionID::operator std::string() const
{
    return std::to_string(m_number);
}

} // namespace Korvex::Converter::Subtitles::Entities
