// Tests of style values by path.
#include "host/core/page/StyleTree.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace corvane::host {
namespace {

class StyleTreeTest : public testing::Test {
protected:
    StyleTreeTest() {
        bind({"Group", "Flag"}, &flag);
        bind({"Group", "Count"}, &count, 1, 9);
        bind({"Group", "Deep", "Size"}, &size, 0.5, 2.0);
        bind({"Text"}, &text);
    }

    void bind(const StylePath& path, const std::variant<bool*, int*, double*, std::string*>& target,
              double minimum = -std::numeric_limits<double>::max(),
              double maximum = std::numeric_limits<double>::max()) {
        StyleLeaf leaf;
        leaf.path = path;
        leaf.target = target;
        leaf.minimum = minimum;
        leaf.maximum = maximum;
        tree.bind(leaf);
    }

    bool flag = false;
    int count = 3;
    double size = 1.0;
    std::string text = "old";
    StyleTree tree;
};

TEST_F(StyleTreeTest, writesEachTypeThroughItsPath) {
    EXPECT_EQ(tree.set({"Group", "Flag"}, 1L), StyleSet_Ok);
    EXPECT_EQ(tree.set({"Group", "Count"}, 9L), StyleSet_Ok);
    EXPECT_EQ(tree.set({"Group", "Deep", "Size"}, 2.0), StyleSet_Ok);
    EXPECT_EQ(tree.set({"Text"}, std::string("new")), StyleSet_Ok);
    EXPECT_TRUE(flag);
    EXPECT_EQ(count, 9);
    EXPECT_EQ(size, 2.0);
    EXPECT_EQ(text, "new");
}

TEST_F(StyleTreeTest, readsEachTypeAsItIsWritten) {
    flag = true;
    EXPECT_EQ(tree.get({"Group", "Flag"}), StyleInput(1L));
    EXPECT_EQ(tree.get({"Group", "Count"}), StyleInput(3L));
    EXPECT_EQ(tree.get({"Group", "Deep", "Size"}), StyleInput(1.0));
    EXPECT_EQ(tree.get({"Text"}), StyleInput(std::string("old")));
}

TEST_F(StyleTreeTest, ignoresLetterCase) {
    EXPECT_EQ(tree.set({"gROUP", "DEEP", "size"}, 1.5), StyleSet_Ok);
    EXPECT_EQ(size, 1.5);
    EXPECT_TRUE(tree.contains({"TEXT"}));
}

TEST_F(StyleTreeTest, knowsNoOtherPaths) {
    for (const StylePath& path :
         {StylePath{}, StylePath{""}, StylePath{"Group"}, StylePath{"Group", "Deep"},
          StylePath{"Group", "Flag", "More"}, StylePath{"Flag"}, StylePath{"Group/Flag"},
          StylePath{"Group/Deep", "Size"}, StylePath{"Group", "", "Flag"},
          StylePath{std::string(1000, 'x')}, StylePath(1000, "Group")}) {
        EXPECT_FALSE(tree.contains(path));
        EXPECT_EQ(tree.set(path, 1L), StyleSet_BadPath);
        EXPECT_EQ(tree.get(path), std::nullopt);
    }
}

TEST_F(StyleTreeTest, tellsWhenNothingChanges) {
    EXPECT_EQ(tree.set({"Group", "Flag"}, 0L), StyleSet_Unchanged);
    EXPECT_EQ(tree.set({"Group", "Count"}, 3L), StyleSet_Unchanged);
    EXPECT_EQ(tree.set({"Group", "Deep", "Size"}, 1.0), StyleSet_Unchanged);
    EXPECT_EQ(tree.set({"Text"}, std::string("old")), StyleSet_Unchanged);
}

TEST_F(StyleTreeTest, anyIntegerButZeroIsTrue) {
    EXPECT_EQ(tree.set({"Group", "Flag"}, -7L), StyleSet_Ok);
    EXPECT_TRUE(flag);
}

TEST_F(StyleTreeTest, refusesTheWrongType) {
    EXPECT_EQ(tree.set({"Group", "Flag"}, 1.0), StyleSet_BadValue);
    EXPECT_EQ(tree.set({"Group", "Count"}, 4.0), StyleSet_BadValue);
    EXPECT_EQ(tree.set({"Group", "Count"}, std::string("4")), StyleSet_BadValue);
    EXPECT_EQ(tree.set({"Group", "Deep", "Size"}, 2L), StyleSet_BadValue);
    EXPECT_EQ(tree.set({"Text"}, 4L), StyleSet_BadValue);
    EXPECT_FALSE(flag);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(size, 1.0);
    EXPECT_EQ(text, "old");
}

TEST_F(StyleTreeTest, refusesNumbersOutOfRange) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {0.49, 2.01, infinity, -infinity, std::nan("")}) {
        EXPECT_EQ(tree.set({"Group", "Deep", "Size"}, value), StyleSet_BadValue) << value;
    }
    for (const long value : {0L, 10L, 5L + (1L << 32)}) {
        EXPECT_EQ(tree.set({"Group", "Count"}, value), StyleSet_BadValue) << value;
    }
    EXPECT_EQ(size, 1.0);
    EXPECT_EQ(count, 3);
}

TEST_F(StyleTreeTest, refusesIntegersThatDoNotFitWhereNoRangeIsGiven) {
    bind({"Unlimited"}, &count);
    EXPECT_EQ(tree.set({"Unlimited"}, 5L + (1L << 32)), StyleSet_BadValue);
    EXPECT_EQ(tree.set({"Unlimited"}, std::numeric_limits<long>::min()), StyleSet_BadValue);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(tree.set({"Unlimited"}, -5L), StyleSet_Ok);
}

TEST_F(StyleTreeTest, refusesWhatTheStateDoesNotAllow) {
    bool allowed = false;
    double value = 1.0;
    StyleLeaf leaf;
    leaf.path = {"Guarded"};
    leaf.target = &value;
    leaf.isAllowed = [&allowed] { return allowed; };
    tree.bind(leaf);
    EXPECT_EQ(tree.set({"Guarded"}, 2.0), StyleSet_NotAllowed);
    EXPECT_EQ(value, 1.0);
    EXPECT_EQ(tree.get({"Guarded"}), StyleInput(1.0));
    allowed = true;
    EXPECT_EQ(tree.set({"Guarded"}, 2.0), StyleSet_Ok);
}

TEST_F(StyleTreeTest, storesAChoiceAsItIsListed) {
    StyleLeaf leaf;
    leaf.path = {"Choice"};
    leaf.target = &text;
    leaf.choices = {"Red", "Green"};
    tree.bind(leaf);
    EXPECT_EQ(tree.set({"Choice"}, std::string("gREEN")), StyleSet_Ok);
    EXPECT_EQ(text, "Green");
    EXPECT_EQ(tree.set({"Choice"}, std::string("green")), StyleSet_Unchanged);
    EXPECT_EQ(tree.set({"Choice"}, std::string("Blue")), StyleSet_BadValue);
    EXPECT_EQ(text, "Green");
}

TEST_F(StyleTreeTest, asksWhetherATextIsAccepted) {
    StyleLeaf leaf;
    leaf.path = {"Name"};
    leaf.target = &text;
    leaf.accepts = [](const std::string& name) { return name == "p"; };
    tree.bind(leaf);
    EXPECT_EQ(tree.set({"Name"}, std::string("q")), StyleSet_BadValue);
    EXPECT_EQ(tree.set({"Name"}, std::string("p")), StyleSet_Ok);
    EXPECT_EQ(text, "p");
}

TEST_F(StyleTreeTest, forgetsAllBelowAKeyword) {
    tree.unbind("GROUP");
    EXPECT_FALSE(tree.contains({"Group", "Flag"}));
    EXPECT_FALSE(tree.contains({"Group", "Deep", "Size"}));
    EXPECT_EQ(tree.set({"Text"}, std::string("still here")), StyleSet_Ok);
    EXPECT_EQ(text, "still here");
    ASSERT_EQ(tree.leaves().size(), 1U);
    bind({"Group", "Flag"}, &flag);
    EXPECT_EQ(tree.set({"Group", "Flag"}, 1L), StyleSet_Ok);
}

TEST_F(StyleTreeTest, bindsAPathOnce) {
    EXPECT_THROW(bind({"group", "FLAG"}, &flag), std::logic_error);
    EXPECT_THROW(bind({"a/b"}, &flag), std::logic_error);
    EXPECT_THROW(bind({}, &flag), std::logic_error);
    EXPECT_EQ(tree.leaves().size(), 4U);
}

TEST(StylePathText, joinsAndSplitsAtSlashes) {
    EXPECT_EQ(toString(StylePath{"Slice", "1", "Position"}), "Slice/1/Position");
    EXPECT_EQ(stylePathFromString("Slice/1/Position"), (StylePath{"Slice", "1", "Position"}));
    EXPECT_EQ(stylePathFromString("Title"), StylePath{"Title"});
    EXPECT_EQ(stylePathFromString("a//b/"), (StylePath{"a", "", "b", ""}));
}

} // namespace
} // namespace corvane::host
