// A scene that was written as a macro comes back as it was.
#include "host/core/macro/SceneMacro.h"

#include "host/core/macro/MacroText.h"
#include "tests/unit/host_core/Fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SceneMacroTest : public testing::Test {
protected:
    SceneMacroTest() {
        before.reader.data = fakes::volumeData();
        before.reader.data->files = {"/there/a ${b}.vtu"};
    }

    /// Plays the scene of the one host in another.
    void replay() {
        std::string macro;
        for (const std::string& line : sceneMacro(before.app)) {
            macro += line + "\n";
        }
        after.reader.data = before.reader.data;
        std::istringstream lines(macro);
        after.app.macros().play(lines, "scene", "/elsewhere");
    }

    fakes::FakeHost before;
    fakes::FakeHost after;
};

TEST_F(SceneMacroTest, NothingIsNoLines) {
    EXPECT_TRUE(sceneMacro(before.app).empty());
}

TEST_F(SceneMacroTest, BringsBackDataStylesViewAndTime) {
    Application& app = before.app;
    app.perform("READDATA", {"/there/a ${b}.vtu"});
    app.perform("STYLE", {"Slice/2/Show", "=", "true"});
    app.perform("STYLE", {"Slice/2/Position", "=", "0.1"});
    app.perform("STYLE", {"Annotations/Title", "=", "a \"b\" = ${c}"});
    app.perform("STYLE", {"Contour/Variable", "=", "U:X"});
    app.perform("VIEW", {"SET", "Psi", "=", "0.1", "X", "=", "1e-7", "Perspective", "=", "false",
                         "Width", "=", "3.25", "Perspective", "=", "true"});
    app.perform("SOLUTIONTIME", {"=", "0.3"});
    app.perform("EXPORTSETUP", {"ExportFormat", "=", "MPEG4"});
    replay();
    const Frame& was = *before.app.page().active();
    const Frame& is = *after.app.page().active();
    EXPECT_EQ(is.style, was.style);
    EXPECT_EQ(is.view, was.view);
    EXPECT_EQ(is.solutionTime, was.solutionTime);
    EXPECT_EQ(is.placement, was.placement);
    EXPECT_EQ(after.app.exportSetup().format, ExportFormat_MPEG4);
    EXPECT_THAT(after.reader.calls, ElementsAre(ElementsAre("/there/a ${b}.vtu")));
}

TEST_F(SceneMacroTest, WritesNoValueThatComesWithTheData) {
    before.app.perform("READDATA", {"/there/x.vtu"});
    for (const std::string& line : sceneMacro(before.app)) {
        EXPECT_THAT(line, testing::Not(HasSubstr("$!STYLE")));
    }
}

TEST_F(SceneMacroTest, BringsBackThePage) {
    before.app.perform("FRAME", {"CREATE", "X", "=", "1", "Width", "=", "3"});
    before.app.perform("READDATA", {"/there/x.vtu"});
    before.app.perform("FRAME", {"CREATE", "X", "=", "4", "Width", "=", "2"});
    before.app.perform("PLOTTYPE", {"=", "CARTESIAN2D"});
    before.app.perform("FRAME", {"ACTIVATE", "=", "1"});
    replay();
    const auto& frames = after.app.page().frames();
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[0]->placement, before.app.page().frames()[0]->placement);
    EXPECT_EQ(frames[0]->plotType, PlotType_Cartesian2D);
    EXPECT_EQ(frames[1]->placement, before.app.page().frames()[1]->placement);
    EXPECT_EQ(after.app.page().active(), frames[1].get());
}

TEST_F(SceneMacroTest, BringsBackTheWorkArea) {
    before.app.perform("WORKAREA", {"Width", "=", "900", "Height", "=", "700"});
    before.app.perform("READDATA", {"/there/x.vtu"});
    replay();
    EXPECT_EQ(after.app.page().workArea, before.app.page().workArea);
    EXPECT_TRUE(after.app.page().isFilledByOneFrame());
}

TEST_F(SceneMacroTest, AFrameThatFillsTheWorkAreaFillsAnotherOneToo) {
    before.app.perform("WORKAREA", {"Width", "=", "900", "Height", "=", "700"});
    before.app.perform("READDATA", {"/there/x.vtu"});
    after.app.page().workArea = {300, 100, 300 / paperWidthInches};
    after.app.macros().keepPictureSize();
    replay();
    EXPECT_EQ(after.app.page().workArea.height, 100);
    EXPECT_TRUE(after.app.page().isFilledByOneFrame());
}

TEST_F(SceneMacroTest, NamesTheMovieAbsolutely) {
    before.app.exportSetup().fileName = "flight.mp4";
    const std::vector<std::string> lines = sceneMacro(before.app);
    const std::string name = (std::filesystem::current_path() / "flight.mp4").string();
    EXPECT_THAT(lines, testing::Contains(macroLine("EXPORTSETUP", {"ExportFName", "=", name})));
}

TEST_F(SceneMacroTest, BringsBackTheNumbersOfFramesAndTheirStack) {
    for (const char* x : {"0", "1", "2", "3", "4"}) {
        before.app.perform("FRAME", {"CREATE", "X", "=", x});
    }
    before.app.perform("FRAME", {"DELETE"});
    before.app.perform("FRAME", {"ACTIVATE", "=", "2"});
    before.app.perform("FRAME", {"DELETE"});
    before.app.perform("FRAME", {"ACTIVATE", "=", "1"});
    before.app.perform("FRAME", {"POP"});
    before.app.perform("FRAME", {"ACTIVATE", "=", "3"});
    replay();
    Page& was = before.app.page();
    Page& is = after.app.page();
    EXPECT_TRUE(std::equal(is.frames().begin(), is.frames().end(), was.frames().begin(),
                           was.frames().end(), [](const auto& a, const auto& b) {
                               return a->id() == b->id() && a->placement == b->placement;
                           }));
    EXPECT_EQ(is.active()->id(), 3);
    EXPECT_EQ(is.createFrame({}).id(), was.createFrame({}).id());
}

} // namespace
} // namespace corvane::host
