// Tests of the owner of a C argument list, through what the host finds in it.
#include "hostapi/toolbox/ArgList.h"

#include "hostapi/CorStateChange.h"
#include "hostapi/CorStyle.h"
#include "tests/support/HostTest.h"

#include <string>

namespace corvane::toolbox {
namespace {

using ::testing::ElementsAre;

class ArgListTest : public test::HostTest {
protected:
    /// What the host finds in the list, as it stands in its trace.
    std::string contents(const ArgList& args) {
        host.clearCalls();
        CorUtilStyleSet(args.handle());
        const std::string call = host.calls().back();
        const std::string start = "CorUtilStyleSet(";
        return call.substr(start.size(), call.size() - start.size() - 1);
    }
};

TEST_F(ArgListTest, isEmptyAtFirst) {
    EXPECT_EQ(contents(ArgList()), "");
}

TEST_F(ArgListTest, keepsValuesOfAllTypesInOrder) {
    int integer = 0;
    double number = 0.0;
    ArgList args;
    args.appendInt("int", -3);
    args.appendDouble("double", 0.25);
    args.appendString("string", "a \"b\"");
    args.appendIntPtr("intResult", &integer);
    args.appendDoublePtr("doubleResult", &number);
    args.appendFunction("function", nullptr);

    EXPECT_EQ(contents(args), "int=-3, double=0.25, string=\"a \\\"b\\\"\", intResult=non-null, "
                              "doubleResult=non-null, function=NULL");
}

TEST_F(ArgListTest, lastValueUnderANameCounts) {
    ArgList args;
    args.appendInt("value", 1);
    args.appendInt("value", 2);
    EXPECT_EQ(contents(args), "value=2");

    args.appendDouble("value", 0.5);
    EXPECT_EQ(contents(args), "value=0.5");
}

TEST_F(ArgListTest, copiesNamesAndTexts) {
    ArgList args;
    {
        std::string name = "name";
        std::string text = "text";
        args.appendString(name.c_str(), text);
        name = "else";
        text = "else";
    }

    EXPECT_EQ(contents(args), "name=\"text\"");
}

void countChange(StateChange_e) {}

TEST_F(ArgListTest, functionReachesTheHost) {
    ArgList args;
    args.appendFunction("CallbackFunction", reinterpret_cast<CorGenericFunc>(countChange));

    EXPECT_EQ(CorUtilStateChangeAddCallbackX(args.handle()), TRUE);
}

TEST_F(ArgListTest, clearedListCanBeFilledAgain) {
    ArgList args;
    args.appendInt("old", 1);
    args.clear();
    EXPECT_EQ(contents(args), "");

    args.appendInt("new", 2);
    EXPECT_EQ(contents(args), "new=2");
}

TEST_F(ArgListTest, ignoresNullNames) {
    int integer = 0;
    double number = 0.0;
    ArgList args;
    args.appendInt(nullptr, 1);
    args.appendDouble(nullptr, 1.0);
    args.appendString(nullptr, "text");
    args.appendIntPtr(nullptr, &integer);
    args.appendDoublePtr(nullptr, &number);
    args.appendFunction(nullptr, nullptr);

    EXPECT_EQ(contents(args), "");
}

TEST_F(ArgListTest, doesNothingWithoutMemory) {
    host.failNext("CorUtilArgListAlloc");
    ArgList args;
    ASSERT_EQ(args.handle(), nullptr);

    int integer = 0;
    double number = 0.0;
    args.appendInt("int", 1);
    args.appendDouble("double", 1.0);
    args.appendString("string", "text");
    args.appendIntPtr("intResult", &integer);
    args.appendDoublePtr("doubleResult", &number);
    args.appendFunction("function", nullptr);
    EXPECT_THAT(host.misuse(), ElementsAre());
}

TEST_F(ArgListTest, clearTriesAgainForMemory) {
    host.failNext("CorUtilArgListAlloc");
    ArgList args;
    args.clear();
    ASSERT_NE(args.handle(), nullptr);

    args.appendInt("int", 1);
    EXPECT_EQ(contents(args), "int=1");
}

} // namespace
} // namespace corvane::toolbox
