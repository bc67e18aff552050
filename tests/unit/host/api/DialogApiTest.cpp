// Messages, questions, file names, help.
#include "host/core/files/InputFiles.h"
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"
#include "tests/support/TempFolder.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Kind = ShownDialog::Kind;

class DialogApiTest : public EmptyHostTest {
protected:
    char* fileName = reinterpret_cast<char*>(this); ///< anything but NULL
};

TEST_F(DialogApiTest, errorsAndNoticesAreShownAsTheyAre) {
    EXPECT_EQ(CorUtilDialogErrMsg("a <b>\n& c"), TRUE);
    EXPECT_EQ(CorUtilDialogMessageBox("note", MessageBox_Notice), TRUE);
    EXPECT_THAT(host.prompts().shown(), ElementsAre(ShownDialog{Kind::Error, "a <b>\n& c", "", ""},
                                                    ShownDialog{Kind::Notice, "note", "", ""}));
}

TEST_F(DialogApiTest, reservedKindsOfBoxesAreNotices) {
    EXPECT_EQ(CorUtilDialogMessageBox("note", static_cast<MessageBox_e>(3)), TRUE);
    EXPECT_THAT(host.prompts().shown(Kind::Notice), ElementsAre("note"));
}

TEST_F(DialogApiTest, onlyYesAnswersTrue) {
    EXPECT_EQ(CorUtilDialogMessageBox("Replace a?", MessageBox_YesNo), FALSE);
    host.prompts().answer("Replace", true);
    EXPECT_EQ(CorUtilDialogMessageBox("Replace b?", MessageBox_YesNo), TRUE);
    EXPECT_EQ(CorUtilDialogMessageBox("Delete b?", MessageBox_YesNo), FALSE);
    EXPECT_THAT(host.prompts().shown(Kind::Question),
                ElementsAre("Replace a?", "Replace b?", "Delete b?"));
}

TEST_F(DialogApiTest, aFileNameBelongsToTheCaller) {
    host.prompts().answerFile("/tmp/flight.mp4");
    EXPECT_EQ(CorUtilDialogGetFileName(SelectFile_Write, &fileName, "Movie", "/tmp/f.mp4", "*.mp4"),
              TRUE);
    EXPECT_STREQ(fileName, "/tmp/flight.mp4");
    CorUtilStringDealloc(&fileName);
    EXPECT_THAT(host.prompts().shown(),
                ElementsAre(ShownDialog{Kind::FileToWrite, "Movie", "/tmp/f.mp4", "*.mp4"}));
}

TEST_F(DialogApiTest, aFileToReadIsAnInputOfTheProcess) {
    const TempFolder folder;
    for (const SelectFileOption_e option : {SelectFile_Read, SelectFile_Write}) {
        const std::string file = folder.file(std::to_string(option));
        host.prompts().answerFile(file);
        EXPECT_EQ(CorUtilDialogGetFileName(option, &fileName, "a", "b", "c"), TRUE);
        EXPECT_EQ(host::inputFiles().contains(file), option == SelectFile_Read);
        CorUtilStringDealloc(&fileName);
    }
}

TEST_F(DialogApiTest, otherOptionsThanWriteRead) {
    EXPECT_EQ(CorUtilDialogGetFileName(SelectFile_Read, &fileName, "a", "b", "c"), FALSE);
    EXPECT_EQ(CorUtilDialogGetFileName(static_cast<SelectFileOption_e>(2), &fileName, nullptr,
                                       nullptr, nullptr),
              FALSE);
    EXPECT_THAT(host.prompts().shown(), ElementsAre(ShownDialog{Kind::FileToRead, "a", "b", "c"},
                                                    ShownDialog{Kind::FileToRead, "", "", ""}));
}

TEST_F(DialogApiTest, aCancelledFileDialogGivesNull) {
    EXPECT_EQ(CorUtilDialogGetFileName(SelectFile_Read, &fileName, "a", "b", "c"), FALSE);
    EXPECT_EQ(fileName, nullptr);
}

TEST_F(DialogApiTest, withoutMemoryForTheNameTheDialogCountsAsCancelled) {
    host.prompts().answerFile("/tmp/flight.mp4");
    host.failNext("CorUtilStringAlloc");
    EXPECT_EQ(CorUtilDialogGetFileName(SelectFile_Read, &fileName, "a", "b", "c"), FALSE);
    EXPECT_EQ(fileName, nullptr);
}

TEST_F(DialogApiTest, helpTellsWhetherThePageExists) {
    EXPECT_EQ(CorUtilHelp("flights.html", FALSE, 0), TRUE);
    host.prompts().loseHelp();
    EXPECT_EQ(CorUtilHelp("flights.html", FALSE, 0), FALSE);
    EXPECT_THAT(host.prompts().shown(Kind::Help), ElementsAre("flights.html", "flights.html"));
    EXPECT_EQ(host.calls().front(), "CorUtilHelp(\"flights.html\", FALSE, 0)");
}

TEST_F(DialogApiTest, nullIsMisuseAndShowsNothing) {
    host.expectMisuse("CorUtilDialogErrMsg: message is NULL");
    host.expectMisuse("CorUtilDialogMessageBox: message is NULL");
    host.expectMisuse("CorUtilDialogGetFileName: fileName is NULL");
    host.expectMisuse("CorUtilHelp: page is NULL");
    EXPECT_EQ(CorUtilDialogErrMsg(nullptr), FALSE);
    EXPECT_EQ(CorUtilDialogMessageBox(nullptr, MessageBox_YesNo), FALSE);
    EXPECT_EQ(CorUtilDialogGetFileName(SelectFile_Read, nullptr, "a", "b", "c"), FALSE);
    EXPECT_EQ(CorUtilHelp(nullptr, FALSE, 0), FALSE);
    EXPECT_THAT(host.prompts().shown(), IsEmpty());
    EXPECT_THAT(host.misuse(), SizeIs(4));
}

} // namespace
} // namespace corvane::test
