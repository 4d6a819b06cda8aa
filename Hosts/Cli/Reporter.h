#pragma once

#include "Core/ioPath.h"

#include <memory>
#include <string>

namespace Korvex::Proc
{
struct TranscodeProgress;
struct TranscodeReport;
} // namespace Korvex::Proc

namespace Korvex::Cli
{

struct Console;

/// Tells the user how a conversion goes.
class Reporter
{
public:
    virtual ~Reporter() = default;
    virtual void Begin(ioPath const& input, ioPath const& output) = 0;
    virtual void Progress(Proc::TranscodeProgress const& progress) = 0;
    /// A sentence about what was done otherwise than one might expect.
    virtual void Note(std::string const& sentence) = 0;
    virtual void Done(Proc::TranscodeReport const& report) = 0;
    /// `exitCode` is what the run would end with if this were its only input.
    virtual void Failed(std::string const& sentence, int exitCode) = 0;
};

enum class ProgressKind
{
    Bar,
    Json,
    None,
};

[[nodiscard]] std::unique_ptr<Reporter> MakeReporter(ProgressKind kind, Console& console);

} // namespace Korvex::Cli
