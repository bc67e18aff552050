// File names as the file dialog handles them.
#include "host/gui/widgets/FileNames.h"

#include <gtest/gtest.h>

namespace corvane::gui {
namespace {

QString text(const char* latin) {
    return QString::fromLatin1(latin);
}

TEST(FileNamesTest, aNameWithoutADotGetsTheEnding) {
    EXPECT_EQ(withEnding(text("/a/film"), text("*.mp4")), text("/a/film.mp4"));
    EXPECT_EQ(withEnding(text("/a.b/film"), text("*.mp4")), text("/a.b/film.mp4"));
}

TEST(FileNamesTest, aNameWithADotStays) {
    EXPECT_EQ(withEnding(text("/a/film.avi"), text("*.mp4")), text("/a/film.avi"));
    EXPECT_EQ(withEnding(text("/a/film."), text("*.mp4")), text("/a/film."));
}

TEST(FileNamesTest, strangeFiltersAddNothing) {
    for (const char* filter : {"", "*", "*.", "*.*", "mp4", "*.b/file"}) {
        EXPECT_EQ(withEnding(text("/a/film"), text(filter)), text("/a/film")) << filter;
    }
}

TEST(FileNamesTest, patternsOfferAllFilesToo) {
    EXPECT_EQ(namePatterns(text("Movie"), text("*.mp4")),
              (QStringList{text("Movie (*.mp4)"), text("All files (*)")}));
    EXPECT_EQ(namePatterns(text("Movie (new)"), text("*.mp4")).front(), text("Movie new (*.mp4)"));
    EXPECT_EQ(namePatterns(text(""), text("*.mp4")).front(), text("*.mp4 (*.mp4)"));
    EXPECT_EQ(namePatterns(text("Movie"), text("")), QStringList{text("All files (*)")});
}

} // namespace
} // namespace corvane::gui
