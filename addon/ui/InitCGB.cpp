// The handles of the dialogs and their controls.
#include "addon/ui/DialogLayout.h"
#include "hostapi/CorTypes.h"

#include <initializer_list>

namespace corvane::corutiltools {

int Dialog1Manager = COR_HANDLE_NOT_CREATED;
int KeyFrameList_MLST_D1 = COR_HANDLE_NOT_CREATED;
int InsertKeyFrame_BTN_D1 = COR_HANDLE_NOT_CREATED;
int AppendKeyFrame_BTN_D1 = COR_HANDLE_NOT_CREATED;
int Update_BTN_D1 = COR_HANDLE_NOT_CREATED;
int Apply_BTN_D1 = COR_HANDLE_NOT_CREATED;
int Delete_BTN_D1 = COR_HANDLE_NOT_CREATED;
int Clear_BTN_D1 = COR_HANDLE_NOT_CREATED;
int ViewName_LBL_D1 = COR_HANDLE_NOT_CREATED;
int ViewName_TF_D1 = COR_HANDLE_NOT_CREATED;
int FrameCount_LBL_D1 = COR_HANDLE_NOT_CREATED;
int FrameCount_TF_D1 = COR_HANDLE_NOT_CREATED;
int Destination_LBL_D1 = COR_HANDLE_NOT_CREATED;
int Destination_OPT_D1 = COR_HANDLE_NOT_CREATED;
int AnimateAll_BTN_D1 = COR_HANDLE_NOT_CREATED;
int AnimateSelected_BTN_D1 = COR_HANDLE_NOT_CREATED;
int Dialog2Manager = COR_HANDLE_NOT_CREATED;
int ExportFormat_OPT_D2 = COR_HANDLE_NOT_CREATED;
int Region_OPT_D2 = COR_HANDLE_NOT_CREATED;
int Width_RADIO_D2 = COR_HANDLE_NOT_CREATED;
int Width_TF_D2 = COR_HANDLE_NOT_CREATED;
int ImageDimensions_LBL_D2 = COR_HANDLE_NOT_CREATED;
int AnimationSpeed_LBL_D2 = COR_HANDLE_NOT_CREATED;
int AnimationSpeed_TF_D2 = COR_HANDLE_NOT_CREATED;
int Antialiasing_TOG_D2 = COR_HANDLE_NOT_CREATED;
int SupersampleFactor_LBL_D2 = COR_HANDLE_NOT_CREATED;
int SupersampleFactor_TF_D2 = COR_HANDLE_NOT_CREATED;
int AVICompression_LBL_D2 = COR_HANDLE_NOT_CREATED;
int AVICompression_OPT_D2 = COR_HANDLE_NOT_CREATED;
int ImageType_LBL_D2 = COR_HANDLE_NOT_CREATED;
int ImageType_OPT_D2 = COR_HANDLE_NOT_CREATED;
int Optimization_RADIO_D2 = COR_HANDLE_NOT_CREATED;
int Dialog3Manager = COR_HANDLE_NOT_CREATED;
int AnimationOperation_RADIO_D3 = COR_HANDLE_NOT_CREATED;
int NumCycles_LBL_D3 = COR_HANDLE_NOT_CREATED;
int NumCycles_TFS_D3 = COR_HANDLE_NOT_CREATED;

void InitCGB() {
    for (int* const handle : {&Dialog1Manager,
                              &KeyFrameList_MLST_D1,
                              &InsertKeyFrame_BTN_D1,
                              &AppendKeyFrame_BTN_D1,
                              &Update_BTN_D1,
                              &Apply_BTN_D1,
                              &Delete_BTN_D1,
                              &Clear_BTN_D1,
                              &ViewName_LBL_D1,
                              &ViewName_TF_D1,
                              &FrameCount_LBL_D1,
                              &FrameCount_TF_D1,
                              &Destination_LBL_D1,
                              &Destination_OPT_D1,
                              &AnimateAll_BTN_D1,
                              &AnimateSelected_BTN_D1,
                              &Dialog2Manager,
                              &ExportFormat_OPT_D2,
                              &Region_OPT_D2,
                              &Width_RADIO_D2,
                              &Width_TF_D2,
                              &ImageDimensions_LBL_D2,
                              &AnimationSpeed_LBL_D2,
                              &AnimationSpeed_TF_D2,
                              &Antialiasing_TOG_D2,
                              &SupersampleFactor_LBL_D2,
                              &SupersampleFactor_TF_D2,
                              &AVICompression_LBL_D2,
                              &AVICompression_OPT_D2,
                              &ImageType_LBL_D2,
                              &ImageType_OPT_D2,
                              &Optimization_RADIO_D2,
                              &Dialog3Manager,
                              &AnimationOperation_RADIO_D3,
                              &NumCycles_LBL_D3,
                              &NumCycles_TFS_D3}) {
        *handle = COR_HANDLE_NOT_CREATED;
    }
}

} // namespace corvane::corutiltools
