// The export options, for tests.
#pragma once

#include "tests/unit/addon/UiTest.h"

namespace corvane::test {

class DialogExportOptionsTest : public UiTest {
protected:
    DialogExportOptionsTest() {
        host.session().silentPage().workArea = {.width = 1600, .height = 900};
    }

    void launch() {
        corutiltools::DialogExportOptions::instance().launch([this] { ++confirmations; });
    }

    MemoryDialog window() { return host.gui().dialog("Export Options"); }
    bool isUp() { return !host.gui().dialogsUp().empty(); }
    MemoryOptionMenu format() { return window().optionMenu(corutiltools::ExportFormat_OPT_D2); }
    MemoryOptionMenu region() { return window().optionMenu(corutiltools::Region_OPT_D2); }
    MemoryOptionMenu aviCompression() {
        return window().optionMenu(corutiltools::AVICompression_OPT_D2);
    }
    MemoryOptionMenu imageType() { return window().optionMenu(corutiltools::ImageType_OPT_D2); }
    MemoryRadioBox widthChoice() { return window().radioBox(corutiltools::Width_RADIO_D2); }
    MemoryRadioBox optimization() { return window().radioBox(corutiltools::Optimization_RADIO_D2); }
    MemoryField width() { return window().field(corutiltools::Width_TF_D2); }
    MemoryField speed() { return window().field(corutiltools::AnimationSpeed_TF_D2); }
    MemoryField factor() { return window().field(corutiltools::SupersampleFactor_TF_D2); }
    MemoryToggle antialiasing() { return window().toggle("Antialiasing"); }
    std::string dimensions() {
        return window().label(corutiltools::ImageDimensions_LBL_D2).label();
    }

    void enterWidth(const std::string& text) {
        widthChoice().choose("Enter Width:");
        width().type(text);
        width().commit();
    }

    // A frame of so many pixels.
    void measure(double pixelsWide, double pixelsHigh) {
        host.frame().placement.width = 4.0;
        host.frame().placement.height = 4.0 * pixelsHigh / pixelsWide;
        host.session().silentPage().workArea.pixelsPerInch = pixelsWide / 4.0;
    }

    int confirmations = 0;
};

} // namespace corvane::test
