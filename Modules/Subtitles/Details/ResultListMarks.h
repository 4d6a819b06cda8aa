#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include "Gui/Icons.h"

#include <QString>

#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchResultFacts;
}

namespace Korvex::Converter::Subtitles::Details
{

/// Something special about a subtitle, as the result list shows it.
struct ResultMark
{
    QString shortText;
    QString description; ///< for the tool tip and screen readers
    bool isWarning = false;
};

/// In the present language; in the order in which they are shown.
[[nodiscard]] std::vector<ResultMark> ListMarks(UseCases::SearchResultFacts const& facts);

/// The sign of a level, which differs in its shape and not only in its colour.
struct LevelSign
{
    GUI::IconKind icon;
    GUI::ColorRole color;
};

[[nodiscard]] LevelSign GetSign(Adapters::MatchLevel level);
[[nodiscard]] QString Describe(Adapters::MatchLevel level);

} // namespace Korvex::Converter::Subtitles::Details
