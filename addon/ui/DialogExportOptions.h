// The dialog in which the user sets up the movie of a flight.
#pragma once

#include "addon/base/HostLock.h"
#include "addon/lists/PreMappedValue.h"
#include "addon/ui/CurrentFileManager.h"
#include "addon/ui/OptionMenuStaticManager.h"
#include "addon/ui/StreamText.h"
#include "addon/ui/TextFieldValidator.h"
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

    DialogExportOptions(DialogExportOptions const&) = delete;
    DialogExportOptions& operator=(DialogExportOptions const&) = delete;

    // Shows the dialog and returns. The callback is called once the user has confirmed, chosen a
    // file, and everything is written to the host's export set-up; never after Cancel.
    void launch(boost::function<void()> const& callback);

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
    void setExportBooleanValue(char const* name, bool value);
    void setExportDoubleValue(char const* name, double value);
    void setExportAnimationSpeed(double framesPerSecond);
    void setExportAntialiasingOptions(bool isOn, int supersampleFactor);
    void setExportImageWidth();
    void setExportFilename(std::string const& fileName);

    // Records "$!EXPORTSETUP name = value" where a macro is recorded. T is std::string, double, int
    // or bool.
    template <typename T>
    void recordExportMacroCommand(char const* name, T const& value) {
        HostLock const lock;
        if (!CorUtilMacroIsRecordingActive())
            return;
        std::string const line = std::string("$!EXPORTSETUP ") + name + " = " + streamText(value);
        HostLock const recordingLock;
        CorUtilMacroRecordRawCommand(line.c_str());
    }

    // For the host.
    static void init_CB();
    static void ok_BTN_CB();
    static void cancel_BTN_CB();
    static void help_BTN_CB();
    static void exportFormat_OPT_CB(long const* position);
    static void region_OPT_CB(long const* position);
    static void width_RADIO_CB(long const* position);
    static long width_TF_CB(char const* text);
    static void antialiasing_TOG_CB(long const* isOn);
    static long supersampleFactor_TF_CB(char const* text);
    static long animationSpeed_TF_CB(char const* text);
    static void aviCompression_OPT_CB(long const* position);
    static void imageType_OPT_CB(long const* position);
    static void optimization_RADIO_CB(long const* position);

private:
    friend class test::FreshDialogs;

    DialogExportOptions();

    void bindControls();
    void showExportSetup();
    void close();
    void writeExportSetup();
    void writeFormatOptions(ExportFormat_e format);
    void setExportIntegerValue(char const* name, int value);

    template <typename T>
    void setExportEnumeration(char const* name, T value);

    static PreMappedValue<ExportFormat_e> const m_exportFormatOptions[6];
    static PreMappedValue<ExportRegion_e> const m_exportRegionOptions[3];
    static PreMappedValue<AVICompression_e> const m_aviCompressionOptions[2];
    static PreMappedValue<FlashImageType_e> const m_flashImageTypeOptions[3];
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
