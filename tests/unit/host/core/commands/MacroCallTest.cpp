// Tests of what every command of the macro language can ask of its call.
#include "host/core/commands/MacroCall.h"

#include "host/core/base/HostError.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/core/commands/MacroTest.h"

namespace corvane::host {
namespace {

class MacroCallTest : public MacroTest {
protected:
    std::string pathIn(const std::string& folder, const std::string& fileName) {
        const std::vector<std::string> words;
        return MacroCall{session, program.macros(), words, folder}.path(fileName);
    }
    std::string refusal() {
        try {
            expectNoAnimation(session);
        } catch (const HostError& error) {
            return error.what();
        }
        return {};
    }
};

TEST_F(MacroCallTest, fileNamesAreRelativeToTheFolderOfTheMacro) {
    EXPECT_EQ(pathIn("/scenes", "wake.pvd"), "/scenes/wake.pvd");
    EXPECT_EQ(pathIn("/scenes/", "../wake.pvd"), "/scenes/../wake.pvd");
    EXPECT_EQ(pathIn("", "wake.pvd"), "wake.pvd");
}

TEST_F(MacroCallTest, absoluteFileNamesStayAsTheyAre) {
    EXPECT_EQ(pathIn("/scenes", "/there/wake.pvd"), "/there/wake.pvd");
}

TEST_F(MacroCallTest, nothingIsRefusedWithoutAnAnimation) {
    EXPECT_EQ(refusal(), "");
}

TEST_F(MacroCallTest, anAnimationThatPlaysIsARefusal) {
    session.status().start("Flying", true, true);
    EXPECT_EQ(refusal(), "An animation is running.");
    session.status().finish();
    EXPECT_EQ(refusal(), "");
}

TEST_F(MacroCallTest, aMovieThatIsRecordedIsARefusal) {
    const test::TempFolder folder;
    play("$!READDATA x\n");
    session.exportSetup().fileName = folder.file("movie.avi");
    ASSERT_TRUE(session.exporter().start());
    EXPECT_EQ(refusal(), "An animation is running.");
    session.exporter().cancel();
    EXPECT_EQ(refusal(), "");
}

} // namespace
} // namespace corvane::host
