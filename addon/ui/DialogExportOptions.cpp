// The export options: what the dialog shows, and how its controls depend on each other.
#include "addon/ui/DialogExportOptions.h"

#include "addon/ui/DialogLayout.h"
#include "addon/ui/ImageDimensions.h"

#include <boost/format.hpp>

#include <initializer_list>
#include <iterator>
#include <locale>
#include <map>
#include <utility>

namespace corvane::corutiltools {

namespace {

constexpr long enterWidthPosition = 2; // in the radio box

const std::map<ExportFormat_e, std::string>& formatToFileExtensionMap() {
    static const std::map<ExportFormat_e, std::string> extensions{
        {ExportFormat_AVI, "avi"},           {ExportFormat_FlashFLV, "flv"},
        {ExportFormat_FlashSWF, "swf"},      {ExportFormat_MPEG4, "mp4"},
        {ExportFormat_RasterMetafile, "rm"}, {ExportFormat_WMV, "wmv"}};
    return extensions;
}

void setSensitivity(std::initializer_list<int> controls, bool isSensitive) {
    for (const int control : controls) {
        CorGUISetSensitivity(control, isSensitive);
    }
}

} // namespace

std::unique_ptr<DialogExportOptions> DialogExportOptions::m_instance;

const PreMappedValue<ExportFormat_e> DialogExportOptions::m_exportFormatOptions[6] = {
    {"AVI", ExportFormat_AVI},
    {"Flash (FLV)", ExportFormat_FlashFLV},
    {"Flash (SWF)", ExportFormat_FlashSWF},
    {"MPEG-4", ExportFormat_MPEG4},
    {"Raster Metafile", ExportFormat_RasterMetafile},
    {"WMV", ExportFormat_WMV}};

const PreMappedValue<ExportRegion_e> DialogExportOptions::m_exportRegionOptions[3] = {
    {"Active Frame", ExportRegion_CurrentFrame},
    {"All Frames", ExportRegion_AllFrames},
    {"Work Area", ExportRegion_WorkArea}};

const PreMappedValue<AVICompression_e> DialogExportOptions::m_aviCompressionOptions[2] = {
    {"Line Preserving", AVICompression_LinePreserving},
    {"Lossless Uncompressed", AVICompression_LosslessUncompressed}};

const PreMappedValue<FlashImageType_e> DialogExportOptions::m_flashImageTypeOptions[3] = {
    {"True Color", FlashImageType_Lossless},
    {"JPEG", FlashImageType_JPEG},
    {"256 Colors", FlashImageType_256Color}};

DialogExportOptions& DialogExportOptions::instance() {
    if (!m_instance) {
        m_instance.reset(new DialogExportOptions);
    }
    return *m_instance;
}

DialogExportOptions::DialogExportOptions()
    : m_imageWidth(300, true, true, 4, 32766),
      m_animationSpeed(30.0, true, true, 0.001, 200.0),
      m_supersampleFactor(3, true, true, 2, 16),
      m_currentFile(m_defaultFileName, "avi", "Movie"),
      m_exportFormat(m_exportFormatOptions, std::size(m_exportFormatOptions)),
      m_exportRegion(m_exportRegionOptions, std::size(m_exportRegionOptions)),
      m_aviCompression(m_aviCompressionOptions, std::size(m_aviCompressionOptions)),
      m_flashImageType(m_flashImageTypeOptions, std::size(m_flashImageTypeOptions)) {}

void DialogExportOptions::launch(const boost::function<void()>& callback) {
    auto lock = std::make_unique<HostLock>();
    if (BuildDialog2(COR_HANDLE_MAIN_WINDOW) == COR_HANDLE_NOT_CREATED) {
        return;
    }
    m_callback = callback;
    bindControls();
    CorGUIDialogLaunch(Dialog2Manager);
    m_launchLock = std::move(lock);
}

void DialogExportOptions::bindControls() {
    m_imageWidth.setGuiID(Width_TF_D2);
    m_animationSpeed.setGuiID(AnimationSpeed_TF_D2);
    m_supersampleFactor.setGuiID(SupersampleFactor_TF_D2);
    m_imageWidth.updateTextField();
    m_animationSpeed.updateTextField();
    m_supersampleFactor.updateTextField();
    m_exportFormat.setGuiID(ExportFormat_OPT_D2);
    m_exportRegion.setGuiID(Region_OPT_D2);
    m_aviCompression.setGuiID(AVICompression_OPT_D2);
    m_flashImageType.setGuiID(ImageType_OPT_D2);
    m_exportFormat.fill();
    m_exportRegion.fill();
    m_aviCompression.fill();
    m_flashImageType.fill();
}

void DialogExportOptions::init_CB() {
    DialogExportOptions& dialog = instance();
    const HostLock lock;
    dialog.showExportSetup();
    dialog.updateSensitivities();
    dialog.updateImageDimensionLabel();
}

void DialogExportOptions::showExportSetup() {
    const toolbox::StyleValue setup("ExportSetup");
    long number = 0;
    double speed = 0.0;
    bool isOn = false;
    if (setup.getInteger(number, "ExportFormat") == StyleGet_Ok) {
        m_exportFormat.setNumber(number);
    }
    if (setup.getDouble(speed, "AnimationSpeed") == StyleGet_Ok) {
        m_animationSpeed.setValue(speed);
    }
    if (setup.getBoolean(isOn, "UseSuperSampleAntiAliasing") == StyleGet_Ok) {
        CorGUIToggleSet(Antialiasing_TOG_D2, isOn);
    }
    if (setup.getInteger(number, "SuperSampleFactor") == StyleGet_Ok) {
        m_supersampleFactor.setValue(static_cast<int>(number));
    }
    if (setup.getInteger(number, "AVICompression") == StyleGet_Ok) {
        m_aviCompression.setNumber(number);
    }
    if (setup.getInteger(number, "FlashImageType") == StyleGet_Ok) {
        m_flashImageType.setNumber(number);
    }
    if (setup.getInteger(number, "FlashCompressionType") == StyleGet_Ok) {
        CorGUIRadioBoxSetToggle(Optimization_RADIO_D2, number != 0 ? 2 : 1);
    }
}

void DialogExportOptions::updateSensitivities() {
    const HostLock lock;
    const ExportFormat_e format = m_exportFormat.value();
    setSensitivity({AVICompression_LBL_D2, AVICompression_OPT_D2}, format == ExportFormat_AVI);
    setSensitivity({ImageType_LBL_D2, ImageType_OPT_D2, Optimization_RADIO_D2},
                   format == ExportFormat_FlashSWF);
    setSensitivity({Width_TF_D2}, CorGUIRadioBoxGetToggle(Width_RADIO_D2) == enterWidthPosition);
    setSensitivity({AnimationSpeed_TF_D2, AnimationSpeed_LBL_D2},
                   format != ExportFormat_RasterMetafile);
    setSensitivity({SupersampleFactor_TF_D2, SupersampleFactor_LBL_D2},
                   CorGUIToggleGet(Antialiasing_TOG_D2) != FALSE);
}

void DialogExportOptions::determineImageDimensions(int& width, int& height) {
    const HostLock lock;
    measureRegion(m_exportRegion.value(), width, height);
    if (CorGUIRadioBoxGetToggle(Width_RADIO_D2) == enterWidthPosition) {
        scaleToWidth(m_imageWidth.value(), width, height);
    }
}

void DialogExportOptions::updateImageDimensionLabel() {
    const HostLock lock;
    int width = 0;
    int height = 0;
    determineImageDimensions(width, height);
    boost::format text("Dimensions: %1% x %2%", std::locale::classic());
    CorGUILabelSetText(ImageDimensions_LBL_D2, (text % width % height).str().c_str());
}

bool DialogExportOptions::promptUserForDestinationFilename() {
    const auto row = formatToFileExtensionMap().find(m_exportFormat.value());
    m_currentFile.setExtension(row == formatToFileExtensionMap().end() ? "" : row->second);
    return m_currentFile.promptForFile(SelectFile_Write);
}

void DialogExportOptions::exportFormat_OPT_CB(const long*) {
    instance().updateSensitivities();
}

void DialogExportOptions::antialiasing_TOG_CB(const long*) {
    instance().updateSensitivities();
}

void DialogExportOptions::width_RADIO_CB(const long*) {
    DialogExportOptions& dialog = instance();
    dialog.updateSensitivities();
    dialog.updateImageDimensionLabel();
}

void DialogExportOptions::region_OPT_CB(const long*) {
    instance().updateImageDimensionLabel();
}

long DialogExportOptions::width_TF_CB(const char* text) {
    DialogExportOptions& dialog = instance();
    const bool isValid = dialog.m_imageWidth.validate(text);
    if (isValid) {
        dialog.updateImageDimensionLabel();
    }
    return isValid;
}

long DialogExportOptions::animationSpeed_TF_CB(const char* text) {
    return instance().m_animationSpeed.validate(text);
}

long DialogExportOptions::supersampleFactor_TF_CB(const char* text) {
    return instance().m_supersampleFactor.validate(text);
}

// Nothing depends on these three; they are read when the user confirms.
void DialogExportOptions::aviCompression_OPT_CB(const long*) {}
void DialogExportOptions::imageType_OPT_CB(const long*) {}
void DialogExportOptions::optimization_RADIO_CB(const long*) {}

void DialogExportOptions::cancel_BTN_CB() {
    instance().close();
}

void DialogExportOptions::close() {
    CorGUIDialogDrop(Dialog2Manager);
    m_launchLock.reset();
}

void DialogExportOptions::help_BTN_CB() {
    const HostLock lock;
    CorUtilHelp("export_options.html", FALSE, 0);
}

} // namespace corvane::corutiltools
