// The dialog in which the user sets up the movie of a flight.
#pragma once

#include "addon/base/HostLock.h"
#include "addon/lists/PreMappedValue.h"
#include "addon/ui/CurrentFileManager.h"
#include "addon/ui/controls/OptionMenuStaticManager.h"
#include "addon/ui/controls/StreamText.h"
#include "addon/ui/controls/TextFieldValidator.h"
#include "hostapi/CorHost.h"

#include <boost/function.hpp>

#include <memory>
#include <string>

namespace corvane::test {
class FreshDialogs;
}

namespace corvane::corutiltools {

// One for the whole process. Modal. Holds the host's lock from launch until OK or Cancel, so that
// the picture does not change while its size is being chosen. Region and width stay what the user
// last chose; everything else is taken from the host's export set-up at each launch.
class DialogExportOptions {
public:
    // Made on first use.
    static DialogExportOptions& instance();

    DialogExportOptions(const DialogExportOptions&) = delete;
    DialogExportOptions& operator=(const DialogExportOptions&) = delete;

    // Shows the dialog and returns. The callback is called once the user has confirmed, chosen a
    // file, and everything is written to the host's export set-up; never after Cancel.
    void launch(const boost::function<void()>& callback);

    // Size of the movie's pictures in pixels, as the controls of the dialog stand.
    void determineImageDimensions(int& width, int& height);

    // Dims what does not apply to the chosen format and options.
    void updateSensitivities();
    void updateImageDimensionLabel();

    // Asks where to save. Answers false when the user thinks better of it.
    bool promptUserForDestinationFilename();

    // Each writes to the host's export set-up, and records the same where a macro is recorded.
    void setExportFormat(ExportFormat_e format);
    void setExportRegion(ExportRegion_e region);
    void setExportFlashOptions(FlashImageType_e imageType, FlashCompressionType_e compression);
    void setExportAVIOptions(AVICompression_e compression);
    void setExportBooleanValue(const char* name, bool value);
    void setExportDoubleValue(const char* name, double value);
    void setExportAnimationSpeed(double framesPerSecond);
    void setExportAntialiasingOptions(bool isOn, int supersampleFactor);
    void setExportImageWidth();
    void setExportFilename(const std::string& fileName);

    // Records "$!EXPORTSETUP name = value" where a macro is recorded. T is std::string, double, int
    // or bool.
    template <typename T>
    void recordExportMacroCommand(const char* name, const T& value) {
        const HostLock lock;
        if (!CorUtilMacroIsRecordingActive()) {
            return;
        }
        const std::string line = std::string("$!EXPORTSETUP ") + name + " = " + streamText(value);
        const HostLock recordingLock;
        CorUtilMacroRecordRawCommand(line.c_str());
    }

    // For the host.
    static void init_CB();
    static void ok_BTN_CB();
    static void cancel_BTN_CB();
    static void help_BTN_CB();
    static void exportFormat_OPT_CB(const long* position);
    static void region_OPT_CB(const long* position);
    static void width_RADIO_CB(const long* position);
    static long width_TF_CB(const char* text);
    static void antialiasing_TOG_CB(const long* isOn);
    static long supersampleFactor_TF_CB(const char* text);
    static long animationSpeed_TF_CB(const char* text);
    static void aviCompression_OPT_CB(const long* position);
    static void imageType_OPT_CB(const long* position);
    static void optimization_RADIO_CB(const long* position);

private:
    friend class test::FreshDialogs;

    DialogExportOptions();

    void bindControls();
    void showExportSetup();
    void close();
    void writeExportSetup();
    void writeFormatOptions(ExportFormat_e format);
    void setExportIntegerValue(const char* name, int value);

    template <typename T>
    void setExportEnumeration(const char* name, T value);

    static const PreMappedValue<ExportFormat_e> m_exportFormatOptions[6];
    static const PreMappedValue<ExportRegion_e> m_exportRegionOptions[3];
    static const PreMappedValue<AVICompression_e> m_aviCompressionOptions[2];
    static const PreMappedValue<FlashImageType_e> m_flashImageTypeOptions[3];
    static constexpr char m_defaultFileName[] = "export";

    static std::unique_ptr<DialogExportOptions> m_instance;

    TextFieldValidator<int> m_imageWidth;        // pixels
    TextFieldValidator<double> m_animationSpeed; // frames per second
    TextFieldValidator<int> m_supersampleFactor;
    CurrentFileManager m_currentFile;
    OptionMenuStaticManager<ExportFormat_e> m_exportFormat;
    OptionMenuStaticManager<ExportRegion_e> m_exportRegion;
    OptionMenuStaticManager<AVICompression_e> m_aviCompression;
    OptionMenuStaticManager<FlashImageType_e> m_flashImageType;
    boost::function<void()> m_callback;
    std::unique_ptr<HostLock> m_launchLock; // while the dialog is up
};

} // namespace corvane::corutiltools
