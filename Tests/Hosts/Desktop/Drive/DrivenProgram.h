#pragma once

#include "Support/DisplayPerson.h"
#include "Support/GuiThread.h"
#include "Support/MediaMaker.h"

#include "Desktop/Films/Film.h"
#include "Desktop/Preview/PreviewPane.h"
#include "Desktop/Window/RunningProgram.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QImage>

#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Korvex::Testing
{

/// The desktop program at a display and a person in front of it. Names are object names; of several widgets with one
/// name that one is meant that can be seen. On the person's thread; what runs inside `Ask` and conditions is on the GUI
/// thread.
class DrivenProgram
{
public:
    /// Starts it with what that file keeps and waits until its window has the keyboard.
    explicit DrivenProgram(ioPath const& session);
    ~DrivenProgram();
    DrivenProgram(DrivenProgram const&) = delete;
    DrivenProgram& operator=(DrivenProgram const&) = delete;

    /// Closes the window as a person does, and starts it again.
    void Restart();
    [[nodiscard]] DisplayPerson& GetPerson() { return m_person; }

    /// From the window of another program, with the mouse.
    void DragIn(std::vector<ioPath> const& files);
    void Click(std::string const& name);
    void ClickRow(std::string const& view, int row);
    void ChooseInBox(std::string const& comboBox, QString const& text);
    /// Into the first field that can be written into of the toolkit's dialog that is open.
    void EnterInto(char const* dialogClass, QString const& text);
    /// Presses Enter in the dialog and waits until it has closed.
    void Accept(char const* dialogClass);

    void WaitUntilShown(std::string const& name);
    void WaitUntilHidden(std::string const& name);
    void WaitUntilFocused(std::string const& name);
    /// Presses "Tab" or "shift+Tab" until the widget has the keyboard.
    void TabTo(std::string const& name, QString const& key);
    /// Waits for such a picture in the preview and gives it.
    QImage WaitForPicture(std::string const& what, std::function<bool(QImage const&)> const& condition);
    [[nodiscard]] std::chrono::microseconds GetPreviewTime();
    /// Waits until the film with that file name was read.
    Desktop::Film* WaitForFilm(QString const& fileName);

    /// What `question` says of the widget, asked on the GUI thread.
    template <typename Widget, typename Question>
    static auto Ask(std::string const& name, Question const& question)
    {
        return OnGui(
            [&]
            {
                auto* const widget = qobject_cast<Widget*>(FindShown(name));
                if (widget == nullptr)
                    throw std::runtime_error("Nothing that is called " + name + " and of that kind can be seen");
                return question(*widget);
            });
    }

    /// Null where there is none. On the GUI thread.
    [[nodiscard]] static QWidget* FindShown(std::string const& name);

private:
    void Start();
    /// Waits until a part of the widget can be clicked and holds still; gives its middle on the screen. `part`: in the
    /// widget's coordinates; empty while it is not there.
    QPoint WaitForPlace(std::string const& name, std::function<QRect(QWidget&)> const& part);
    QPoint WaitForPlace(std::string const& what, std::function<QWidget*()> const& find,
                        std::function<QRect(QWidget&)> const& part);

    DisplayPerson m_person;
    std::unique_ptr<Desktop::RunningProgram> m_program;
};

} // namespace Korvex::Testing
