/* Enumerations and numeric codes of the contract. The numbers are fixed. */
#ifndef HOSTAPI_COR_ENUMS_H
#define HOSTAPI_COR_ENUMS_H

typedef enum PlotType_e {
    PlotType_None = 0,
    PlotType_Cartesian3D = 1,
    PlotType_Cartesian2D = 2
} PlotType_e;

typedef enum StateChange_e {
    StateChange_FrameCreated = 2,
    StateChange_FrameDeleted = 3,
    StateChange_ViewChanged = 4,
    StateChange_FrameActivated = 5,
    StateChange_DataSetAttached = 6,
    StateChange_DataSetRemoved = 7,
    StateChange_PlotTypeChanged = 8,
    StateChange_LayoutLoaded = 9,
    StateChange_StyleChanged = 10,
    StateChange_HostQuit = 15,
    StateChange_UndoRedo = 44,
    StateChange_PageChanged = 50,
    StateChange_PageAddedOrDeleted = 51,
    StateChange_SolutionTimeChanged = 52
} StateChange_e;

typedef enum StateChangeMode_e { StateChangeMode_Synchronous = 2 } StateChangeMode_e;

typedef enum RotateAxis_e {
    RotateAxis_Psi = 3,
    RotateAxis_Theta = 4,
    RotateAxis_Alpha = 5
} RotateAxis_e;

typedef enum RotateOrigin_e { RotateOrigin_Default = 0 } RotateOrigin_e;

typedef enum CoordSys_e { CoordSys_Paper = 3, CoordSys_Screen = 4 } CoordSys_e;

typedef enum MessageBox_e { MessageBox_Notice = 2, MessageBox_YesNo = 4 } MessageBox_e;

typedef enum SelectFileOption_e { SelectFile_Read = 0, SelectFile_Write = 3 } SelectFileOption_e;

typedef enum ExportFormat_e {
    ExportFormat_RasterMetafile = 0,
    ExportFormat_AVI = 14,
    ExportFormat_FlashSWF = 17,
    ExportFormat_FlashFLV = 20,
    ExportFormat_MPEG4 = 21,
    ExportFormat_WMV = 22
} ExportFormat_e;

typedef enum ExportRegion_e {
    ExportRegion_CurrentFrame = 0,
    ExportRegion_AllFrames = 1,
    ExportRegion_WorkArea = 2
} ExportRegion_e;

typedef enum AVICompression_e {
    AVICompression_ColorPreserving = 0,
    AVICompression_LinePreserving = 1,
    AVICompression_LosslessUncompressed = 2
} AVICompression_e;

typedef enum FlashImageType_e {
    FlashImageType_Lossless = 0,
    FlashImageType_JPEG = 1,
    FlashImageType_256Color = 2
} FlashImageType_e;

typedef enum FlashCompressionType_e {
    FlashCompressionType_BestSpeed = 0,
    FlashCompressionType_SmallestSize = 1
} FlashCompressionType_e;

typedef enum StyleSetResult_e {
    StyleSet_Ok = 0,
    StyleSet_Unchanged = 1,
    StyleSet_BadPath = 2,
    StyleSet_BadValue = 3,
    StyleSet_NotAllowed = 4
} StyleSetResult_e;

typedef enum StyleGetResult_e {
    StyleGet_Ok = 0,
    StyleGet_BadPath = 1,
    StyleGet_NotAvailable = 2
} StyleGetResult_e;

#endif
