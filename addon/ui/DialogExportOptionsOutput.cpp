// The export options: what the user confirmed goes to the host's export set-up and to macros.
#include "addon/ui/DialogExportOptions.h"

#include "addon/ui/DialogLayout.h"
#include "addon/ui/ExportKeywords.h"

#include <boost/format.hpp>

namespace corvane::corutiltools {

namespace {

constexpr long fileSizePosition = 2; // in the radio box

// Also for no button on at all, for which no macro line has a word.
FlashCompressionType_e chosenCompression() {
    const HostLock lock;
    return CorGUIRadioBoxGetToggle(Optimization_RADIO_D2) == fileSizePosition
               ? FlashCompressionType_SmallestSize
               : FlashCompressionType_BestSpeed;
}

bool antialiasingIsOn() {
    const HostLock lock;
    return CorGUIToggleGet(Antialiasing_TOG_D2) != FALSE;
}

} // namespace

void DialogExportOptions::ok_BTN_CB() {
    DialogExportOptions& dialog = instance();
    if (!dialog.promptUserForDestinationFilename()) {
        return;
    }
    dialog.close();
    dialog.writeExportSetup();
    // A copy, since it may launch the dialog again.
    const boost::function<void()> callback = dialog.m_callback;
    callback();
}

void DialogExportOptions::writeExportSetup() {
    const ExportFormat_e format = m_exportFormat.value();
    setExportFormat(format);
    writeFormatOptions(format);
    setExportRegion(m_exportRegion.value());
    setExportImageWidth();
    setExportAnimationSpeed(m_animationSpeed.value());
    setExportAntialiasingOptions(antialiasingIsOn(), m_supersampleFactor.value());
    setExportFilename(m_currentFile.fileName());
}

void DialogExportOptions::writeFormatOptions(ExportFormat_e format) {
    if (format == ExportFormat_AVI) {
        setExportAVIOptions(m_aviCompression.value());
    } else if (format == ExportFormat_FlashSWF) {
        setExportFlashOptions(m_flashImageType.value(), chosenCompression());
    }
}

template <typename T>
void DialogExportOptions::setExportEnumeration(const char* name, T value) {
    const HostLock lock;
    CorUtilExportSetup(name, nullptr, value, 0.0);
    recordExportMacroCommand(name, EnumMap<T>::instance().toString(value));
}

void DialogExportOptions::setExportFormat(ExportFormat_e format) {
    setExportEnumeration("ExportFormat", format);
}

void DialogExportOptions::setExportRegion(ExportRegion_e region) {
    setExportEnumeration("ExportRegion", region);
}

void DialogExportOptions::setExportFlashOptions(FlashImageType_e imageType,
                                                FlashCompressionType_e compression) {
    setExportEnumeration("FlashImageType", imageType);
    setExportEnumeration("FlashCompressionType", compression);
}

void DialogExportOptions::setExportAVIOptions(AVICompression_e compression) {
    setExportEnumeration("AVICompression", compression);
}

void DialogExportOptions::setExportBooleanValue(const char* name, bool value) {
    const HostLock lock;
    CorUtilExportSetup(name, nullptr, value, 0.0);
    recordExportMacroCommand(name, value);
}

void DialogExportOptions::setExportIntegerValue(const char* name, int value) {
    const HostLock lock;
    CorUtilExportSetup(name, nullptr, value, 0.0);
    recordExportMacroCommand(name, value);
}

void DialogExportOptions::setExportDoubleValue(const char* name, double value) {
    const HostLock lock;
    CorUtilExportSetup(name, nullptr, 0, value);
    recordExportMacroCommand(name, value);
}

void DialogExportOptions::setExportAnimationSpeed(double framesPerSecond) {
    setExportDoubleValue("AnimationSpeed", framesPerSecond);
}

void DialogExportOptions::setExportAntialiasingOptions(bool isOn, int supersampleFactor) {
    setExportBooleanValue("UseSuperSampleAntiAliasing", isOn);
    if (isOn) {
        setExportIntegerValue("SuperSampleFactor", supersampleFactor);
    }
}

void DialogExportOptions::setExportImageWidth() {
    int width = 0;
    int height = 0;
    determineImageDimensions(width, height);
    setExportIntegerValue("ImageWidth", width);
}

void DialogExportOptions::setExportFilename(const std::string& fileName) {
    const HostLock lock;
    CorUtilExportSetup("ExportFName", fileName.c_str(), 0, 0.0);
    recordExportMacroCommand("ExportFName", (boost::format("\"%1%\"") % fileName).str());
}

} // namespace corvane::corutiltools
