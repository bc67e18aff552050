// The layouts of the add-on's dialogs: 1 the main dialog, 2 the export options, 3 the time
// animation options.
#pragma once

namespace corvane::corutiltools {

// Handles of the dialogs and their controls, COR_HANDLE_NOT_CREATED until they are built. MLST is a
// list, BTN a button, LBL a label, TF a text field, TFS a spin field, OPT an option menu, TOG a
// toggle, RADIO a radio box.
extern int Dialog1Manager;
extern int KeyFrameList_MLST_D1;
extern int InsertKeyFrame_BTN_D1;
extern int AppendKeyFrame_BTN_D1;
extern int Update_BTN_D1;
extern int Apply_BTN_D1;
extern int Delete_BTN_D1;
extern int Clear_BTN_D1;
extern int ViewName_LBL_D1;
extern int ViewName_TF_D1;
extern int FrameCount_LBL_D1;
extern int FrameCount_TF_D1;
extern int Destination_LBL_D1;
extern int Destination_OPT_D1;
extern int AnimateAll_BTN_D1;
extern int AnimateSelected_BTN_D1;

extern int Dialog2Manager;
extern int ExportFormat_OPT_D2;
extern int Region_OPT_D2;
extern int Width_RADIO_D2;
extern int Width_TF_D2;
extern int ImageDimensions_LBL_D2;
extern int AnimationSpeed_LBL_D2;
extern int AnimationSpeed_TF_D2;
extern int Antialiasing_TOG_D2;
extern int SupersampleFactor_LBL_D2;
extern int SupersampleFactor_TF_D2;
extern int AVICompression_LBL_D2;
extern int AVICompression_OPT_D2;
extern int ImageType_LBL_D2;
extern int ImageType_OPT_D2;
extern int Optimization_RADIO_D2;

extern int Dialog3Manager;
extern int AnimationOperation_RADIO_D3;
extern int NumCycles_LBL_D3;
extern int NumCycles_TFS_D3;

// Forgets all handles. To be called before anything is built, since handles end with their host.
void InitCGB();

// Build a dialog with its controls, unless it exists already, and answer its handle:
// COR_HANDLE_NOT_CREATED when the host cannot make it. The parent is a dialog or
// COR_HANDLE_MAIN_WINDOW. The host's lock is the caller's matter.
int BuildDialog1(int parent);
int BuildDialog2(int parent);
int BuildDialog3(int parent);

} // namespace corvane::corutiltools
