// The exception for the user.
#include "addon/base/KeyFrameError.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>

namespace corvane::corutiltools {
namespace {

TEST(KeyFrameError, tellsItsMessage) {
    EXPECT_STREQ(KeyFrameError("Animation canceled.").what(), "Animation canceled.");
    EXPECT_STREQ(KeyFrameError("").what(), "");
}

TEST(KeyFrameError, copiesItsMessage) {
    std::string text = "before";
    const KeyFrameError error(text);
    text = "after";
    const KeyFrameError copy(error);
    EXPECT_STREQ(copy.what(), "before");
}

// The driver turns logic errors into its out-of-memory message; this one must pass.
TEST(KeyFrameError, isNeitherLogicNorRuntimeError) {
    EXPECT_TRUE((std::is_base_of_v<std::exception, KeyFrameError>));
    EXPECT_FALSE((std::is_base_of_v<std::logic_error, KeyFrameError>));
    EXPECT_FALSE((std::is_base_of_v<std::runtime_error, KeyFrameError>));
}

} // namespace
} // namespace corvane::corutiltools
