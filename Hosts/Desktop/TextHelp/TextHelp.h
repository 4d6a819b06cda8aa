#pragma once

#include "Core/Error.h"
#include "Core/ioPath.h"
#include "Proc/Fonts.h"
#include "Proc/TextSample.h"

#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Korvex::Desktop
{

/// Which text is asked about.
struct TextHelpRequest
{
    ioPath path;                         ///< the added text file, or the film that holds the stream
    std::optional<std::uint32_t> stream; ///< not set: `path` is a subtitle file
    std::string encoding;                ///< of a text file: the core's name; empty: detect
    std::string fontFamily;              ///< what it is drawn with; empty: it has a look of its own
    bool hasEncoding = true;             ///< of a subtitle file: it is a text, which shows how it reads
};

[[nodiscard]] bool operator==(TextHelpRequest const& a, TextHelpRequest const& b);

/// What there is to say about a text.
struct TextHelp
{
    std::optional<Proc::TextSample> sample; ///< of a text file
    std::string fontFamily;                 ///< as asked for
    std::string fontStandIn;                ///< drawn with instead, because `fontFamily` is not installed
    Proc::FontCoverage fonts;
    std::optional<Core::Error> failure; ///< why the text cannot be read; everything else is empty then
};

/// Reads texts on a thread of its own. GUI thread; nothing in here blocks it, the destructor waits for a read that is
/// being given up.
class TextHelpReader final : public QObject
{
    Q_OBJECT
public:
    explicit TextHelpReader(QObject* parent = nullptr);
    ~TextHelpReader() override;

    /// Asks for a text; what was asked for before is not reported any more.
    void Request(TextHelpRequest request);
    /// Nothing is asked for any more.
    void Drop();

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// The newest request is answered.
    void Finished(Korvex::Desktop::TextHelp const& help);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
