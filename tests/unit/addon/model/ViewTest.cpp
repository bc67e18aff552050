// The view record without a host.
#include "addon/model/View.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>

namespace corvane::corutiltools {
namespace {

const double nan = std::numeric_limits<double>::quiet_NaN();

const View sample(1.0, 2.5, -3.0, 30.0, 45.126, 0.0, 1.5);

TEST(View, startsWithSevenZeros) {
    const View view;
    EXPECT_EQ(view.x(), 0.0);
    EXPECT_EQ(view.y(), 0.0);
    EXPECT_EQ(view.z(), 0.0);
    EXPECT_EQ(view.psi(), 0.0);
    EXPECT_EQ(view.theta(), 0.0);
    EXPECT_EQ(view.alpha(), 0.0);
    EXPECT_EQ(view.width(), 0.0);
}

TEST(View, takesItsValuesInTheOrderPositionAnglesWidth) {
    const View view(1, 2, 3, 4, 5, 6, 7);
    EXPECT_EQ(view.x(), 1.0);
    EXPECT_EQ(view.y(), 2.0);
    EXPECT_EQ(view.z(), 3.0);
    EXPECT_EQ(view.psi(), 4.0);
    EXPECT_EQ(view.theta(), 5.0);
    EXPECT_EQ(view.alpha(), 6.0);
    EXPECT_EQ(view.width(), 7.0);
}

TEST(View, settersSetOneValueEach) {
    View view;
    view.setX(1);
    view.setY(2);
    view.setZ(3);
    view.setPsi(4);
    view.setTheta(5);
    view.setAlpha(6);
    view.setWidth(7);
    EXPECT_EQ(view, View(1, 2, 3, 4, 5, 6, 7));
}

TEST(View, costsSevenDoubles) {
    EXPECT_EQ(sizeof(View), 56u);
}

TEST(View, swapCopiesOneWay) {
    View view(7, 6, 5, 4, 3, 2, 1);
    const View other(1, 2, 3, 4, 5, 6, 7);
    view.swap(other);
    EXPECT_EQ(view, View(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(other, View(1, 2, 3, 4, 5, 6, 7));
}

TEST(View, swapWithItselfChangesNothing) {
    View view(7, 6, 5, 4, 3, 2, 1);
    view.swap(view);
    EXPECT_EQ(view, View(7, 6, 5, 4, 3, 2, 1));
}

TEST(View, copiesAllSevenValues) {
    const View copy(sample);
    EXPECT_EQ(copy, sample);
    View assigned;
    assigned = sample;
    EXPECT_EQ(assigned, sample);
}

TEST(View, differenceInAnyOneValueMakesUnequal) {
    const View base(1, 2, 3, 4, 5, 6, 7);
    EXPECT_EQ(base, View(1, 2, 3, 4, 5, 6, 7));
    EXPECT_FALSE(base == View(9, 2, 3, 4, 5, 6, 7));
    EXPECT_FALSE(base == View(1, 9, 3, 4, 5, 6, 7));
    EXPECT_FALSE(base == View(1, 2, 9, 4, 5, 6, 7));
    EXPECT_FALSE(base == View(1, 2, 3, 9, 5, 6, 7));
    EXPECT_FALSE(base == View(1, 2, 3, 4, 9, 6, 7));
    EXPECT_FALSE(base == View(1, 2, 3, 4, 5, 9, 7));
    EXPECT_FALSE(base == View(1, 2, 3, 4, 5, 6, 9));
}

TEST(View, comparesWithoutTolerance) {
    const View other(1.0, 2.5, -3.0, 30.0, 45.126, 0.0, 1.5 + 1e-12);
    EXPECT_FALSE(sample == other);
}

TEST(View, withNotANumberIsUnequalToItself) {
    const View view(1, 2, 3, 4, nan, 6, 7);
    EXPECT_FALSE(view == view);
}

TEST(View, zeroEqualsNegativeZero) {
    EXPECT_EQ(View(0, 0, 0, 0, 0, 0, 0), View(-0.0, -0.0, -0.0, -0.0, -0.0, -0.0, -0.0));
}

TEST(View, divisionDividesAnglesAndWidthToo) {
    EXPECT_EQ(View(2, 4, 6, 8, 10, 12, 14) / 2.0, View(1, 2, 3, 4, 5, 6, 7));
}

TEST(View, divisionByZeroGivesInfinityOrNotANumber) {
    const View quotient = View(1, -1, 0, 30, 0, 0, 2) / 0.0;
    EXPECT_EQ(quotient.x(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(quotient.y(), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(quotient.z()));
    EXPECT_EQ(quotient.psi(), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(quotient.theta()));
    EXPECT_TRUE(std::isnan(quotient.alpha()));
    EXPECT_EQ(quotient.width(), std::numeric_limits<double>::infinity());
}

TEST(View, printsTwoDecimals) {
    EXPECT_EQ(sample.displayString(),
              "X=1.00 Y=2.50 Z=-3.00 Psi=30.00 Theta=45.13 Alpha=0.00 Width=1.50");
}

TEST(View, printsZeros) {
    EXPECT_EQ(View().displayString(),
              "X=0.00 Y=0.00 Z=0.00 Psi=0.00 Theta=0.00 Alpha=0.00 Width=0.00");
}

TEST(View, printsLargeNumbersInFull) {
    EXPECT_EQ(View(1234567.891, 0, 0, 0, 0, 0, 1e15).displayString(),
              "X=1234567.89 Y=0.00 Z=0.00 Psi=0.00 Theta=0.00 Alpha=0.00 "
              "Width=1000000000000000.00");
}

TEST(View, printsADecimalPointInEveryLanguage) {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
    const std::string text = sample.displayString();
    std::locale::global(before);
    EXPECT_EQ(text, "X=1.00 Y=2.50 Z=-3.00 Psi=30.00 Theta=45.13 Alpha=0.00 Width=1.50");
}

} // namespace
} // namespace corvane::corutiltools
