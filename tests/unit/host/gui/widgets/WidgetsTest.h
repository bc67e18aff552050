// A host whose add-ons get real widgets, and a user with mouse and keyboard.
#pragma once

#include "host/core/Host.h"
#include "host/gui/widgets/QtWidgets.h"
#include "hostapi/CorHost.h"
#include "tests/support/MemoryHost.h"
#include "tests/support/NotedCallbacks.h"

#include <QMainWindow>
#include <QtTest/QTest>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace corvane::test {

/// Starts Qt once for all tests of the program.
void startQt();

class WidgetsTest : public ::testing::Test, protected NotedCallbacks {
protected:
    WidgetsTest();
    ~WidgetsTest() override;

    template <class T>
    T* widget(int handle) const {
        auto* const found = dynamic_cast<T*>(widgets.widget(handle));
        EXPECT_NE(found, nullptr) << "control " << handle;
        return found;
    }
    /// Launched, active, and without its init among what was told.
    void launch(int dialog) const;
    /// Lets everything happen that was put off.
    static void settle();
    static void click(QWidget* widget);

    MemoryRenderer renderer;
    MemoryMovies movies;
    MemoryPictures pictures;
    MemoryReader reader;
    ScriptedStatus status;
    ScriptedPrompts prompts;
    QMainWindow mainWindow;
    gui::QtWidgets widgets{mainWindow};
    host::Host program{host::Ports{.renderer = renderer,
                                   .reader = reader,
                                   .movies = movies,
                                   .status = status,
                                   .prompts = prompts,
                                   .pictures = pictures,
                                   .widgets = &widgets}};
    host::Session& session = program.session();
    int kites; ///< a modeless dialog
    int knots; ///< a modal one
};

} // namespace corvane::test
