// Pins the contract: other hosts and add-ons are compiled against exactly these declarations.
#include "hostapi/CorHost.h"

#include <type_traits>

namespace {

#define OPERATION(name, ...) static_assert(std::is_same_v<decltype(name), __VA_ARGS__>)
#define CALLBACK(name, ...) static_assert(std::is_same_v<name, __VA_ARGS__>)

// Operations
OPERATION(CorUtilAddOnRegister, CorAddOnID(int, const char*, const char*, const char*));
OPERATION(InitCorAddOn113, void());
OPERATION(CorUtilLockOn, void());
OPERATION(CorUtilLockOff, void());
OPERATION(CorUtilLockStart, void(CorAddOnID));
OPERATION(CorUtilLockFinish, void(CorAddOnID));
OPERATION(CorUtilMenuAddOption, CorBool(const char*, const char*, int, void (*)()));
OPERATION(CorUtilMenuSetSensitivity, CorBool(const char*, const char*, CorBool));
OPERATION(CorUtilStateChangeAddCallbackX, CorBool(CorArgList));
OPERATION(CorUtilOnIdleQueueAddCallback, CorBool(CorOnIdleCallback, long));
OPERATION(CorUtilFrameGetCount, long());
OPERATION(CorUtilFrameGetPlotType, PlotType_e());
OPERATION(CorUtilFrameGetUniqueID, long());
OPERATION(CorUtilFrameActivateTop, CorBool());
OPERATION(CorUtilFrameActivateByUniqueID, CorBool(long));
OPERATION(CorUtilFramePushTop, CorBool());
OPERATION(CorUtilFrameLightweightPopStart, void());
OPERATION(CorUtilFrameLightweightPopNext, CorBool());
OPERATION(CorUtilFrameLightweightPopEnd, void());
OPERATION(CorUtilFrameGetPosAndSize, void(double*, double*, double*, double*));
OPERATION(CorUtilConvertXDimension, double(double, CoordSys_e, CoordSys_e));
OPERATION(CorUtilConvertYDimension, double(double, CoordSys_e, CoordSys_e));
OPERATION(CorUtilWorkAreaGetDimensions, void(int*, int*));
OPERATION(CorUtilThreeDViewGetViewerPos, void(double*, double*, double*));
OPERATION(CorUtilThreeDViewGetViewerAngle, void(double*, double*, double*));
OPERATION(CorUtilThreeDViewGetProjection, void(double*, double*, CorBool*));
OPERATION(CorUtilViewRotate3D,
          CorBool(RotateAxis_e, double, double, double, double, RotateOrigin_e));
OPERATION(CorUtilDataSetIsAvailable, CorBool());
OPERATION(CorUtilZoneGetEnabled, CorBool(CorSet*));
OPERATION(CorUtilSetGetNextMember, long(CorSet, long));
OPERATION(CorUtilSetDealloc, void(CorSet*));
OPERATION(CorUtilZoneGetSolutionTime, double(long));
OPERATION(CorUtilZoneGetStrandID, long(long));
OPERATION(CorUtilSolutionTimeGetCurrent, double());
OPERATION(CorUtilSolutionTimeSetCurrent, CorBool(double));
OPERATION(CorUtilDrawGraphics, void(CorBool));
OPERATION(CorUtilRedraw, CorBool(CorBool));
OPERATION(CorUtilStatusStartPercentDone, void(const char*, CorBool, CorBool));
OPERATION(CorUtilStatusSetPercentDoneText, void(const char*));
OPERATION(CorUtilStatusCheckPercentDone, CorBool(int));
OPERATION(CorUtilStatusFinishPercentDone, void());
OPERATION(CorUtilExportIsRecording, CorBool());
OPERATION(CorUtilExportStart, CorBool());
OPERATION(CorUtilExportNextFrame, CorBool());
OPERATION(CorUtilExportFinish, CorBool());
OPERATION(CorUtilExportCancel, CorBool());
OPERATION(CorUtilExportSetup, CorBool(const char*, const char*, int, double));
OPERATION(CorUtilMacroAddCommandCallback, CorBool(const char*, CorMacroCommandCallback));
OPERATION(CorUtilMacroIsRecordingActive, CorBool());
OPERATION(CorUtilMacroRecordExtCommand, CorBool(const char*, const char*));
OPERATION(CorUtilMacroRecordRawCommand, CorBool(const char*));
OPERATION(CorUtilDialogErrMsg, CorBool(const char*));
OPERATION(CorUtilDialogMessageBox, CorBool(const char*, MessageBox_e));
OPERATION(CorUtilDialogGetFileName,
          CorBool(SelectFileOption_e, char**, const char*, const char*, const char*));
OPERATION(CorUtilHelp, CorBool(const char*, CorBool, int));
OPERATION(CorUtilStringAlloc, char*(long));
OPERATION(CorUtilStringDealloc, void(char**));
OPERATION(CorUtilArrayDealloc, void(void**));
OPERATION(CorUtilArgListAlloc, CorArgList());
OPERATION(CorUtilArgListAppendFunction, CorBool(CorArgList, const char*, CorGenericFunc));
OPERATION(CorUtilArgListAppendInt, CorBool(CorArgList, const char*, int));
OPERATION(CorUtilArgListDealloc, void(CorArgList*));
OPERATION(CorGUIDialogCreateModeless,
          int(int, int, int, const char*, CorGUIVoidCB, CorGUIVoidCB, CorGUIVoidCB));
OPERATION(CorGUIDialogCreateModal, int(int, int, int, const char*, CorGUIVoidCB, CorGUIVoidCB,
                                       CorGUIVoidCB, CorGUIVoidCB, CorGUIVoidCB));
OPERATION(CorGUIDialogLaunch, void(int));
OPERATION(CorGUIDialogDrop, void(int));
OPERATION(CorGUIDialogIsUp, CorBool(int));
OPERATION(CorGUIButtonAdd, int(int, int, int, int, int, const char*, CorGUIVoidCB));
OPERATION(CorGUILabelAdd, int(int, int, int, const char*));
OPERATION(CorGUIFrameAdd, int(int, int, int, int, int, const char*));
OPERATION(CorGUITextFieldAdd, int(int, int, int, int, int, CorGUITextCB));
OPERATION(CorGUITextFieldSetString, void(int, const char*));
OPERATION(CorGUISpinTextFieldAdd,
          int(int, int, int, int, int, CorGUITextCB, CorGUIVoidCB, CorGUIVoidCB));
OPERATION(CorGUIListAdd, int(int, int, int, int, int, CorBool, CorGUIListCB));
OPERATION(CorGUIListAppendItem, void(int, const char*));
OPERATION(CorGUIListDeleteAllItems, void(int));
OPERATION(CorGUIListDeleteItemAtPos, void(int, long));
OPERATION(CorGUIListReplaceItem, void(int, const char*, long));
OPERATION(CorGUIListGetItemCount, long(int));
OPERATION(CorGUIListGetSelectedItems, void(int, long**, long*));
OPERATION(CorGUIListSetSelectedItem, void(int, long));
OPERATION(CorGUIListSetSelectedItems, void(int, const int*, long));
OPERATION(CorGUIListDeselectAllItems, void(int));
OPERATION(CorGUIOptionMenuAdd,
          int(int, int, int, int, int, const char* const*, int, CorGUIIndexCB));
OPERATION(CorGUIOptionMenuAppendItem, void(int, const char*));
OPERATION(CorGUIOptionMenuDeleteAllItems, void(int));
OPERATION(CorGUIOptionMenuGet, long(int));
OPERATION(CorGUIOptionMenuSet, void(int, long));
OPERATION(CorGUIRadioBoxAdd, int(int, int, int, int, int, const char* const*, int, CorGUIIndexCB));
OPERATION(CorGUIRadioBoxGetToggle, long(int));
OPERATION(CorGUIRadioBoxSetToggle, void(int, long));
OPERATION(CorGUIMenuBarAdd, int(int));
OPERATION(CorGUIMenuAdd, int(int, const char*));
OPERATION(CorGUIMenuAddItem, int(int, const char*, const char*, CorGUIVoidCB));
OPERATION(CorGUIMenuAddToggle, int(int, const char*, const char*, CorGUIToggleCB));
OPERATION(CorGUIMenuAddSeparator, void(int));
OPERATION(CorGUIMenuSetToggle, void(int, CorBool));
OPERATION(CorGUISetSensitivity, void(int, CorBool));
OPERATION(CorGUISetToolTip, void(int, const char*));
OPERATION(CorUtilStyleSet, int(CorArgList));
OPERATION(CorUtilStyleGet, int(CorArgList));
OPERATION(CorUtilArgListAppendDouble, CorBool(CorArgList, const char*, double));
OPERATION(CorUtilArgListAppendString, CorBool(CorArgList, const char*, const char*));
OPERATION(CorUtilArgListAppendIntPtr, CorBool(CorArgList, const char*, int*));
OPERATION(CorUtilArgListAppendDoublePtr, CorBool(CorArgList, const char*, double*));
OPERATION(CorUtilStateChangeAddListener, CorBool(StateChangeMode_e, CorStateChangeListener, void*));
OPERATION(CorUtilStateChangeRemoveListener, CorBool(CorStateChangeListener, void*));
OPERATION(CorGUIToggleAdd, int(int, int, int, int, int, const char*, CorGUIToggleCB));
OPERATION(CorGUIToggleGet, CorBool(int));
OPERATION(CorGUIToggleSet, void(int, CorBool));
OPERATION(CorGUILabelSetText, void(int, const char*));

// Callbacks
CALLBACK(CorGenericFunc, void (*)());
CALLBACK(CorStateChangeCallback, void (*)(StateChange_e));
CALLBACK(CorStateChangeListener, void (*)(StateChange_e, void*));
CALLBACK(CorOnIdleCallback, void (*)(long));
CALLBACK(CorMacroCommandCallback, CorBool (*)(char*, char**));
CALLBACK(CorGUIVoidCB, void (*)());
CALLBACK(CorGUITextCB, long (*)(const char*));
CALLBACK(CorGUIListCB, void (*)(const long*));
CALLBACK(CorGUIIndexCB, void (*)(const long*));
CALLBACK(CorGUIToggleCB, void (*)(const long*));

// Basic types
static_assert(std::is_same_v<CorBool, int>);
static_assert(std::is_pointer_v<CorAddOnID> && std::is_pointer_v<CorArgList> &&
              std::is_pointer_v<CorSet>);
static_assert(sizeof(PlotType_e) == sizeof(int) && sizeof(StateChange_e) == sizeof(int));
static_assert(TRUE == 1 && FALSE == 0);
static_assert(COR_HANDLE_NOT_CREATED == -2 && COR_HANDLE_MAIN_WINDOW == -1);

// Codes
static_assert(PlotType_None == 0);
static_assert(PlotType_Cartesian3D == 1);
static_assert(PlotType_Cartesian2D == 2);
static_assert(StateChange_ViewChanged == 4);
static_assert(StateChange_FrameCreated == 2);
static_assert(StateChange_FrameDeleted == 3);
static_assert(StateChange_FrameActivated == 5);
static_assert(StateChange_DataSetAttached == 6);
static_assert(StateChange_DataSetRemoved == 7);
static_assert(StateChange_PlotTypeChanged == 8);
static_assert(StateChange_LayoutLoaded == 9);
static_assert(StateChange_StyleChanged == 10);
static_assert(StateChange_HostQuit == 15);
static_assert(StateChange_UndoRedo == 44);
static_assert(StateChange_PageChanged == 50);
static_assert(StateChange_PageAddedOrDeleted == 51);
static_assert(StateChange_SolutionTimeChanged == 52);
static_assert(StateChangeMode_Synchronous == 2);
static_assert(RotateAxis_Psi == 3);
static_assert(RotateAxis_Theta == 4);
static_assert(RotateAxis_Alpha == 5);
static_assert(RotateOrigin_Default == 0);
static_assert(CoordSys_Paper == 3);
static_assert(CoordSys_Screen == 4);
static_assert(MessageBox_Notice == 2);
static_assert(MessageBox_YesNo == 4);
static_assert(SelectFile_Read == 0);
static_assert(SelectFile_Write == 3);
static_assert(ExportFormat_RasterMetafile == 0);
static_assert(ExportFormat_AVI == 14);
static_assert(ExportFormat_FlashSWF == 17);
static_assert(ExportFormat_FlashFLV == 20);
static_assert(ExportFormat_MPEG4 == 21);
static_assert(ExportFormat_WMV == 22);
static_assert(ExportRegion_CurrentFrame == 0);
static_assert(ExportRegion_AllFrames == 1);
static_assert(ExportRegion_WorkArea == 2);
static_assert(AVICompression_ColorPreserving == 0);
static_assert(AVICompression_LinePreserving == 1);
static_assert(AVICompression_LosslessUncompressed == 2);
static_assert(FlashImageType_Lossless == 0);
static_assert(FlashImageType_JPEG == 1);
static_assert(FlashImageType_256Color == 2);
static_assert(FlashCompressionType_BestSpeed == 0);
static_assert(FlashCompressionType_SmallestSize == 1);
static_assert(StyleSet_Ok == 0);
static_assert(StyleSet_Unchanged == 1);
static_assert(StyleSet_BadPath == 2);
static_assert(StyleSet_BadValue == 3);
static_assert(StyleSet_NotAllowed == 4);
static_assert(StyleGet_Ok == 0);
static_assert(StyleGet_BadPath == 1);
static_assert(StyleGet_NotAvailable == 2);

} // namespace
