// Comparison without regard to letter case.
#include "addon/base/CaseInsensitiveCharGreater.h"
#include "addon/base/CaseInsensitiveCharLess.h"
#include "addon/base/CaseInsensitiveStringCompareObj.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using namespace corvane::corutiltools;

TEST(CaseInsensitiveCharLess, ordersLettersWhateverTheirCase) {
    const CaseInsensitiveCharLess less;
    EXPECT_TRUE(less('a', 'B'));
    EXPECT_TRUE(less('A', 'b'));
    EXPECT_FALSE(less('b', 'A'));
    EXPECT_FALSE(less('q', 'Q'));
    EXPECT_FALSE(less('Q', 'q'));
}

TEST(CaseInsensitiveCharLess, comparesAsLowerCase) {
    // Between the upper and the lower case letters of ASCII stands '_'.
    EXPECT_TRUE(CaseInsensitiveCharLess()('_', 'Z'));
    EXPECT_FALSE(CaseInsensitiveCharLess()('Z', '_'));
}

TEST(CaseInsensitiveCharLess, leavesTheNeighboursOfLettersAlone) {
    const CaseInsensitiveCharLess less;
    EXPECT_TRUE(less('@', '`'));
    EXPECT_TRUE(less('[', '{'));
}

TEST(CaseInsensitiveCharLess, givesBytesBeyondAsciiNoCase) {
    const CaseInsensitiveCharLess less;
    const char capital = '\xC4';
    const char small = '\xE4';
    EXPECT_TRUE(less(capital, small));
    EXPECT_FALSE(less(small, capital));
    EXPECT_TRUE(less('z', capital));
}

TEST(CaseInsensitiveCharGreater, mirrorsLess) {
    for (int left = 0; left < 256; ++left) {
        for (int right = 0; right < 256; ++right) {
            const char l = static_cast<char>(left);
            const char r = static_cast<char>(right);
            ASSERT_EQ(CaseInsensitiveCharGreater()(l, r), CaseInsensitiveCharLess()(r, l));
        }
    }
}

TEST(CaseInsensitiveStringCompareObj, takesSpellingsOfOneWordForEqual) {
    std::set<std::string, CaseInsensitiveStringCompareObj> words{"Animate"};
    EXPECT_EQ(words.count("ANIMATE"), 1u);
    EXPECT_EQ(words.count("animate"), 1u);
    EXPECT_EQ(words.count("animat"), 0u);
    EXPECT_EQ(words.count("animates"), 0u);
}

TEST(CaseInsensitiveStringCompareObj, putsAPrefixFirst) {
    const CaseInsensitiveStringCompareObj less;
    EXPECT_TRUE(less("FADE", "fadein"));
    EXPECT_FALSE(less("fadein", "FADE"));
    EXPECT_TRUE(less("", "a"));
    EXPECT_FALSE(less("", ""));
}

TEST(CaseInsensitiveStringCompareObj, looksBeyondZeroBytes) {
    const std::string first("a\0b", 3);
    const std::string second("A\0c", 3);
    EXPECT_TRUE(CaseInsensitiveStringCompareObj()(first, second));
    EXPECT_FALSE(CaseInsensitiveStringCompareObj()(second, first));
}

} // namespace
