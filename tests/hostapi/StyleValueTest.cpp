// Tests of style values addressed by root path and sub path.
#include "hostapi/toolbox/StyleValue.h"

#include "tests/support/HostTest.h"

#include <limits>
#include <string>

namespace corvane::toolbox {
namespace {

using ::testing::ElementsAre;

class StyleValueTest : public test::HostTest {
protected:
    host::View3D& view() { return host.frame().view; }
};

class StyleValueWithoutFrameTest : public test::EmptyHostTest {};

TEST_F(StyleValueTest, readsNumberBelowItsRoot) {
    view().psi = 190.25;
    double psi = 0.0;

    EXPECT_EQ(StyleValue("ThreeDView").getDouble(psi, "PSIAngle"), StyleGet_Ok);
    EXPECT_EQ(psi, 190.25);
}

TEST_F(StyleValueTest, rootAndSubPathMayBeSplitAnywhere) {
    view().position = {1.0, 2.0, 3.0};
    double fromShortRoot = 0.0;
    double fromLongRoot = 0.0;
    double fromWholeRoot = 0.0;

    EXPECT_EQ(StyleValue("ThreeDView").getDouble(fromShortRoot, "ViewerPosition", "Y"),
              StyleGet_Ok);
    EXPECT_EQ(StyleValue("ThreeDView", "ViewerPosition").getDouble(fromLongRoot, "Y"), StyleGet_Ok);
    EXPECT_EQ(StyleValue("ThreeDView", "ViewerPosition", "Y").getDouble(fromWholeRoot),
              StyleGet_Ok);
    EXPECT_EQ(fromShortRoot, 2.0);
    EXPECT_EQ(fromLongRoot, 2.0);
    EXPECT_EQ(fromWholeRoot, 2.0);
}

TEST_F(StyleValueTest, readsIntegerAndBoolean) {
    view().perspective = true;
    long width = 0;
    bool isInPerspective = false;

    EXPECT_EQ(StyleValue("ExportSetup").getInteger(width, "ImageWidth"), StyleGet_Ok);
    EXPECT_EQ(width, 512);
    EXPECT_EQ(StyleValue("ThreeDView").getBoolean(isInPerspective, "DrawInPerspective"),
              StyleGet_Ok);
    EXPECT_TRUE(isInPerspective);

    view().perspective = false;
    EXPECT_EQ(StyleValue("ThreeDView").getBoolean(isInPerspective, "DrawInPerspective"),
              StyleGet_Ok);
    EXPECT_FALSE(isInPerspective);
}

TEST_F(StyleValueTest, failedReadLeavesResultAlone) {
    double number = 1.5;
    long integer = 7;
    bool truth = true;
    const StyleValue unknown("NoSuchRoot");

    EXPECT_EQ(unknown.getDouble(number, "X"), StyleGet_BadPath);
    EXPECT_EQ(unknown.getInteger(integer, "X"), StyleGet_BadPath);
    EXPECT_EQ(unknown.getBoolean(truth, "X"), StyleGet_BadPath);
    EXPECT_EQ(number, 1.5);
    EXPECT_EQ(integer, 7);
    EXPECT_TRUE(truth);
}

TEST_F(StyleValueTest, readOfAnotherTypeLeavesResultAlone) {
    double number = 1.5;
    long integer = 7;

    EXPECT_NE(StyleValue("ThreeDView").getDouble(number, "DrawInPerspective"), StyleGet_Ok);
    EXPECT_NE(StyleValue("ThreeDView").getInteger(integer, "PSIAngle"), StyleGet_Ok);
    EXPECT_EQ(number, 1.5);
    EXPECT_EQ(integer, 7);
}

TEST_F(StyleValueTest, readsThroughTheKeyOfItsType) {
    double number = 0.0;
    long integer = 0;
    bool truth = false;
    StyleValue("ThreeDView").getDouble(number, "PSIAngle");
    StyleValue("ExportSetup").getInteger(integer, "ImageWidth");
    StyleValue("ThreeDView").getBoolean(truth, "DrawInPerspective");

    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilStyleGet(\"ThreeDView\",\"PSIAngle\", DValue=non-null)",
                            "CorUtilStyleGet(\"ExportSetup\",\"ImageWidth\", IValue=non-null)",
                            "CorUtilStyleGet(\"ThreeDView\",\"DrawInPerspective\", "
                            "IValue=non-null)"));
}

TEST_F(StyleValueTest, writesNumberAsDValue) {
    EXPECT_EQ(StyleValue("ThreeDView").set(-30.5, "ThetaAngle"), StyleSet_Ok);

    EXPECT_EQ(view().theta, -30.5);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilStyleSet(\"ThreeDView\",\"ThetaAngle\", DValue=-30.5)"));
}

TEST_F(StyleValueTest, writesBooleanAsIntegerAndNumber) {
    view().perspective = false;

    EXPECT_EQ(StyleValue("ThreeDView").setBoolean(true, "DrawInPerspective"), StyleSet_Ok);
    EXPECT_TRUE(view().perspective);
    EXPECT_EQ(StyleValue("ThreeDView").setBoolean(false, "DrawInPerspective"), StyleSet_Ok);
    EXPECT_FALSE(view().perspective);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilStyleSet(\"ThreeDView\",\"DrawInPerspective\", IValue=1, "
                            "DValue=1)",
                            "CorUtilStyleSet(\"ThreeDView\",\"DrawInPerspective\", IValue=0, "
                            "DValue=0)"));
}

TEST_F(StyleValueTest, tellsWhyAWriteChangedNothing) {
    view().perspective = true;
    view().theta = 5.0;
    view().width = 2.0;
    StyleValue value("ThreeDView");

    EXPECT_EQ(value.set(5.0, "ThetaAngle"), StyleSet_Unchanged);
    EXPECT_EQ(value.set(5.0, "NoSuchAngle"), StyleSet_BadPath);
    EXPECT_EQ(value.set(std::numeric_limits<double>::quiet_NaN(), "ThetaAngle"), StyleSet_BadValue);
    EXPECT_EQ(value.set(4.0, "ViewWidth"), StyleSet_NotAllowed);
    EXPECT_EQ(view().theta, 5.0);
    EXPECT_EQ(view().width, 2.0);
}

TEST_F(StyleValueTest, letterCaseDoesNotCount) {
    EXPECT_EQ(StyleValue("threedview").set(12.0, "psiANGLE"), StyleSet_Ok);
    EXPECT_EQ(view().psi, 12.0);
}

TEST_F(StyleValueTest, followsTheActiveFrame) {
    StyleValue value("ThreeDView");
    host::Frame& first = host.frame();
    host::Frame& second = host.addFrame();
    first.view.alpha = 0.0;
    second.view.alpha = 0.0;

    EXPECT_EQ(value.set(2.0, "AlphaAngle"), StyleSet_Ok);
    ASSERT_TRUE(host.session().silentPage().activate(first.id()));
    EXPECT_EQ(value.set(1.0, "AlphaAngle"), StyleSet_Ok);
    EXPECT_EQ(first.view.alpha, 1.0);
    EXPECT_EQ(second.view.alpha, 2.0);
}

TEST_F(StyleValueTest, isNotAvailableInFlatFrame) {
    host.setPlotType(PlotType_Cartesian2D);
    double psi = 1.5;
    StyleValue value("ThreeDView");

    EXPECT_EQ(value.getDouble(psi, "PSIAngle"), StyleGet_NotAvailable);
    EXPECT_EQ(psi, 1.5);
    EXPECT_EQ(value.set(3.0, "PSIAngle"), StyleSet_NotAllowed);
}

TEST_F(StyleValueWithoutFrameTest, isNotAvailable) {
    double psi = 1.5;
    StyleValue value("ThreeDView");

    EXPECT_EQ(value.getDouble(psi, "PSIAngle"), StyleGet_NotAvailable);
    EXPECT_EQ(psi, 1.5);
    EXPECT_EQ(value.set(3.0, "PSIAngle"), StyleSet_NotAllowed);
}

TEST_F(StyleValueTest, lowLevelOperationsBuildTheSameCall) {
    StyleValue value("StreamAttributes", "StreamTiming");
    ArgList args;
    value.setupSetValueArgList(args, "TimeAnchor");
    EXPECT_EQ(value.setFinalValue(args, 0.75), StyleSet_Ok);

    EXPECT_EQ(host.frame().style.streamTiming.timeAnchor, 0.75);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilStyleSet(\"StreamAttributes\",\"StreamTiming\",\"TimeAnchor\", "
                            "DValue=0.75)"));
}

TEST_F(StyleValueTest, explicitListIsAppliedAsItIs) {
    ArgList args;
    args.appendString("Path1", "ExportSetup");
    args.appendString("Path2", "ImageWidth");
    args.appendInt("IValue", 640);
    args.appendDouble("DValue", 640.0);

    EXPECT_EQ(StyleValue::styleSetLowLevel(args), StyleSet_Ok);
    EXPECT_EQ(host.session().exportSetup().imageWidth, 640);
}

TEST_F(StyleValueTest, longestPathHasRootOfFourAndTwoMore) {
    ArgList args;
    StyleValue("a", "b", "c", "d").setupSetValueArgList(args, "e", "f");
    EXPECT_EQ(StyleValue::styleSetLowLevel(args), StyleSet_BadPath);

    EXPECT_THAT(host.calls(), ElementsAre("CorUtilStyleSet(\"a\",\"b\",\"c\",\"d\",\"e\",\"f\")"));
}

TEST_F(StyleValueTest, pathEndsAtFirstNull) {
    ArgList args;
    StyleValue("a", nullptr, "c").setupSetValueArgList(args, nullptr, "f");
    EXPECT_EQ(StyleValue::styleSetLowLevel(args), StyleSet_BadPath);

    EXPECT_THAT(host.calls(), ElementsAre("CorUtilStyleSet(\"a\")"));
}

TEST_F(StyleValueTest, changesNothingWithoutMemory) {
    view().psi = 10.0;
    double psi = 1.5;
    StyleValue value("ThreeDView");

    host.failNext("CorUtilArgListAlloc", 2);
    EXPECT_EQ(value.getDouble(psi, "PSIAngle"), StyleGet_BadPath);
    EXPECT_EQ(value.set(20.0, "PSIAngle"), StyleSet_BadPath);
    EXPECT_EQ(psi, 1.5);
    EXPECT_EQ(view().psi, 10.0);
}

} // namespace
} // namespace corvane::toolbox
