// A flight that was made by hand in the window, and recorded: the macro makes the same movie again.
#include "host/gui/controls/ValueSlider.h"
#include "host/gui/view/DrawingArea.h"
#include "host/movie/LibavMovieWriters.h"
#include "host/movie/PngFiles.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/gui/FileDialogUser.h"
#include "tests/gui/KeyFrameWindowTest.h"
#include "tests/unit/host/movie/DecodedMovie.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QScrollArea>
#include <QSlider>
#include <QToolButton>
#include <QtTest>
#include <filesystem>

namespace corvane::test {

namespace {

using movie_test::DecodedMovie;
using ::testing::HasSubstr;

struct RealSurroundings {
    scene::SceneRenderer scene;
    scene::DataReaders files;
    movie::LibavMovieWriters libav{[](const std::string&) {}};
    movie::PngFiles png;
};

/// Everything is done by keys and mouse, and every dialog is the program's own.
class RecordedFlight : private RealSurroundings, public KeyFrameWindowTest {
protected:
    RecordedFlight()
        : KeyFrameWindowTest({.renderer = &scene,
                              .reader = &files,
                              .movies = &libav,
                              .pictures = &png,
                              .hasRealDialogs = true}) {}

    void SetUp() override {
        loadAddOn();
        // Of no shape that a run without a window would have by itself.
        window().resize(860, 690);
        settle();
    }

    void stopRecording() {
        user.answer(folder.file("recorded.mcr"));
        chooseByKeys(Qt::Key_M, Qt::Key_S);
    }
    ProgramResult replay() {
        return runProgram({"--batch", "--macro", folder.file("recorded.mcr")});
    }

    void openWake();
    void changePlots();
    void changeView();
    /// Three key frames, through time and out of the dark, in a file that is opened again.
    DialogUser makeFlight();
    void animateToFile(const DialogUser& main, const std::string& movie);

    FileDialogUser user;

private:
    template <typename Widget>
    Widget& inSight(const char* name) {
        auto& widget = part<Widget>(name);
        for (QWidget* at = &widget; at != nullptr; at = at->parentWidget()) {
            if (auto* const scroll = qobject_cast<QScrollArea*>(at)) {
                scroll->ensureWidgetVisible(&widget);
            }
        }
        settle();
        return widget;
    }
    void click(QWidget& widget) {
        DialogUser::click(widget, QPoint(8, widget.height() / 2));
        settle();
    }
    void unfold(const char* section) {
        auto* const header =
            inSight<QWidget>(section).findChild<QAbstractButton*>(QStringLiteral("header"));
        if (!header->isChecked()) {
            click(*header);
        }
    }
    void tick(const char* list, int row) {
        auto& widget = inSight<QListWidget>(list);
        const QRect place = widget.visualItemRect(widget.item(row));
        DialogUser::click(*widget.viewport(), {place.left() + 10, place.center().y()});
        settle();
    }
};

void RecordedFlight::openWake() {
    user.answer(exampleFile("wake/wake.pvd"));
    QTest::keyClick(window().windowHandle(), Qt::Key_O, Qt::ControlModifier);
    settle();
}

void RecordedFlight::changePlots() {
    auto& colors = inSight<QComboBox>("Contour/ColorMap");
    click(colors);
    QTest::keyClick(colors.view(), Qt::Key_Down);
    QTest::keyClick(colors.view(), Qt::Key_Return);
    tick("Slice", 1);
    unfold("isoSurfaces");
    tick("IsoSurface", 0);
    unfold("streamtraces");
    click(inSight<QWidget>("Streamtraces/Show"));
    unfold("light");
    auto& light = inSight<gui::ValueSlider>("GlobalThreeD/LightSource/Intensity");
    QTest::keyClick(&light.slider(), Qt::Key_PageDown);
    EXPECT_NE(frame().style.contour.colorMap, "Viridis");
    EXPECT_TRUE(frame().style.slices[1].show);
    EXPECT_TRUE(frame().style.isoSurfaces[0].show);
    EXPECT_TRUE(frame().style.streamtraces.show);
}

void RecordedFlight::changeView() {
    const QPoint middle = drawingArea().rect().center();
    const host::View3D before = frame().view;
    drag(Qt::LeftButton, middle, middle + QPoint(-70, 35));
    drag(Qt::MiddleButton, middle, middle + QPoint(15, 10));
    QWheelEvent wheel(middle, drawingArea().mapToGlobal(middle), {}, {0, 240}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&drawingArea(), &wheel);
    EXPECT_FALSE(frame().view == before);
    const double time = frame().solutionTime;
    click(part<QToolButton>("timeForward"));
    click(part<QToolButton>("timeForward"));
    EXPECT_NE(frame().solutionTime, time);
}

DialogUser RecordedFlight::makeFlight() {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    dialog.clickRow(0);
    dialog.clickRow(2, Qt::ShiftModifier);
    const QString count = QStringLiteral("Frame Count:");
    EXPECT_TRUE(waitUntil([&] { return dialog.field(count).isEnabled(); }));
    dialog.enter(count, QStringLiteral("4"));
    const QString options = QStringLiteral("Options");
    dialog.choose(options, QStringLiteral("Fade In"));
    dialog.choose(options, QStringLiteral("Time Animation Options..."));
    {
        const DialogUser time(QStringLiteral("Time Animation Options"));
        time.click(QStringLiteral("Bounce"));
        time.click(QStringLiteral("OK"));
    }
    const QString file = QStringLiteral("File");
    for (const char* entry : {"Save Animation File As...", "Open Animation File..."}) {
        user.answer(folder.file("Flug über 風 und Körper.keyframe"));
        dialog.activate();
        dialog.choose(file, QString::fromUtf8(entry));
        EXPECT_TRUE(user.hasAnsweredAll()) << entry;
    }
    const QString all = QStringLiteral("Animate All");
    EXPECT_TRUE(waitUntil([&] { return dialog.button(all).isEnabled(); }));
    dialog.activate();
    return dialog;
}

void RecordedFlight::animateToFile(const DialogUser& main, const std::string& movie) {
    main.pick(QStringLiteral("Destination:"), QStringLiteral("To File"));
    main.click(QStringLiteral("Animate All"));
    const DialogUser dialog(QStringLiteral("Export Options"));
    dialog.pick(QStringLiteral("Format:"), QStringLiteral("AVI"));
    dialog.pick(QStringLiteral("AVI Compression:"), QStringLiteral("Line Preserving"));
    dialog.click(QStringLiteral("Enter Width:"));
    dialog.enter(QStringLiteral("Enter Width:"), QStringLiteral("200"));
    dialog.enter(QStringLiteral("Animation Speed (frames/sec):"), QStringLiteral("12.5"));
    user.answer(movie);
    dialog.click(QStringLiteral("OK"));
    settle();
}

TEST_F(RecordedFlight, isMadeAgainPictureByPicture) {
    const std::string movie = folder.file("Film für alle.avi");
    record();
    openWake();
    changePlots();
    changeView();
    animateToFile(makeFlight(), movie);
    stopRecording();
    EXPECT_EQ(user.boxes(), QStringList());
    session().exportPicture(folder.file("window.png"), ExportRegion_WorkArea, 300, 2);

    ASSERT_TRUE(std::filesystem::exists(movie));
    std::filesystem::rename(movie, folder.file("window.avi"));
    std::string macro = folder.read("recorded.mcr");
    macro += "$!PICTURE \"again.png\" Width = 300 Supersample = 2\n";
    folder.write("recorded.mcr", macro);
    const ProgramResult result = replay();
    ASSERT_EQ(result.exitCode, 0) << result.errors << macro;

    const DecodedMovie first(folder.file("window.avi"));
    const DecodedMovie again(movie);
    EXPECT_EQ(first.frames, 9);
    EXPECT_EQ(first.width, 200);
    EXPECT_NE(first.height, 200 * 9 / 16) << "of the window's shape";
    EXPECT_EQ(first.rateNumerator, 25);
    EXPECT_EQ(first.rateDenominator, 2);
    EXPECT_EQ(again.frames, first.frames);
    EXPECT_EQ(again.height, first.height);
    EXPECT_EQ(again.rateNumerator, first.rateNumerator);
    const auto seen = first.pictures();
    EXPECT_FALSE(seen.front() == seen.back());
    EXPECT_TRUE(again.pictures() == seen) << macro;
    EXPECT_EQ(folder.read("again.png"), folder.read("window.png"));
}

TEST_F(RecordedFlight, onTheScreenIsRecordedAndEndsWithoutOne) {
    record();
    openWake();
    makeFlight().click(QStringLiteral("Animate All"));
    settle();
    stopRecording();
    EXPECT_EQ(user.boxes(), QStringList());
    EXPECT_THAT(folder.read("recorded.mcr"),
                HasSubstr("\"Animate AnimationDestination=OnScreen\"\n"));
    const ProgramResult result = replay();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
}

} // namespace

} // namespace corvane::test
