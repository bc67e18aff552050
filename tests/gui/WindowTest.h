// A test with a real main window over a host whose pictures and data are made in memory.
#pragma once

#include "host/gui/desktop/WindowedHost.h"
#include "tests/support/MemoryHost.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace corvane::test {

/// What a test has instead of things made in memory.
struct WindowSurroundings {
    host::Renderer* renderer = nullptr;
    host::DataReader* reader = nullptr;
    host::MovieWriters* movies = nullptr; ///< null: movies are counted
    host::PictureFiles* pictures = nullptr;
    bool hasRealDialogs = false; ///< message boxes and file dialogs over the window
};

/// The tests share one QApplication, since a process has no more; it is made with the first.
class WindowTest : public ::testing::Test {
protected:
    explicit WindowTest(const WindowSurroundings& surroundings = {});
    void TearDown() override;

    host::Host& program() { return m_windowedHost->host(); }
    host::Session& session() { return program().session(); }
    gui::WindowedHost& windowedHost() { return *m_windowedHost; }
    gui::MainWindow& window() { return m_windowedHost->window(); }
    gui::WindowController& controller() { return m_windowedHost->controller(); }
    gui::DrawingArea& drawingArea();
    host::Frame& frame(); ///< the active one; there must be one

    /// A part of the window by the name of its object; fails when there is none.
    template <typename Widget>
    Widget& part(const char* name) {
        auto* const found = window().findChild<Widget*>(QString::fromUtf8(name));
        if (found == nullptr) {
            throw std::logic_error(std::string("There is nothing named ") + name);
        }
        return *found;
    }

    void openData();
    /// Looks after events until everything that is due has been done.
    void settle();
    static bool waitUntil(const std::function<bool()>& isSo);
    void drag(Qt::MouseButton button, QPoint from, QPoint to, Qt::KeyboardModifiers keys = {});
    /// Closes the window and opens a new one.
    void startAgain();

    MemoryRenderer renderer;
    MemoryReader reader;
    MemoryMovies movies;
    MemoryPictures pictures;
    ScriptedPrompts prompts;

private:
    void open();

    WindowSurroundings m_surroundings;
    std::unique_ptr<gui::WindowedHost> m_windowedHost;
};

} // namespace corvane::test
