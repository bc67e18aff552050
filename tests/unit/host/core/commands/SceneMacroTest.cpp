// A scene that was written as a macro comes back as it was.
#include "host/core/commands/SceneMacro.h"

#include "host/core/macro/MacroText.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SceneMacroTest : public test::EmptyHostTest {
protected:
    SceneMacroTest() {
        const auto data = test::makeVolumeData();
        data->files = {"/there/a ${b}.vtu"};
        before.reader().provide(data);
        after.reader().provide(data);
    }

    /// Plays the scene of the one host in another.
    void replay() {
        std::string macro;
        for (const std::string& line : sceneMacro(before.session())) {
            macro += line + "\n";
        }
        std::istringstream lines(macro);
        after.program().macros().play(lines, "scene", "/elsewhere");
    }

    test::MemoryHost& before = host;
    test::MemoryHost after{test::MemoryHost::Empty{}};
};

TEST_F(SceneMacroTest, nothingIsNoLines) {
    EXPECT_TRUE(sceneMacro(before.session()).empty());
}

TEST_F(SceneMacroTest, bringsBackDataStylesViewAndTime) {
    Host& program = before.program();
    program.perform("READDATA", {"/there/a ${b}.vtu"});
    program.perform("STYLE", {"Slice/2/Show", "=", "true"});
    program.perform("STYLE", {"Slice/2/Position", "=", "0.1"});
    program.perform("STYLE", {"Annotations/Title", "=", "a \"b\" = ${c}"});
    program.perform("STYLE", {"Contour/Variable", "=", "U:X"});
    program.perform("VIEW", {"SET", "Psi", "=", "0.1", "X", "=", "1e-7", "Perspective", "=",
                             "false", "Width", "=", "3.25", "Perspective", "=", "true"});
    program.perform("SOLUTIONTIME", {"=", "0.3"});
    program.perform("EXPORTSETUP", {"ExportFormat", "=", "MPEG4"});
    replay();
    const Frame& was = *before.session().page().active();
    const Frame& is = *after.session().page().active();
    EXPECT_EQ(is.style, was.style);
    EXPECT_EQ(is.view, was.view);
    EXPECT_EQ(is.solutionTime, was.solutionTime);
    EXPECT_EQ(is.placement, was.placement);
    EXPECT_EQ(after.session().exportSetup().format, ExportFormat_MPEG4);
    EXPECT_THAT(after.reader().reads(), ElementsAre(ElementsAre("/there/a ${b}.vtu")));
}

TEST_F(SceneMacroTest, writesNoValueThatComesWithTheData) {
    before.program().perform("READDATA", {"/there/x.vtu"});
    for (const std::string& line : sceneMacro(before.session())) {
        EXPECT_THAT(line, testing::Not(HasSubstr("$!STYLE")));
    }
}

TEST_F(SceneMacroTest, bringsBackThePage) {
    before.program().perform("FRAME", {"CREATE", "X", "=", "1", "Width", "=", "3"});
    before.program().perform("READDATA", {"/there/x.vtu"});
    before.program().perform("FRAME", {"CREATE", "X", "=", "4", "Width", "=", "2"});
    before.program().perform("PLOTTYPE", {"=", "CARTESIAN2D"});
    before.program().perform("FRAME", {"ACTIVATE", "=", "1"});
    replay();
    const auto& frames = after.session().page().frames();
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[0]->placement, before.session().page().frames()[0]->placement);
    EXPECT_EQ(frames[0]->plotType, PlotType_Cartesian2D);
    EXPECT_EQ(frames[1]->placement, before.session().page().frames()[1]->placement);
    EXPECT_EQ(after.session().page().active(), frames[1]);
}

TEST_F(SceneMacroTest, bringsBackTheWorkArea) {
    before.program().perform("WORKAREA", {"Width", "=", "900", "Height", "=", "700"});
    before.program().perform("READDATA", {"/there/x.vtu"});
    replay();
    EXPECT_EQ(after.session().page().workArea, before.session().page().workArea);
    EXPECT_TRUE(after.session().page().isFilledByOneFrame());
}

TEST_F(SceneMacroTest, aFrameThatFillsTheWorkAreaFillsAnotherOneToo) {
    before.program().perform("WORKAREA", {"Width", "=", "900", "Height", "=", "700"});
    before.program().perform("READDATA", {"/there/x.vtu"});
    after.session().silentPage().workArea = {300, 100, 300 / paperWidthInches};
    after.program().macros().keepPictureSize();
    replay();
    EXPECT_EQ(after.session().page().workArea.height, 100);
    EXPECT_TRUE(after.session().page().isFilledByOneFrame());
}

TEST_F(SceneMacroTest, namesTheMovieAbsolutely) {
    before.session().exportSetup().fileName = "flight.mp4";
    const std::vector<std::string> lines = sceneMacro(before.session());
    const std::string name = (std::filesystem::current_path() / "flight.mp4").string();
    EXPECT_THAT(lines, testing::Contains(macroLine("EXPORTSETUP", {"ExportFName", "=", name})));
}

TEST_F(SceneMacroTest, bringsBackTheNumbersOfFramesAndTheirStack) {
    for (const char* x : {"0", "1", "2", "3", "4"}) {
        before.program().perform("FRAME", {"CREATE", "X", "=", x});
    }
    before.program().perform("FRAME", {"DELETE"});
    before.program().perform("FRAME", {"ACTIVATE", "=", "2"});
    before.program().perform("FRAME", {"DELETE"});
    before.program().perform("FRAME", {"ACTIVATE", "=", "1"});
    before.program().perform("FRAME", {"POP"});
    before.program().perform("FRAME", {"ACTIVATE", "=", "3"});
    replay();
    Page& was = before.session().silentPage();
    Page& is = after.session().silentPage();
    EXPECT_TRUE(std::ranges::equal(is.frames(), was.frames(), [](const auto& a, const auto& b) {
        return a->id() == b->id() && a->placement == b->placement;
    }));
    EXPECT_EQ(is.active()->id(), 3);
    EXPECT_EQ(is.createFrame({}).id(), was.createFrame({}).id());
}

} // namespace
} // namespace corvane::host
