// Tests of the add-ons that are known.
#include "host/core/addons/AddOns.h"

#include <gtest/gtest.h>

namespace corvane::host {
namespace {

TEST(AddOnsTest, keepsAddOnsAtTheirAddress) {
    AddOns addOns;
    const CorAddOnID first = addOns.add({110, "A", "1", "x"});
    for (int i = 0; i < 100; ++i) {
        addOns.add({});
    }
    EXPECT_EQ(first->name, "A");
    EXPECT_EQ(addOns.all().size(), 101U);
    EXPECT_TRUE(addOns.isKnown(first));
    EXPECT_FALSE(addOns.isKnown(nullptr));
    CorAddOn_s stranger;
    EXPECT_FALSE(addOns.isKnown(&stranger));
}

} // namespace
} // namespace corvane::host
