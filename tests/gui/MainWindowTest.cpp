// What a user does in the main window, and what comes of it.
#include "host/gui/time/TimePlayer.h"
#include "host/gui/view/DrawingArea.h"
#include "host/gui/view/ViewMotion.h"
#include "tests/gui/WindowTest.h"
#include "tests/support/MemoryHost.h"
#include "tests/support/TempFolder.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QSlider>
#include <QToolButton>
#include <QtTest>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class MainWindow : public WindowTest {
protected:
    void SetUp() override { openData(); }

    QPoint middle() { return drawingArea().rect().center(); }
    void wheel(QPoint at, int notches) {
        QWheelEvent event(at, drawingArea().mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&drawingArea(), &event);
    }
};

class EmptyMainWindow : public WindowTest {};

TEST_F(EmptyMainWindow, drawsNothingWithoutData) {
    EXPECT_EQ(renderer.renders(), 0U);
    EXPECT_TRUE(drawingArea().image().isNull());
    EXPECT_TRUE(part<QWidget>("timeBar").isHidden());
}

TEST_F(MainWindow, openingDataShowsThemInThePixelsOfTheArea) {
    ASSERT_EQ(reader.reads().size(), 1U);
    EXPECT_EQ(drawingArea().image().size(), drawingArea().pixels());
    EXPECT_TRUE(window().windowTitle().startsWith(QStringLiteral("flow.pvd")));
    EXPECT_FALSE(part<QWidget>("timeBar").isHidden());
}

TEST_F(MainWindow, aFailedOpeningSaysWhyAndChangesNothing) {
    const auto before = frame().data();
    reader.failNext("broken.pvd cannot be read: it is empty.");
    EXPECT_FALSE(controller().files().openData({QStringLiteral("broken.pvd")}));
    EXPECT_THAT(prompts.shown(ShownDialog::Kind::Error),
                ElementsAre("broken.pvd cannot be read: it is empty."));
    EXPECT_EQ(frame().data(), before);
}

TEST_F(MainWindow, aResizedWindowIsFilledByItsOneFrame) {
    window().resize(window().width() - 200, window().height() - 100);
    ASSERT_TRUE(
        waitUntil([this] { return drawingArea().image().size() == drawingArea().pixels(); }));
    const host::Placement area = session().page().regionOf(ExportRegion_WorkArea);
    EXPECT_EQ(frame().placement, area);
    EXPECT_DOUBLE_EQ(area.width, 8.0);
}

TEST_F(MainWindow, draggingTurnsTheViewAboutItsOriginAndDrawsOnce) {
    const host::View3D before = frame().view;
    const auto renders = renderer.renders();
    drag(Qt::LeftButton, middle(), middle() + QPoint(80, -40));
    EXPECT_GT(frame().view.theta, before.theta);
    EXPECT_GT(frame().view.psi, before.psi);
    EXPECT_NEAR(length(frame().view.position - before.rotationOrigin),
                length(before.position - before.rotationOrigin), 1e-9);
    EXPECT_EQ(renderer.renders(), renders);
    settle();
    EXPECT_EQ(renderer.renders(), renders + 1);
}

TEST_F(MainWindow, middleButtonAndShiftMoveTheView) {
    const host::View3D start = frame().view;
    drag(Qt::MiddleButton, middle(), middle() + QPoint(50, 0));
    const host::View3D moved = frame().view;
    EXPECT_LT(dot(moved.position - start.position, basisOf(start).right), 0.0);
    EXPECT_EQ(moved.theta, start.theta);
    drag(Qt::LeftButton, middle() + QPoint(50, 0), middle(), Qt::ShiftModifier);
    EXPECT_NEAR(length(frame().view.position - start.position), 0.0, 1e-9);
}

TEST_F(MainWindow, theWheelKeepsWhatIsUnderThePointer) {
    const QPoint pointer = middle() + QPoint(120, 70);
    const gui::PictureSize size{double(drawingArea().width()), double(drawingArea().height())};
    const QPointF fromCenter = pointer - QRectF(drawingArea().rect()).center();
    const auto held = [&](const host::View3D& view) {
        const host::ViewBasis basis = basisOf(view);
        const double scale = gui::unitsPerPixel(view, size);
        const double depth = dot(view.position - view.rotationOrigin, basis.toViewer);
        return view.position - depth * basis.toViewer + scale * fromCenter.x() * basis.right -
               scale * fromCenter.y() * basis.up;
    };
    const host::View3D before = frame().view;
    wheel(pointer, 3);
    EXPECT_LT(gui::unitsPerPixel(frame().view, size), 0.8 * gui::unitsPerPixel(before, size));
    // Half a pixel of slack, since the centre of the area may lie between two.
    EXPECT_NEAR(length(held(frame().view) - held(before)), 0.0, gui::unitsPerPixel(before, size));
}

TEST_F(MainWindow, keysInThePictureLookAlongAxesAndFit) {
    drawingArea().setFocus();
    QTest::keyClick(&drawingArea(), Qt::Key_5);
    EXPECT_EQ(frame().view.psi, 0.0);
    const host::View3D fitted = frame().view;
    wheel(middle(), 4);
    EXPECT_NE(frame().view.position, fitted.position);
    QTest::keyClick(&drawingArea(), Qt::Key_F);
    EXPECT_EQ(frame().view, fitted);
    QTest::keyClick(&drawingArea(), Qt::Key_P);
    EXPECT_FALSE(frame().view.perspective);
}

TEST_F(MainWindow, aClickMakesTheFrameUnderItActive) {
    const long first = frame().id();
    host::Placement half = frame().placement;
    half.width /= 4;
    half.height /= 4;
    program().perform("FRAME",
                      {"CREATE", "X", "=", "0", "Y", "=", "0", "Width", "=",
                       std::to_string(half.width), "Height", "=", std::to_string(half.height)});
    settle();
    ASSERT_NE(frame().id(), first);
    QTest::mouseClick(&drawingArea(), Qt::LeftButton, {},
                      {drawingArea().width() - 10, drawingArea().height() / 2});
    EXPECT_EQ(frame().id(), first);
    EXPECT_THAT(prompts.shown(), IsEmpty());
}

TEST_F(MainWindow, theSidebarChangesStylesByCommands) {
    program().recorder().start();
    auto& legend = part<QCheckBox>("Contour/ShowLegend");
    ASSERT_TRUE(legend.isChecked());
    legend.click();
    EXPECT_FALSE(frame().style.contour.showLegend);
    auto& colors = part<QComboBox>("Contour/ColorMap");
    const int plasma = colors.findData(QStringLiteral("Plasma"));
    colors.setCurrentIndex(plasma);
    Q_EMIT colors.activated(plasma);
    EXPECT_EQ(frame().style.contour.colorMap, "Plasma");
    EXPECT_THAT(program().recorder().stop(), ElementsAre(HasSubstr("Contour/ShowLegend = false"),
                                                         HasSubstr("Contour/ColorMap = ")));
}

TEST_F(MainWindow, theSidebarFollowsWhatChangesElsewhereAndFiresNothing) {
    program().recorder().start();
    session().setStyle({"Contour", "ShowLegend"}, 0L);
    session().setStyle({"Annotations", "Title"}, std::string("Wake"));
    auto& legend = part<QCheckBox>("Contour/ShowLegend");
    EXPECT_TRUE(waitUntil([&] { return !legend.isChecked(); }));
    EXPECT_EQ(part<QLineEdit>("Annotations/Title").text(), QStringLiteral("Wake"));
    EXPECT_THAT(program().recorder().stop(), IsEmpty());
}

TEST_F(MainWindow, aRecordingBeginsWithTheSceneThatIsThere) {
    frame().style.annotations.title = "Before";
    const auto actions = window().menu(QStringLiteral("Macro")).actions();
    for (QAction* const action : actions) {
        if (action->text() == QStringLiteral("&Record Macro")) {
            action->trigger();
        }
    }
    EXPECT_THAT(program().recorder().stop(),
                ::testing::IsSupersetOf({HasSubstr("$!FRAME CREATE"), HasSubstr("$!READDATA"),
                                         HasSubstr("Annotations/Title = Before"),
                                         HasSubstr("$!VIEW SET")}));
}

TEST_F(MainWindow, aCheckInTheListShowsASlice) {
    auto& slices = part<QListWidget>("Slice");
    slices.item(2)->setCheckState(Qt::Checked);
    EXPECT_TRUE(frame().style.slices[2].show);
    slices.item(2)->setCheckState(Qt::Unchecked);
    EXPECT_FALSE(frame().style.slices[2].show);
}

TEST_F(MainWindow, theSliderShowsATimeAndIsRecorded) {
    program().recorder().start();
    auto& slider = part<QSlider>("timeSlider");
    ASSERT_EQ(slider.maximum(), 2);
    slider.setValue(2);
    EXPECT_EQ(frame().solutionTime, 2.0);
    EXPECT_THAT(program().recorder().stop(), ElementsAre("$!SOLUTIONTIME = 2"));
    session().setSolutionTime(1.0);
    EXPECT_TRUE(waitUntil([&] { return slider.value() == 1; }));
}

TEST_F(MainWindow, playingShowsEveryTimeAndStopsAtTheLast) {
    renderer.clear();
    part<QToolButton>("timePlay").click();
    EXPECT_TRUE(controller().time().isPlaying());
    ASSERT_TRUE(waitUntil([this] { return !controller().time().isPlaying(); }));
    std::vector<double> times;
    for (const RenderedState& state : renderer.states()) {
        times.push_back(state.solutionTime);
    }
    EXPECT_THAT(times, ElementsAre(1.0, 2.0));
}

TEST_F(MainWindow, dataWithoutTimesHaveNoTimeBar) {
    reader.provide(makeStaticData());
    openData();
    EXPECT_TRUE(part<QWidget>("timeBar").isHidden());
}

TEST_F(MainWindow, aRecordedMacroLeadsToTheSameState) {
    const TempFolder folder;
    program().recorder().start();
    ASSERT_TRUE(controller().files().openData({QStringLiteral("flow.pvd")}));
    drag(Qt::LeftButton, middle(), middle() + QPoint(33, 21));
    drag(Qt::RightButton, middle(), middle() + QPoint(0, -30));
    part<QCheckBox>("Contour/ShowLegend").click();
    part<QListWidget>("IsoSurface").item(1)->setCheckState(Qt::Checked);
    part<QSlider>("timeSlider").setValue(1);
    const QString macro = QString::fromStdString(folder.file("recorded.mcr"));
    ASSERT_TRUE(controller().macros().stopRecording(macro));
    host::View3D view = frame().view;
    const host::FrameStyle style = frame().style;
    const double time = frame().solutionTime;

    startAgain();
    ASSERT_TRUE(controller().macros().play(macro)) << folder.read("recorded.mcr");

    view.width = frame().view.width; // means nothing with perspective
    EXPECT_EQ(frame().view, view);
    EXPECT_EQ(frame().style, style);
    EXPECT_EQ(frame().solutionTime, time);
}

TEST_F(MainWindow, aRecordingWhoseFileIsKnownIsWrittenWhenTheWindowCloses) {
    const TempFolder folder;
    controller().macros().recordTo(QString::fromStdString(folder.file("all.mcr")));
    part<QCheckBox>("Contour/ShowLegend").click();
    EXPECT_TRUE(window().close());
    EXPECT_THAT(folder.read("all.mcr"), HasSubstr("Contour/ShowLegend = false"));
    EXPECT_FALSE(program().recorder().isRecording());
    EXPECT_THAT(prompts.shown(), IsEmpty());
}

TEST_F(MainWindow, aRecordingThatCannotBeWrittenIsNotLostUnasked) {
    const TempFolder folder;
    controller().macros().recordTo(QString::fromStdString(folder.file("no/folder/all.mcr")));
    part<QCheckBox>("Contour/ShowLegend").click();
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(program().recorder().isRecording());
    EXPECT_THAT(prompts.shown(ShownDialog::Kind::Error), ElementsAre(HasSubstr("all.mcr")));
    EXPECT_EQ(prompts.shown(ShownDialog::Kind::Question).size(), 1U);
    program().recorder().stop();
}

TEST_F(MainWindow, aNoticeStaysInTheStatusLineWhenOtherThingsChange) {
    auto& text = part<QLabel>("statusText");
    const QString before = text.text();
    windowedHost().showNotice("There are no streamtraces to show.");
    EXPECT_EQ(text.text(), QStringLiteral("There are no streamtraces to show."));
    part<QCheckBox>("Contour/ShowLegend").click();
    settle();
    EXPECT_EQ(text.text(), QStringLiteral("There are no streamtraces to show."));
    session().status().start("Working", true, true);
    EXPECT_EQ(text.text(), QStringLiteral("Working"));
    session().status().finish();
    EXPECT_EQ(text.text(), QStringLiteral("There are no streamtraces to show."));
    EXPECT_NE(before, text.text());
}

TEST_F(MainWindow, thePictureGetsTheSizeThatWasAskedFor) {
    window().resizePicture({800, 450});
    EXPECT_TRUE(waitUntil([&] { return drawingArea().pixels() == QSize(800, 450); }));
}

TEST_F(MainWindow, aFailedExportIsToldOnceAllIsPutAway) {
    ASSERT_FALSE(session().exporter().start());
    const std::string cause = session().exporter().failure();
    session().status().start("Animating", true, true);
    session().drawing().mark();
    session().status().check(50);
    EXPECT_THAT(prompts.shown(), IsEmpty());
    session().status().finish();
    settle();
    session().drawing().mark();
    settle();
    EXPECT_THAT(prompts.shown(ShownDialog::Kind::Error), ElementsAre(cause));
}

TEST_F(MainWindow, filesThatAreDroppedAreOpened) {
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/data/a.vtu")),
                   QUrl::fromLocalFile(QStringLiteral("/data/b.vtu"))});
    const QPoint at = window().rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &drop);
    EXPECT_THAT(reader.reads().back(), ElementsAre("/data/a.vtu", "/data/b.vtu"));
}

TEST_F(MainWindow, recentFilesOpenAgain) {
    QMenu* recent = nullptr;
    const auto menus = window().findChildren<QMenu*>();
    for (QMenu* const menu : menus) {
        recent = menu->title() == QStringLiteral("&Recent Files") ? menu : recent;
    }
    ASSERT_NE(recent, nullptr);
    const auto reads = reader.reads().size();
    recent->actions().constFirst()->trigger();
    ASSERT_EQ(reader.reads().size(), reads + 1);
    EXPECT_EQ(reader.reads().back(), reader.reads().front());
}

TEST_F(MainWindow, idleWorkWaitsForTheEndOfAnInnerLoop) {
    bool isInner = false;
    std::vector<bool> wasInner;
    QEventLoop outer;
    QTimer::singleShot(0, [&] {
        QEventLoop inner;
        isInner = true;
        session().idle().add([&] { wasInner.push_back(isInner); });
        session().drawing().mark();
        const auto renders = renderer.renders();
        QTimer::singleShot(100, &inner, &QEventLoop::quit);
        inner.exec();
        EXPECT_EQ(renderer.renders(), renders + 1) << "what is due is drawn in an inner loop too";
        isInner = false;
    });
    QTimer::singleShot(400, &outer, &QEventLoop::quit);
    outer.exec();
    EXPECT_THAT(wasInner, ElementsAre(false));
}

} // namespace

} // namespace corvane::test
