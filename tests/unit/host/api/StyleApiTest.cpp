// Style values by path.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <limits>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using toolbox::ArgList;
using toolbox::StyleValue;

std::vector<StateChange_e> heard;
void hear(StateChange_e change) {
    heard.push_back(change);
}

class StyleApiTest : public HostTest {
protected:
    StyleApiTest() {
        heard.clear();
        host.session().stateChanges().addCallback(&hear);
    }

    /// A list that holds the path "a/b/c".
    static void setPath(ArgList& args, const std::string& path) {
        int depth = 0;
        for (const std::string& keyword : host::stylePathFromString(path)) {
            args.appendString(("Path" + std::to_string(++depth)).c_str(), keyword);
        }
    }
    static int setNumber(const std::string& path, double value) {
        ArgList args;
        setPath(args, path);
        args.appendDouble("DValue", value);
        return CorUtilStyleSet(args.handle());
    }
    static int setInteger(const std::string& path, int value) {
        ArgList args;
        setPath(args, path);
        args.appendInt("IValue", value);
        return CorUtilStyleSet(args.handle());
    }
    static int setText(const std::string& path, const std::string& value) {
        ArgList args;
        setPath(args, path);
        args.appendString("SValue", value);
        return CorUtilStyleSet(args.handle());
    }
};

TEST_F(StyleApiTest, numbersAreWrittenAndRead) {
    EXPECT_EQ(setNumber("ThreeDView/ViewerPosition/X", 1.5), StyleSet_Ok);
    EXPECT_EQ(host.frame().view.position.x, 1.5);
    double x = 0.0;
    EXPECT_EQ(StyleValue("threedview", "VIEWERPOSITION").getDouble(x, "x"), StyleGet_Ok);
    EXPECT_EQ(x, 1.5);
}

TEST_F(StyleApiTest, booleansComeAsIntegersWithOrWithoutANumber) {
    EXPECT_EQ(StyleValue("ThreeDAxis").setBoolean(false, "FrameAxis", "Show"), StyleSet_Ok);
    EXPECT_FALSE(host.frame().style.annotations.showAxis);
    EXPECT_EQ(setInteger("ThreeDAxis/FrameAxis/Show", 5), StyleSet_Ok);
    EXPECT_TRUE(host.frame().style.annotations.showAxis);
    bool shown = false;
    EXPECT_EQ(StyleValue("ThreeDAxis", "FrameAxis").getBoolean(shown, "Show"), StyleGet_Ok);
    EXPECT_TRUE(shown);
}

TEST_F(StyleApiTest, integersAndTextsAreWritten) {
    EXPECT_EQ(setInteger("ExportSetup/ImageWidth", 640), StyleSet_Ok);
    EXPECT_EQ(setText("ExportSetup/ExportFName", "a.avi"), StyleSet_Ok);
    EXPECT_EQ(host.session().exportSetup().imageWidth, 640);
    EXPECT_EQ(host.session().exportSetup().fileName, "a.avi");
    long width = 0;
    EXPECT_EQ(StyleValue("ExportSetup").getInteger(width, "ImageWidth"), StyleGet_Ok);
    EXPECT_EQ(width, 640);
}

TEST_F(StyleApiTest, theLeafDecidesWhichArgumentCounts) {
    const double psi = host.frame().view.psi;
    EXPECT_EQ(setInteger("ThreeDView/PSIAngle", 20), StyleSet_BadValue);
    EXPECT_EQ(setText("ThreeDView/PSIAngle", "20"), StyleSet_BadValue);
    EXPECT_EQ(setNumber("ThreeDAxis/FrameAxis/Show", 0.0), StyleSet_BadValue);
    EXPECT_EQ(setNumber("ExportSetup/ImageWidth", 640.0), StyleSet_BadValue);
    EXPECT_EQ(setInteger("ExportSetup/ExportFName", 1), StyleSet_BadValue);
    EXPECT_EQ(host.frame().view.psi, psi);
    EXPECT_EQ(host.session().exportSetup().imageWidth, 512);
    ArgList both;
    setPath(both, "ExportSetup/ImageWidth");
    both.appendDouble("DValue", 99.0);
    both.appendInt("IValue", 640);
    EXPECT_EQ(CorUtilStyleSet(both.handle()), StyleSet_Ok);
    EXPECT_EQ(host.session().exportSetup().imageWidth, 640);
}

TEST_F(StyleApiTest, aValueIsNeeded) {
    ArgList args;
    setPath(args, "ThreeDView/PSIAngle");
    EXPECT_EQ(CorUtilStyleSet(args.handle()), StyleSet_BadValue);
    EXPECT_EQ(CorUtilStyleGet(args.handle()), StyleGet_NotAvailable);
}

TEST_F(StyleApiTest, aReadOfAnotherTypeLeavesTheResult) {
    double number = -1.0;
    long integer = -1;
    EXPECT_EQ(StyleValue("ExportSetup").getDouble(number, "ImageWidth"), StyleGet_NotAvailable);
    EXPECT_EQ(StyleValue("ThreeDView").getInteger(integer, "PSIAngle"), StyleGet_NotAvailable);
    EXPECT_EQ(StyleValue("ExportSetup").getInteger(integer, "ExportFName"), StyleGet_NotAvailable);
    EXPECT_EQ(number, -1.0);
    EXPECT_EQ(integer, -1);
}

TEST_F(StyleApiTest, theLastOfTwoValuesCounts) {
    ArgList args;
    args.appendString("Path1", "ExportSetup");
    args.appendString("Path2", "AnimationSpeed");
    args.appendString("Path2", "ImageWidth");
    args.appendInt("IValue", 640);
    args.appendInt("IValue", 650);
    EXPECT_EQ(CorUtilStyleSet(args.handle()), StyleSet_Ok);
    EXPECT_EQ(host.session().exportSetup().imageWidth, 650);
}

TEST_F(StyleApiTest, unknownPathsAreBad) {
    double value = -1.0;
    EXPECT_EQ(setNumber("ThreeDView/Colour", 1.0), StyleSet_BadPath);
    EXPECT_EQ(setNumber("ThreeDView", 1.0), StyleSet_BadPath);
    EXPECT_EQ(setNumber("ThreeDView/PSIAngle/X", 1.0), StyleSet_BadPath);
    EXPECT_EQ(setNumber("ExportSetup/Colour", 1.0), StyleSet_BadPath);
    EXPECT_EQ(StyleValue("ThreeDView").getDouble(value, "Colour"), StyleGet_BadPath);
    ArgList empty;
    EXPECT_EQ(CorUtilStyleSet(empty.handle()), StyleSet_BadPath);
    EXPECT_EQ(CorUtilStyleGet(empty.handle()), StyleGet_BadPath);
    EXPECT_EQ(value, -1.0);
}

TEST_F(StyleApiTest, aPathEndsAtItsFirstGap) {
    ArgList args;
    args.appendString("Path1", "ThreeDView");
    args.appendString("Path3", "PSIAngle");
    args.appendDouble("DValue", 1.0);
    EXPECT_EQ(CorUtilStyleSet(args.handle()), StyleSet_BadPath);
}

TEST_F(StyleApiTest, badNumbersAreRefused) {
    const host::FrameStyle style = host.frame().style;
    const host::View3D view = host.frame().view;
    EXPECT_EQ(setNumber("ThreeDView/PSIAngle", std::numeric_limits<double>::quiet_NaN()),
              StyleSet_BadValue);
    EXPECT_EQ(setNumber("GlobalThreeD/LightSource/Intensity", 100.5), StyleSet_BadValue);
    EXPECT_EQ(setNumber("StreamAttributes/StreamTiming/DeltaTime", 0.0), StyleSet_BadValue);
    EXPECT_EQ(host.frame().style, style);
    EXPECT_EQ(host.frame().view, view);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(StyleApiTest, theWidthIsSetWithoutPerspectiveOnly) {
    StyleValue style("ThreeDView");
    const host::View3D before = host.frame().view;
    EXPECT_EQ(style.set(7.0, "ViewWidth"), StyleSet_NotAllowed);
    EXPECT_EQ(style.setBoolean(false, "DrawInPerspective"), StyleSet_Ok);
    EXPECT_EQ(style.set(0.0, "ViewWidth"), StyleSet_BadValue);
    EXPECT_EQ(style.set(7.0, "ViewWidth"), StyleSet_Ok);
    EXPECT_EQ(style.setBoolean(true, "DrawInPerspective"), StyleSet_Ok);
    EXPECT_EQ(host.frame().view.width, 7.0);
    EXPECT_EQ(host.frame().view.position, before.position);
    EXPECT_EQ(host.frame().view.fieldOfView, before.fieldOfView);
}

TEST_F(StyleApiTest, writesTellAndMarkOnceAndDrawNothing) {
    setNumber("ThreeDView/PSIAngle", 1.0);
    setNumber("ThreeDView/PSIAngle", 1.0);
    setNumber("GlobalThreeD/LightSource/Intensity", 1.0);
    EXPECT_THAT(heard, ElementsAre(StateChange_ViewChanged, StateChange_StyleChanged));
    EXPECT_TRUE(host.session().drawing().isMarked());
    EXPECT_EQ(host.renderer().renders(), 0U);
}

TEST_F(StyleApiTest, anUnchangedValueNeitherTellsNorMarks) {
    EXPECT_EQ(setNumber("ThreeDView/PSIAngle", host.frame().view.psi), StyleSet_Unchanged);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_FALSE(host.session().drawing().isMarked());
}

TEST_F(StyleApiTest, theActiveFrameOfThisMomentIsReached) {
    StyleValue style("ThreeDView");
    const long first = host.frame().id();
    host::Frame& second = host.addFrame();
    style.set(11.0, "PSIAngle");
    CorUtilFrameActivateByUniqueID(first);
    style.set(12.0, "PSIAngle");
    EXPECT_EQ(second.view.psi, 11.0);
    EXPECT_EQ(host.frame().view.psi, 12.0);
}

TEST_F(StyleApiTest, aFrameThatIsNot3DHasNoValues) {
    host.setPlotType(PlotType_Cartesian2D);
    double psi = -1.0;
    EXPECT_EQ(setNumber("ThreeDView/PSIAngle", 1.0), StyleSet_NotAllowed);
    EXPECT_EQ(StyleValue("ThreeDView").getDouble(psi, "PSIAngle"), StyleGet_NotAvailable);
    EXPECT_EQ(psi, -1.0);
    EXPECT_EQ(setInteger("ExportSetup/ImageWidth", 640), StyleSet_Ok);
}

TEST_F(StyleApiTest, noListIsMisuse) {
    host.expectMisuse("CorUtilStyleSet: args is no list");
    host.expectMisuse("CorUtilStyleGet: args is no list");
    EXPECT_EQ(CorUtilStyleSet(nullptr), StyleSet_BadPath);
    EXPECT_EQ(CorUtilStyleGet(nullptr), StyleGet_BadPath);
}

TEST_F(StyleApiTest, pathAndValueAreTracedInOneLine) {
    setNumber("ThreeDView/ViewerPosition/X", 1.5);
    setText("ExportSetup/ExportFName", "a b.avi");
    StyleValue("Interface").setBoolean(false, "UseDisplayLists");
    bool value = true;
    StyleValue("Interface").getBoolean(value, "UseDisplayLists");
    std::vector<std::string> lines;
    for (const host::TraceRecord& record : host.records()) {
        lines.push_back(host::toString(record));
    }
    EXPECT_THAT(
        lines,
        ElementsAre(R"(CorUtilStyleSet("ThreeDView","ViewerPosition","X", DValue=1.5) = 0 [0])",
                    R"(CorUtilStyleSet("ExportSetup","ExportFName", SValue="a b.avi") = 0 [0])",
                    R"(CorUtilStyleSet("Interface","UseDisplayLists", IValue=0, DValue=0) = 0 [0])",
                    R"(CorUtilStyleGet("Interface","UseDisplayLists", IValue=non-null) = 0 [0])"));
}

} // namespace
} // namespace corvane::test
