// What dialogs become where there is no window.
#include "host/app/BatchDialogs.h"

#include <gtest/gtest.h>

using corvane::app::BatchDialogs;

namespace {

std::string saidBy(BatchDialogs dialogs) {
    testing::internal::CaptureStderr();
    dialogs.showError("An error.\n\nAnd why.");
    dialogs.showNotice("A notice.");
    EXPECT_FALSE(dialogs.askYesNo("A question?"));
    EXPECT_FALSE(dialogs.askFileName(true, "Movie", "a.mp4", "*.mp4"));
    return testing::internal::GetCapturedStderr();
}

TEST(BatchDialogs, goToStandardErrorAndAreAnsweredNo) {
    EXPECT_EQ(saidBy(BatchDialogs()),
              "corvane: An error. And why.\ncorvane: A notice.\ncorvane: A question? (no)\n");
}

TEST(BatchDialogs, leaveNoticesOutWhenQuiet) {
    EXPECT_EQ(saidBy(BatchDialogs(true)),
              "corvane: An error. And why.\ncorvane: A question? (no)\n");
}

} // namespace
