// A text field of the host with a bounded number.
#include "addon/ui/controls/TextFieldValidator.h"

#include "tests/unit/addon/UiTest.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int smallest = std::numeric_limits<int>::lowest();
constexpr int largest = std::numeric_limits<int>::max();

class ValidatorTest : public ControlTest {
protected:
    ValidatorTest() : field(CorGUITextFieldAdd(dialog, 0, 0, 100, 100, nullptr)) {
        whole.setGuiID(field);
        real.setGuiID(field);
    }

    std::string text() { return window().field().text(); }

    const int field;
    TextFieldValidator<int> whole{500, true, true, 1, 1000};
    TextFieldValidator<double> real{30.0, true, true, 0.001, 200.0};
};

TEST_F(ValidatorTest, takesNumbersInRangeWithTheBounds) {
    for (const int value : {1, 2, 999, 1000}) {
        EXPECT_TRUE(whole.validate(std::to_string(value)));
        EXPECT_EQ(whole.value(), value);
        EXPECT_EQ(text(), std::to_string(value));
    }
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(ValidatorTest, refusesOthersAndRestoresTheField) {
    for (const char* const entry :
         {"0", "1001", "-1", "", " ", "abc", "x12", "99999999999999999999", "--2"}) {
        EXPECT_FALSE(whole.validate(entry)) << entry;
        EXPECT_EQ(whole.value(), 500) << entry;
        EXPECT_EQ(text(), "500") << entry;
    }
    EXPECT_THAT(errors(),
                testing::AllOf(testing::SizeIs(9),
                               testing::Each("Invalid input. Input must be a number between 1 "
                                             "and 1000.")));
}

TEST_F(ValidatorTest, ignoresWhatFollowsANumber) {
    EXPECT_TRUE(whole.validate("12abc"));
    EXPECT_EQ(text(), "12");
    EXPECT_TRUE(whole.validate("  7 8"));
    EXPECT_EQ(text(), "7");
    EXPECT_TRUE(whole.validate("3.9"));
    EXPECT_EQ(text(), "3");
    EXPECT_TRUE(whole.validate("+4"));
    EXPECT_EQ(text(), "4");
}

TEST_F(ValidatorTest, takesRealNumbers) {
    EXPECT_TRUE(real.validate("29.97"));
    EXPECT_EQ(real.value(), 29.97);
    EXPECT_EQ(text(), "29.97");
    EXPECT_TRUE(real.validate("0.001"));
    EXPECT_TRUE(real.validate("2e2"));
    EXPECT_EQ(text(), "200");
    EXPECT_FALSE(real.validate("200.0001"));
    EXPECT_FALSE(real.validate("nan"));
    EXPECT_THAT(errors(),
                ElementsAre("Invalid input. Input must be a number between 0.001 and 200.",
                            "Invalid input. Input must be a number between 0.001 and 200."));
}

TEST_F(ValidatorTest, namesTheBoundsThatArePresent) {
    TextFieldValidator<int> below(5, true, false, 1, largest);
    TextFieldValidator<int> above(5, false, true, smallest, 9);
    TextFieldValidator<int> free(5, false, false, smallest, largest);
    EXPECT_FALSE(below.validate("x"));
    EXPECT_FALSE(above.validate("x"));
    EXPECT_FALSE(free.validate("x"));
    EXPECT_THAT(errors(),
                ElementsAre("Invalid input. Input must be a number greater than or equal to 1.",
                            "Invalid input. Input must be a number less than or equal to 9.",
                            "Invalid input. Input must be a number."));
}

TEST_F(ValidatorTest, comparesWithBoundsThatAreNotPresentToo) {
    TextFieldValidator<int> odd(5, false, false, 1, 9);
    EXPECT_FALSE(odd.validate("10"));
    EXPECT_THAT(errors(), ElementsAre("Invalid input. Input must be a number."));
}

TEST_F(ValidatorTest, bringsValuesIntoRange) {
    whole.setValue(0);
    EXPECT_EQ(text(), "1");
    whole.setValue(largest);
    EXPECT_EQ(text(), "1000");
    whole.setValue(10);
    EXPECT_EQ(whole.value(), 10);
}

TEST_F(ValidatorTest, touchesNothingWithoutAField) {
    TextFieldValidator<int> unbound(5, true, true, 1, 9);
    host.clearCalls();
    EXPECT_TRUE(unbound.validate("7"));
    unbound.updateTextField();
    EXPECT_EQ(unbound.value(), 7);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(ValidatorTest, writesAndReadsTheSameInEveryLocale) {
    const CommaLocale german;
    TextFieldValidator<int> big(1234567, true, true, 1, largest);
    big.setGuiID(field);
    big.updateTextField();
    EXPECT_EQ(text(), "1234567");
    EXPECT_TRUE(real.validate("29.97"));
    EXPECT_EQ(text(), "29.97");
}

TEST_F(ValidatorTest, showsMessagesUnderTheLock) {
    host.clearCalls();
    EXPECT_FALSE(whole.validate("x"));
    EXPECT_THAT(host.calls(),
                ElementsAre(lockStart,
                            "CorUtilDialogErrMsg(\"Invalid input. Input must be a number between "
                            "1 and 1000.\")",
                            lockFinish, lockStart,
                            "CorGUITextFieldSetString(" + std::to_string(field) + ", \"500\")",
                            lockFinish));
}

} // namespace
