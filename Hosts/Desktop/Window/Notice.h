#pragma once

#include "Desktop/Window/Marks.h"

#include <QString>

#include <functional>
#include <vector>

namespace Korvex::Desktop
{

/// A sentence for the user with buttons that do what they say.
struct Notice
{
    struct Button
    {
        QString label;
        std::function<void()> press;
    };

    Mark mark = Mark::News;
    QString sentence;
    std::vector<Button> buttons;
    bool passes = false;         ///< closes by itself once it could be read
    std::function<void()> close; ///< what closing it does; empty: it stays until its reason has gone
};

} // namespace Korvex::Desktop
