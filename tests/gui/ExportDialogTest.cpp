// The export options in the hands of a user, through to movies.
#include "host/movie/LibavMovieWriters.h"
#include "tests/gui/KeyFrameWindowTest.h"
#include "tests/unit/host/movie/DecodedMovie.h"

#include <QtTest>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct RealMovies {
    movie::LibavMovieWriters writers{[](const std::string&) {}};
};

class ExportDialog : private RealMovies, public KeyFrameWindowTest {
protected:
    ExportDialog() : KeyFrameWindowTest({.movies = &writers}) {}

    const QString exportTitle = QStringLiteral("Export Options");

    /// With two key frames, by Animate All.
    DialogUser openExportDialog(const DialogUser& main) {
        if (!main.list().isEnabled()) {
            capture(main, 2);
        }
        main.pick(QStringLiteral("Destination:"), QStringLiteral("To File"));
        EXPECT_TRUE(
            waitUntil([&] { return main.button(QStringLiteral("Animate All")).isEnabled(); }));
        main.click(QStringLiteral("Animate All"));
        return DialogUser(exportTitle);
    }
};

TEST_F(ExportDialog, makesAMovie) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openExportDialog(main);
    dialog.pick(QStringLiteral("Format:"), QStringLiteral("MPEG-4"));
    dialog.pick(QStringLiteral("Region:"), QStringLiteral("Work Area"));
    dialog.click(QStringLiteral("Enter Width:"));
    dialog.enter(QStringLiteral("Enter Width:"), QStringLiteral("160"));
    const QString size = dialog.label(QStringLiteral("Dimensions")).text();
    EXPECT_TRUE(size.startsWith(QStringLiteral("Dimensions: 160 x "))) << size.toStdString();
    dialog.enter(QStringLiteral("Animation Speed (frames/sec):"), QStringLiteral("25"));
    prompts.answerFile(folder.file("flight.mp4"));
    dialog.click(QStringLiteral("OK"));
    EXPECT_FALSE(DialogUser::isUp(exportTitle));
    settle();

    EXPECT_THAT(errors(), IsEmpty());
    ASSERT_TRUE(folder.has("flight.mp4"));
    const movie_test::DecodedMovie movie(folder.file("flight.mp4"));
    EXPECT_EQ(movie.frames, 31);
    EXPECT_EQ(movie.width, 160);
    const int height = size.section(QLatin1Char(' '), -1).toInt();
    EXPECT_NEAR(movie.height, height, 2) << "rounded, and even as the format needs it";
    EXPECT_EQ(movie.rateNumerator, 25 * movie.rateDenominator);
    EXPECT_TRUE(main.window().isVisible());
}

TEST_F(ExportDialog, escIsCancelAndTheLockIsGone) {
    const DialogUser main = openDialog();
    for (const bool byEsc : {true, false}) {
        const DialogUser dialog = openExportDialog(main);
        EXPECT_EQ(session().locks().depth(), 1);
        if (byEsc) {
            dialog.press(Qt::Key_Escape);
        } else {
            dialog.window().close();
        }
        EXPECT_FALSE(DialogUser::isUp(exportTitle));
        EXPECT_EQ(session().locks().depth(), 0);
    }
    EXPECT_THAT(prompts.shown(), IsEmpty());
    EXPECT_FALSE(session().exporter().isRecording());
}

TEST_F(ExportDialog, staysUpWhenNoFileIsChosen) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openExportDialog(main);
    dialog.click(QStringLiteral("OK"));
    EXPECT_THAT(prompts.shown(ShownDialog::Kind::FileToWrite), ElementsAre("Movie"));
    EXPECT_TRUE(DialogUser::isUp(exportTitle));
    dialog.click(QStringLiteral("Cancel"));
    EXPECT_FALSE(DialogUser::isUp(exportTitle));
}

TEST_F(ExportDialog, controlsDependOnTheFormat) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openExportDialog(main);
    const auto isEnabled = [&](const char* caption) {
        return dialog.label(QString::fromUtf8(caption)).isEnabled();
    };
    const QString format = QStringLiteral("Format:");
    dialog.pick(format, QStringLiteral("Flash (SWF)"));
    EXPECT_FALSE(isEnabled("AVI Compression:"));
    EXPECT_TRUE(isEnabled("Image Type:"));
    EXPECT_TRUE(dialog.button(QStringLiteral("Optimize for File Size")).isEnabled());
    dialog.pick(format, QStringLiteral("Raster Metafile"));
    EXPECT_FALSE(isEnabled("Animation Speed"));
    EXPECT_FALSE(isEnabled("Image Type:"));
    dialog.pick(format, QStringLiteral("AVI"));
    EXPECT_TRUE(isEnabled("AVI Compression:"));
    EXPECT_TRUE(isEnabled("Animation Speed"));
    EXPECT_FALSE(isEnabled("Supersample Factor"));
    dialog.click(QStringLiteral("Antialiasing"));
    EXPECT_TRUE(isEnabled("Supersample Factor"));
    dialog.press(Qt::Key_Escape);
}

TEST_F(ExportDialog, returnInAFieldIsNotOk) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openExportDialog(main);
    const QString speed = QStringLiteral("Animation Speed (frames/sec):");
    dialog.enter(speed, QStringLiteral("1000"));
    EXPECT_THAT(errors(), ElementsAre(HasSubstr("between 0.001 and 200.")));
    EXPECT_EQ(dialog.field(speed).text(), QStringLiteral("30"));
    EXPECT_TRUE(DialogUser::isUp(exportTitle));
    EXPECT_THAT(prompts.shown(ShownDialog::Kind::FileToWrite), IsEmpty());
    dialog.press(Qt::Key_Escape);
}

TEST_F(ExportDialog, theRegionSurvivesAndEscStopsTheMovie) {
    const DialogUser main = openDialog();
    {
        const DialogUser dialog = openExportDialog(main);
        dialog.pick(QStringLiteral("Region:"), QStringLiteral("All Frames"));
        dialog.press(Qt::Key_Escape);
    }
    const DialogUser dialog = openExportDialog(main);
    EXPECT_EQ(dialog.options(QStringLiteral("Region:")).currentText(),
              QStringLiteral("All Frames"));
    prompts.answerFile(folder.file("stopped.avi"));
    playAnd(dialog, QStringLiteral("OK"),
            [&] { QTest::keyClick(main.window().windowHandle(), Qt::Key_Escape); });
    EXPECT_THAT(errors(), ElementsAre("Animation canceled."));
    EXPECT_FALSE(folder.has("stopped.avi"));
    EXPECT_EQ(session().locks().depth(), 0);
}

TEST_F(ExportDialog, isRecordedAsAMacro) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openExportDialog(main);
    dialog.pick(QStringLiteral("Format:"), QStringLiteral("MPEG-4"));
    program().recorder().start();
    prompts.answerFile(folder.file("a.mp4"));
    dialog.click(QStringLiteral("OK"));
    settle();
    const std::vector<std::string> lines = program().recorder().stop();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "$!EXPORTSETUP ExportFormat = MPEG4");
    EXPECT_THAT(lines.back(), HasSubstr("Animate"));
}

} // namespace

} // namespace corvane::test
