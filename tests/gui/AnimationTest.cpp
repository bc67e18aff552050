// A flight of the add-on on the screen, and the two ways to stop it.
#include "host/core/session/AddOnLoader.h"
#include "host/gui/status/ProgressStrip.h"
#include "host/gui/view/DrawingArea.h"
#include "tests/gui/WindowTest.h"
#include "tests/support/Folders.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Animation : public WindowTest {
protected:
    void SetUp() override {
        host::loadAddOn(session(), builtAddOn());
        openData();
        runCommand("OpenSettingsFile FileName=\"" + sourceFile("examples/wake/flight.keyframe") +
                   '"');
        settle();
        renderer.clear();
    }

    void runCommand(const std::string& command) {
        program().perform("EXTCOMMAND", {"Key Frame Animation", command});
    }

    /// Plays, and does something once some pictures have been seen.
    void playAnd(const std::function<void()>& action) {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &window(), [&] {
            if (renderer.renders() >= 5) {
                look.stop();
                action();
            }
        });
        look.start(5);
        try {
            runCommand("Animate AnimationDestination=OnScreen");
        } catch (const std::exception& error) {
            m_message = error.what();
        }
    }

    std::string m_message; ///< why the flight ended early
};

TEST_F(Animation, escStops) {
    playAnd([this] { QTest::keyClick(&window(), Qt::Key_Escape); });
    EXPECT_THAT(m_message, HasSubstr("ancel"));
    EXPECT_GT(renderer.renders(), 2U);
    EXPECT_LT(renderer.renders(), 100U);
}

TEST_F(Animation, theStopButtonStops) {
    auto& stop = part<QPushButton>("stop");
    bool wasVisible = false;
    playAnd([&] {
        wasVisible = stop.isVisible();
        QTest::mouseClick(&stop, Qt::LeftButton);
    });
    EXPECT_TRUE(wasVisible);
    EXPECT_THAT(m_message, HasSubstr("ancel"));
    EXPECT_LT(renderer.renders(), 100U);
    EXPECT_FALSE(stop.isVisible());
}

TEST_F(Animation, nothingElseCanBeReached) {
    auto& legend = part<QCheckBox>("Contour/ShowLegend");
    playAnd([&] {
        QTest::mouseClick(&legend, Qt::LeftButton);
        QTest::keyClick(&window(), Qt::Key_O, Qt::ControlModifier);
        QTest::keyClick(&window(), Qt::Key_Escape);
    });
    EXPECT_TRUE(legend.isChecked());
    EXPECT_TRUE(frame().style.contour.showLegend);
}

TEST_F(Animation, closingTheWindowStopsAndClosesItAfterwards) {
    bool stayedOpen = false;
    playAnd([&] { stayedOpen = !window().close() && window().isVisible(); });
    EXPECT_TRUE(stayedOpen);
    EXPECT_THAT(m_message, HasSubstr("ancel"));
    EXPECT_LT(renderer.renders(), 100U);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
}

TEST_F(Animation, keepsToTheRateOfTheDisplay) {
    QElapsedTimer clock;
    clock.start();
    playAnd([this] { QTest::keyClick(&window(), Qt::Key_Escape); });
    const double seconds = static_cast<double>(clock.elapsed()) / 1000.0;
    const double rate = window().screen()->refreshRate();
    // One picture more than there are intervals, and one that was on its way.
    EXPECT_LE(static_cast<double>(renderer.renders()), seconds * rate + 2.0);
}

} // namespace

} // namespace corvane::test
