// Argument lists.
#include "host/api/ArgumentList.h"
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ArgListApiTest : public EmptyHostTest {
protected:
    ~ArgListApiTest() override { CorUtilArgListDealloc(&list); }

    CorArgList list = CorUtilArgListAlloc();
};

TEST_F(ArgListApiTest, valuesOfEachTypeAreKept) {
    int integer = 0;
    double number = 0.0;
    const auto function = reinterpret_cast<CorGenericFunc>(&CorUtilLockOn);
    EXPECT_EQ(CorUtilArgListAppendInt(list, "i", -7), TRUE);
    EXPECT_EQ(CorUtilArgListAppendDouble(list, "d", 1.5), TRUE);
    EXPECT_EQ(CorUtilArgListAppendString(list, "s", "text"), TRUE);
    EXPECT_EQ(CorUtilArgListAppendFunction(list, "f", function), TRUE);
    EXPECT_EQ(CorUtilArgListAppendIntPtr(list, "ip", &integer), TRUE);
    EXPECT_EQ(CorUtilArgListAppendDoublePtr(list, "dp", &number), TRUE);
    EXPECT_EQ(*list->find<int>("i"), -7);
    EXPECT_EQ(*list->find<double>("d"), 1.5);
    EXPECT_EQ(*list->find<std::string>("s"), "text");
    EXPECT_EQ(*list->find<CorGenericFunc>("f"), function);
    EXPECT_EQ(*list->find<int*>("ip"), &integer);
    EXPECT_EQ(*list->find<double*>("dp"), &number);
}

TEST_F(ArgListApiTest, anotherTypeOrNameIsNotFound) {
    CorUtilArgListAppendInt(list, "a", 1);
    EXPECT_EQ(list->find<double>("a"), nullptr);
    EXPECT_EQ(list->find<int>("A"), nullptr);
}

TEST_F(ArgListApiTest, ofTwoValuesTheLastOneCountsWhateverTheTypes) {
    CorUtilArgListAppendInt(list, "a", 1);
    CorUtilArgListAppendInt(list, "a", 2);
    EXPECT_EQ(*list->find<int>("a"), 2);
    CorUtilArgListAppendString(list, "a", "three");
    EXPECT_EQ(list->find<int>("a"), nullptr);
    EXPECT_EQ(*list->find<std::string>("a"), "three");
    EXPECT_THAT(list->entries, SizeIs(1));
}

TEST_F(ArgListApiTest, namesAndStringsAreCopied) {
    std::string name = "name";
    std::string value = "value";
    CorUtilArgListAppendString(list, name.c_str(), value.c_str());
    name = "gone";
    value = "gone";
    EXPECT_EQ(*list->find<std::string>("name"), "value");
}

TEST_F(ArgListApiTest, aNullFunctionIsAValue) {
    EXPECT_EQ(CorUtilArgListAppendFunction(list, "f", nullptr), TRUE);
    ASSERT_NE(list->find<CorGenericFunc>("f"), nullptr);
}

TEST_F(ArgListApiTest, nullArgumentsAreMisuseAndChangeNothing) {
    host.expectMisuse("an argument is NULL");
    int integer = 0;
    EXPECT_EQ(CorUtilArgListAppendInt(nullptr, "a", 1), FALSE);
    EXPECT_EQ(CorUtilArgListAppendInt(list, nullptr, 1), FALSE);
    EXPECT_EQ(CorUtilArgListAppendDouble(list, nullptr, 1.0), FALSE);
    EXPECT_EQ(CorUtilArgListAppendFunction(list, nullptr, nullptr), FALSE);
    EXPECT_EQ(CorUtilArgListAppendString(list, "a", nullptr), FALSE);
    EXPECT_EQ(CorUtilArgListAppendString(list, nullptr, "a"), FALSE);
    EXPECT_EQ(CorUtilArgListAppendIntPtr(list, "a", nullptr), FALSE);
    EXPECT_EQ(CorUtilArgListAppendIntPtr(list, nullptr, &integer), FALSE);
    EXPECT_EQ(CorUtilArgListAppendDoublePtr(list, "a", nullptr), FALSE);
    EXPECT_THAT(list->entries, IsEmpty());
    EXPECT_THAT(host.misuse(), SizeIs(9));
    EXPECT_THAT(host.misuse(), Each(EndsWith(": an argument is NULL")));
}

TEST_F(ArgListApiTest, deallocSetsTheHandleToNullAndToleratesNull) {
    CorUtilArgListDealloc(&list);
    EXPECT_EQ(list, nullptr);
    CorUtilArgListDealloc(&list);
    CorUtilArgListDealloc(nullptr);
}

TEST_F(ArgListApiTest, aFreedListIsMisuseAndHarmsNothing) {
    host.expectMisuse("the list was freed before, or is not from the host");
    host.expectMisuse("CorUtilStyleSet: args is no list of arguments");
    host.expectMisuse("CorUtilStateChangeAddCallbackX: no CallbackFunction");
    host.expectMisuse("CorUtilArgListDealloc: freed before, or not from the host");
    CorArgList freed = list;
    CorUtilArgListDealloc(&list);
    EXPECT_EQ(CorUtilArgListAppendInt(freed, "a", 1), FALSE);
    EXPECT_EQ(CorUtilStyleSet(freed), StyleSet_BadPath);
    EXPECT_EQ(CorUtilStateChangeAddCallbackX(freed), FALSE);
    EXPECT_THAT(host.calls(), Contains("CorUtilStyleSet(unknown)"));
    CorUtilArgListDealloc(&freed);
    EXPECT_EQ(freed, nullptr);
    EXPECT_THAT(host.misuse(), SizeIs(4));
}

TEST_F(ArgListApiTest, buildingAListIsNotTraced) {
    CorUtilArgListAppendInt(list, "a", 1);
    CorUtilArgListDealloc(&list);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(ArgListApiTest, buildingAListCanBeMadeToFail) {
    host.failNext("CorUtilArgListAlloc");
    host.failNext("CorUtilArgListAppendInt");
    EXPECT_EQ(CorUtilArgListAlloc(), nullptr);
    EXPECT_EQ(CorUtilArgListAppendInt(list, "a", 1), FALSE);
    EXPECT_THAT(list->entries, IsEmpty());
}

} // namespace
} // namespace corvane::test
