// The export options: what goes to the host and to macros.
#include "addon/ui/ExportKeywords.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/ui/DialogExportOptionsTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Kind = ShownDialog::Kind;

std::string number(const char* name, int value) {
    return "CorUtilExportSetup(\"" + std::string(name) + "\", NULL, " + std::to_string(value) +
           ", 0)";
}

class DialogExportOptionsOutputTest : public DialogExportOptionsTest {
protected:
    DialogExportOptionsOutputTest() {
        measure(800, 600);
        launch();
    }

    // Confirms with a file of this name.
    void confirm(const std::string& fileName) {
        file = folder.file(fileName);
        host.prompts().answerFile(file);
        host.program().recorder().start();
        host.clearCalls();
        window().ok();
    }

    std::vector<std::string> written() { return host.callsOf("CorUtilExportSetup"); }
    std::vector<std::string> recorded() { return host.program().recorder().lines(); }
    std::string fileCall() { return "CorUtilExportSetup(\"ExportFName\", \"" + file + "\", 0, 0)"; }
    std::string fileLine() { return "$!EXPORTSETUP ExportFName = \"" + file + "\""; }

    const TempFolder folder;
    std::string file;
};

TEST_F(DialogExportOptionsOutputTest, writesAnAviInOrder) {
    confirm("flight.avi");
    EXPECT_THAT(written(), ElementsAre(number("ExportFormat", 14), number("AVICompression", 1),
                                       number("ExportRegion", 0), number("ImageWidth", 800),
                                       "CorUtilExportSetup(\"AnimationSpeed\", NULL, 0, 30)",
                                       number("UseSuperSampleAntiAliasing", 0), fileCall()));
    EXPECT_THAT(recorded(),
                ElementsAre("$!EXPORTSETUP ExportFormat = AVI",
                            "$!EXPORTSETUP AVICompression = LINEPRESERVING",
                            "$!EXPORTSETUP ExportRegion = CURRENTFRAME",
                            "$!EXPORTSETUP ImageWidth = 800", "$!EXPORTSETUP AnimationSpeed = 30",
                            "$!EXPORTSETUP UseSuperSampleAntiAliasing = false", fileLine()));
    EXPECT_EQ(confirmations, 1);
    EXPECT_EQ(lockDepth(), 0);
    EXPECT_FALSE(isUp());
    EXPECT_EQ(host.session().exportSetup().imageWidth, 800);
    EXPECT_EQ(host.session().exportSetup().fileName, file);
}

TEST_F(DialogExportOptionsOutputTest, writesAFlashMovieInOrder) {
    format().choose("Flash (SWF)");
    region().choose("All Frames");
    imageType().choose("JPEG");
    optimization().choose("Optimize for File Size");
    speed().type("12.5");
    antialiasing().click();
    factor().type("4");
    enterWidth("300");
    confirm("flight.swf");
    EXPECT_THAT(written(), ElementsAre(number("ExportFormat", 17), number("FlashImageType", 1),
                                       number("FlashCompressionType", 1), number("ExportRegion", 1),
                                       number("ImageWidth", 300),
                                       "CorUtilExportSetup(\"AnimationSpeed\", NULL, 0, 12.5)",
                                       number("UseSuperSampleAntiAliasing", 1),
                                       number("SuperSampleFactor", 4), fileCall()));
    EXPECT_THAT(recorded(),
                ElementsAre("$!EXPORTSETUP ExportFormat = FLASH",
                            "$!EXPORTSETUP FlashImageType = JPEG",
                            "$!EXPORTSETUP FlashCompressionType = SMALLESTSIZE",
                            "$!EXPORTSETUP ExportRegion = ALLFRAMES",
                            "$!EXPORTSETUP ImageWidth = 300", "$!EXPORTSETUP AnimationSpeed = 12.5",
                            "$!EXPORTSETUP UseSuperSampleAntiAliasing = true",
                            "$!EXPORTSETUP SuperSampleFactor = 4", fileLine()));
}

TEST_F(DialogExportOptionsOutputTest, takesNoOptimizationForSpeed) {
    format().choose("Flash (SWF)");
    CorGUIRadioBoxSetToggle(Optimization_RADIO_D2, 0);
    confirm("flight.swf");
    EXPECT_THAT(recorded(), testing::Contains("$!EXPORTSETUP FlashCompressionType = BESTSPEED"));
}

TEST_F(DialogExportOptionsOutputTest, writesNoFormatOptionsForOtherFormats) {
    struct Row {
        const char* name;
        const char* file;
        const char* keyword;
        int value;
    };
    for (const Row& row :
         {Row{"Flash (FLV)", "a.flv", "FLV", 20}, Row{"MPEG-4", "a.mp4", "MPEG4", 21},
          Row{"Raster Metafile", "a.rm", "RASTERMETAFILE", 0}, Row{"WMV", "a.wmv", "WMV", 22}}) {
        if (!isUp()) {
            launch();
        }
        format().choose(row.name);
        host.prompts().clear();
        confirm(row.file);
        ASSERT_EQ(written().size(), 6u) << row.name;
        EXPECT_EQ(written().at(0), number("ExportFormat", row.value));
        EXPECT_EQ(written().at(1), number("ExportRegion", 0));
        EXPECT_EQ(recorded().at(0), std::string("$!EXPORTSETUP ExportFormat = ") + row.keyword);
        EXPECT_THAT(host.prompts().shown(Kind::Question), IsEmpty()) << row.name;
    }
}

TEST_F(DialogExportOptionsOutputTest, locksEachWriteByItself) {
    confirm("flight.avi");
    const std::vector<std::string> calls = host.calls();
    const auto write = std::find(calls.begin(), calls.end(), number("ImageWidth", 800));
    ASSERT_LT(write, calls.end() - 5);
    EXPECT_THAT(std::vector<std::string>(write - 1, write + 8),
                ElementsAre(lockStart, number("ImageWidth", 800), lockStart,
                            "CorUtilMacroIsRecordingActive()", lockStart,
                            "CorUtilMacroRecordRawCommand(\"$!EXPORTSETUP ImageWidth = 800\")",
                            lockFinish, lockFinish, lockFinish));
    for (const auto& record : host.records()) {
        if (record.call.starts_with("CorUtilExportSetup")) {
            EXPECT_EQ(record.depth, 1) << record.call;
        }
    }
}

TEST_F(DialogExportOptionsOutputTest, closesAndUnlocksBeforeItWrites) {
    confirm("flight.avi");
    const std::vector<std::string> calls = host.calls();
    const auto drop = std::find(calls.begin(), calls.end(),
                                "CorGUIDialogDrop(" + std::to_string(Dialog2Manager) + ")");
    const auto write = std::find(calls.begin(), calls.end(), number("ExportFormat", 14));
    ASSERT_LT(drop, write);
    EXPECT_EQ(drop[1], lockFinish);
}

TEST_F(DialogExportOptionsOutputTest, recordsNothingUnlessAMacroIsRecorded) {
    host.prompts().answerFile(folder.file("flight.avi"));
    host.clearCalls();
    window().ok();
    EXPECT_EQ(written().size(), 7u);
    EXPECT_THAT(host.callsOf("CorUtilMacroRecordRawCommand"), IsEmpty());
}

TEST_F(DialogExportOptionsOutputTest, staysUpWhenTheFilePromptIsCancelled) {
    host.clearCalls();
    window().ok();
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lockDepth(), 1);
    EXPECT_THAT(written(), IsEmpty());
    EXPECT_EQ(confirmations, 0);
    confirm("flight.avi");
    EXPECT_EQ(confirmations, 1);
}

TEST_F(DialogExportOptionsOutputTest, asksForAFileOfTheFormat) {
    struct Row {
        const char* name;
        const char* extension;
    };
    for (const Row& row : {Row{"AVI", "avi"}, Row{"Flash (FLV)", "flv"}, Row{"Flash (SWF)", "swf"},
                           Row{"MPEG-4", "mp4"}, Row{"Raster Metafile", "rm"}, Row{"WMV", "wmv"}}) {
        format().choose(row.name);
        window().ok();
        EXPECT_EQ(host.prompts().shown().back(),
                  (ShownDialog{Kind::FileToWrite, "Movie", std::string("export.") + row.extension,
                               std::string("*.") + row.extension}))
            << row.name;
    }
    window().cancel();
}

TEST_F(DialogExportOptionsOutputTest, goesOnWhenTheHostRefusesAWrite) {
    host.failNext("CorUtilExportSetup", 7);
    confirm("flight.avi");
    EXPECT_EQ(written().size(), 7u);
    EXPECT_EQ(recorded().size(), 7u);
    EXPECT_EQ(confirmations, 1);
}

TEST_F(DialogExportOptionsOutputTest, writesAnImageWidthThatTheHostRefuses) {
    host.session().silentPage().workArea.width = 0;
    region().choose("Work Area");
    confirm("flight.avi");
    EXPECT_THAT(written(), testing::Contains(number("ImageWidth", 0)));
    EXPECT_EQ(confirmations, 1);
}

TEST_F(DialogExportOptionsOutputTest, refusesAnEmptyCallback) {
    window().cancel();
    DialogExportOptions::instance().launch(boost::function<void()>());
    host.prompts().answerFile(folder.file("flight.avi"));
    EXPECT_THROW(DialogExportOptions::ok_BTN_CB(), boost::bad_function_call);
    EXPECT_EQ(lockDepth(), 0);
    EXPECT_EQ(written().size(), 7u);
}

TEST_F(DialogExportOptionsOutputTest, mayBeLaunchedAgainByItsCallback) {
    window().cancel();
    DialogExportOptions::instance().launch([this] { launch(); });
    confirm("flight.avi");
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lockDepth(), 1);
    window().cancel();
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogExportOptionsOutputTest, releasesItsLockWhenAWriteThrows) {
    host.prompts().answerFile(folder.file("flight.avi"));
    host.throwAt("CorUtilExportSetup", 3);
    EXPECT_THROW(DialogExportOptions::ok_BTN_CB(), std::runtime_error);
    EXPECT_EQ(lockDepth(), 0);
    EXPECT_EQ(confirmations, 0);
}

TEST(ExportKeywords, areThoseOfTheHost) {
    EXPECT_EQ(EnumMap<ExportRegion_e>::instance().toString(ExportRegion_WorkArea), "WORKAREA");
    EXPECT_EQ(EnumMap<FlashImageType_e>::instance().toString(FlashImageType_Lossless), "LOSSLESS");
    EXPECT_EQ(EnumMap<FlashImageType_e>::instance().toString(FlashImageType_256Color), "256COLOR");
    EXPECT_EQ(EnumMap<AVICompression_e>::instance().toString(AVICompression_ColorPreserving),
              "COLORPRESERVING");
    EXPECT_EQ(EnumMap<AVICompression_e>::instance().toString(AVICompression_LosslessUncompressed),
              "LOSSLESSUNCOMPRESSED");
    ExportFormat_e format = ExportFormat_WMV;
    EXPECT_TRUE(EnumMap<ExportFormat_e>::instance().fromString("rasterMetaFile", format));
    EXPECT_EQ(format, ExportFormat_RasterMetafile);
}

} // namespace
