// The layout of the export options: labels on the left, their controls in one column on the right.
#include "addon/ui/DialogLayout.h"

#include "addon/ui/DialogExportOptions.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

namespace {

constexpr int labelX = 200;
constexpr int labelWidth = 3300;
constexpr int controlX = 3600;
constexpr int controlWidth = 3200;
constexpr int lineHeight = 145;
// A label is one line of text high: this puts it in the middle of the control beside it.
constexpr int labelOffset = 22;

int addLabel(int y, const char* label) {
    return CorGUILabelAdd(Dialog2Manager, labelX, y + labelOffset, label);
}

// The items are filled in at each launch.
int addOptionMenu(int y, CorGUIIndexCB callback) {
    const char* const items[] = {" "};
    return CorGUIOptionMenuAdd(Dialog2Manager, controlX, y, controlWidth, lineHeight, items, 1,
                               callback);
}

int addTextField(int y, CorGUITextCB callback) {
    return CorGUITextFieldAdd(Dialog2Manager, controlX, y, controlWidth, lineHeight, callback);
}

void addPictureControls() {
    addLabel(100, "Format:");
    ExportFormat_OPT_D2 = addOptionMenu(100, DialogExportOptions::exportFormat_OPT_CB);
    addLabel(300, "Region:");
    Region_OPT_D2 = addOptionMenu(300, DialogExportOptions::region_OPT_CB);
    const char* const widths[] = {"&Use Width of Image on Screen", "&Enter Width:"};
    Width_RADIO_D2 = CorGUIRadioBoxAdd(Dialog2Manager, labelX, 500, labelWidth, 2 * lineHeight,
                                       widths, 2, DialogExportOptions::width_RADIO_CB);
    Width_TF_D2 = addTextField(500 + lineHeight, DialogExportOptions::width_TF_CB);
    ImageDimensions_LBL_D2 =
        CorGUILabelAdd(Dialog2Manager, controlX, 845 + labelOffset, "Dimensions: 0 x 0");
}

void addMovieControls() {
    AnimationSpeed_LBL_D2 = addLabel(1045, "Animation Speed (frames/sec):");
    AnimationSpeed_TF_D2 = addTextField(1045, DialogExportOptions::animationSpeed_TF_CB);
    Antialiasing_TOG_D2 =
        CorGUIToggleAdd(Dialog2Manager, labelX, 1245, labelWidth, lineHeight, "&Antialiasing",
                        DialogExportOptions::antialiasing_TOG_CB);
    SupersampleFactor_LBL_D2 = addLabel(1445, "Supersample Factor (2-16):");
    SupersampleFactor_TF_D2 = addTextField(1445, DialogExportOptions::supersampleFactor_TF_CB);
}

void addFormatControls() {
    AVICompression_LBL_D2 = addLabel(1645, "AVI Compression:");
    AVICompression_OPT_D2 = addOptionMenu(1645, DialogExportOptions::aviCompression_OPT_CB);
    ImageType_LBL_D2 = addLabel(1845, "Image Type:");
    ImageType_OPT_D2 = addOptionMenu(1845, DialogExportOptions::imageType_OPT_CB);
    const char* const aims[] = {"Optimize for &Speed", "Optimize for &File Size"};
    Optimization_RADIO_D2 =
        CorGUIRadioBoxAdd(Dialog2Manager, controlX, 2045, controlWidth, 2 * lineHeight, aims, 2,
                          DialogExportOptions::optimization_RADIO_CB);
}

} // namespace

int BuildDialog2(int parent) {
    if (Dialog2Manager != COR_HANDLE_NOT_CREATED) {
        return Dialog2Manager;
    }
    Dialog2Manager = CorGUIDialogCreateModal(
        parent, controlX + controlWidth + labelX, 2435, "Export Options",
        DialogExportOptions::init_CB, DialogExportOptions::ok_BTN_CB, nullptr,
        DialogExportOptions::cancel_BTN_CB, DialogExportOptions::help_BTN_CB);
    if (Dialog2Manager == COR_HANDLE_NOT_CREATED) {
        return COR_HANDLE_NOT_CREATED;
    }
    addPictureControls();
    addMovieControls();
    addFormatControls();
    return Dialog2Manager;
}

} // namespace corvane::corutiltools
