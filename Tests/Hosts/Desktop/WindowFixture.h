#pragma once

#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/SessionStore.h"
#include "Desktop/Window/MainWindow.h"
#include "Desktop/Words/Languages.h"

#include <QAction>
#include <QTest>

#include <memory>
#include <optional>
#include <vector>

namespace Korvex::Testing
{

/// The desktop's window with a session of its own, as `main` puts it together, in English.
class WindowFixture : public FilmFixture
{
protected:
    explicit WindowFixture(App::Configuration const& configuration = {});
    ~WindowFixture() override;

    /// Ends the program and starts it again with an empty list.
    void Restart();

    [[nodiscard]] Desktop::MainWindow& GetWindow() { return *m_window; }
    [[nodiscard]] Desktop::ConversionQueue& GetQueue() { return *m_queue; }
    [[nodiscard]] QString GetLanguage() const { return m_languages.GetCurrent(); }
    /// None: it was never converted.
    [[nodiscard]] std::optional<Desktop::ConversionState> GetState(Desktop::Film const& film) const;

    /// The part of the window that is called so; fails the test where there is none.
    template <typename Widget>
    Widget& Get(char const* name)
    {
        auto* widget = m_window->findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr)
            throw std::logic_error(std::string("the window has no ") + name);
        return *widget;
    }

    void Click(char const* button);
    void Trigger(char const* action);
    /// As a file manager drops them, in the middle of the widget: the window or a part of it.
    void Drop(std::vector<ioPath> const& paths, QWidget& onto);
    /// In the middle of its row.
    void DropOntoFilm(std::vector<ioPath> const& paths, Desktop::Film const& film);
    /// Adds the film and waits until it was read.
    Desktop::Film& AddFilm(ioPath const& path);
    Desktop::Film& WaitForFilm(ioPath const& path);
    void Show(Desktop::Film const& film);

private:
    void Start();
    void DropAt(std::vector<ioPath> const& paths, QWidget& onto, QPoint const& place);

    std::unique_ptr<Desktop::ConversionQueue> m_queue;
    std::unique_ptr<Desktop::SessionStore> m_store;
    Desktop::Languages m_languages;
    std::unique_ptr<Desktop::MainWindow> m_window;
};

} // namespace Korvex::Testing
