// Tests of what the command line says that a run reads.
#include "host/app/Inputs.h"

#include "host/app/Options.h"
#include "host/core/files/InputFiles.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(Inputs, areDataMacroKeyFramesAndAddOns) {
    const TempFolder folder;
    app::Options options;
    options.data = {folder.file("a.vtu"), folder.file("b.vtu")};
    options.macro = folder.file("scene.mcr");
    options.keyFrames = folder.file("a.keyframe");
    options.addOns = {folder.file("a.so")};
    options.output = folder.file("movie.avi");
    options.trace = folder.file("calls.txt");
    options.record = folder.file("record.mcr");
    app::noteInputs(options);
    for (const char* name : {"a.vtu", "b.vtu", "scene.mcr", "a.keyframe", "a.so"}) {
        EXPECT_TRUE(host::inputFiles().contains(folder.file(name))) << name;
    }
    for (const char* name : {"movie.avi", "calls.txt", "record.mcr"}) {
        EXPECT_FALSE(host::inputFiles().contains(folder.file(name))) << name;
    }
}

TEST(Inputs, whatIsNotGivenIsNoFile) {
    app::noteInputs({});
    EXPECT_FALSE(host::inputFiles().contains("."));
}

} // namespace corvane::test
