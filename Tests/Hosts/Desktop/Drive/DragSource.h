#pragma once

#include "Core/ioPath.h"

#include <QByteArray>
#include <QPoint>
#include <QProcess>

#include <memory>
#include <vector>

namespace Korvex::Testing
{

/// A small window of another program, as a file manager would be, from which files can be dragged. It stands at the
/// right edge of the display. On the person's thread, the questions on the GUI thread.
class DragSource
{
public:
    explicit DragSource(std::vector<ioPath> const& files);
    ~DragSource();
    DragSource(DragSource const&) = delete;
    DragSource& operator=(DragSource const&) = delete;

    /// Where to press, on the screen.
    [[nodiscard]] QPoint GetHandle() const;
    [[nodiscard]] bool IsShown() { return HasSaid("shown"); }
    /// What is under the mouse would take the files as copies.
    [[nodiscard]] bool IsAccepted() { return HasSaid("accepted"); }
    /// The files were taken.
    [[nodiscard]] bool IsDropped() { return HasSaid("dropped"); }

private:
    [[nodiscard]] bool HasSaid(char const* word);

    std::unique_ptr<QProcess> m_process;
    QByteArray m_said;
};

/// The program that `DragSource` starts; the test program is that too when its first argument is `--drag-source`.
int RunDragSource(int argumentCount, char** arguments);

} // namespace Korvex::Testing
