#pragma once

#include "App/IStatisticTracker.h"
#include "Core/Export.h"
#include "Core/Result.h"

#include <cstddef>
#include <memory>
#include <string>

namespace Korvex::App
{

/// Keeps what is counted on this machine: a file of lines, each a JSON object with "time" (UTC), "event" and
/// "parameters". Off until somebody switches it on. A thread of its own does the writing; the file is readable by its
/// user alone and loses its oldest lines where it would grow beyond `MOST_FILE_BYTES`.
class KORVEX_PLATFORM_API JsonLinesTracker final : public IStatisticTracker
{
public:
    static constexpr std::size_t MOST_FILE_BYTES = 256 * 1024;

    /// The file and its folder are made with the first event.
    explicit JsonLinesTracker(ioPath file);
    /// Writes what still waits.
    ~JsonLinesTracker() override;

    [[nodiscard]] ioPath const& GetFile() const;

    /// Events count while it is on. Any thread.
    void SetEnabled(bool isEnabled);
    [[nodiscard]] bool IsEnabled() const;

    /// Returns at once.
    void TrackEvent(std::string const& name, std::map<std::string, std::string> const& parameters) override;

    /// All lines, those that wait to be written included; empty when there are none. Waits for the disk. Any thread.
    [[nodiscard]] Core::Result<std::string> Read();
    /// Removes all lines. Waits for the disk. Any thread.
    [[nodiscard]] Core::Status Delete();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::App
