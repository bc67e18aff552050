// What dialogs become where there is no window.
#include "host/app/BatchPrompts.h"

#include <gtest/gtest.h>

using corvane::app::BatchPrompts;

namespace {

std::string saidBy(BatchPrompts prompts) {
    testing::internal::CaptureStderr();
    prompts.showError("An error.\n\nAnd why.");
    prompts.showNotice("A notice.");
    EXPECT_FALSE(prompts.askYesNo("A question?"));
    EXPECT_FALSE(prompts.askFileName(true, "Movie", "a.mp4", "*.mp4"));
    return testing::internal::GetCapturedStderr();
}

TEST(BatchPrompts, goToStandardErrorAndAreAnsweredNo) {
    EXPECT_EQ(saidBy(BatchPrompts()),
              "corvane: An error. And why.\ncorvane: A notice.\ncorvane: A question? (no)\n");
}

TEST(BatchPrompts, leaveNoticesOutWhenQuiet) {
    EXPECT_EQ(saidBy(BatchPrompts(true)),
              "corvane: An error. And why.\ncorvane: A question? (no)\n");
}

} // namespace
