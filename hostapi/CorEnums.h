/* Enumerations of the contract. Macros, files and compiled add-ons hold these numbers: they never
 * change. */
#ifndef HOSTAPI_COR_ENUMS_H
#define HOSTAPI_COR_ENUMS_H

/* What a frame shows. */
typedef enum PlotType_e {
    PlotType_None = 0, /* There is no frame. */
    PlotType_Cartesian3D = 1,
    PlotType_Cartesian2D = 2
} PlotType_e;

/* What changed in the host.
 *
 * Rationale: an add-on looks at frames, data and plot type again after 2, 3, 5 to 9, 44, 50 and 51,
 * to decide whether its menu option can be used. Every event that can change the answer has one of
 * these codes. What happens once per picture of an animation (4, 10, 52) has none of them, so
 * playing costs no looking. */
typedef enum StateChange_e {
    StateChange_FrameCreated = 2,
    StateChange_FrameDeleted = 3,
    StateChange_ViewChanged = 4, /* The 3D view of a frame: angles, position, width, projection. */
    StateChange_FrameActivated = 5, /* Another frame became the active one. */
    StateChange_DataSetAttached = 6,
    StateChange_DataSetRemoved = 7,
    StateChange_PlotTypeChanged = 8,
    StateChange_LayoutLoaded = 9,
    StateChange_StyleChanged = 10, /* A style value outside the 3D view. */
    StateChange_HostQuit = 15, /* Sent once. Every operation still works while it is delivered. */
    StateChange_UndoRedo = 44,
    StateChange_PageChanged = 50, /* Another page became the current one. */
    StateChange_PageAddedOrDeleted = 51,
    StateChange_SolutionTimeChanged = 52
} StateChange_e;

/* When a listener hears of a change. Other values are reserved. */
typedef enum StateChangeMode_e {
    /* At once, one call per change, when the host's own state is consistent again. */
    StateChangeMode_Synchronous = 2
} StateChangeMode_e;

/* The angle of the 3D view that a rotation changes. Other values are reserved. */
typedef enum RotateAxis_e {
    RotateAxis_Psi = 3,   /* Tilt of the line of sight away from +Z. */
    RotateAxis_Theta = 4, /* Turn about Z. */
    RotateAxis_Alpha = 5  /* Twist about the line of sight. */
} RotateAxis_e;

/* The point that a rotation leaves where it is. */
typedef enum RotateOrigin_e {
    RotateOrigin_Default = 0 /* The rotation origin of the frame. */
} RotateOrigin_e;

/* The unit of a dimension on the page. Other values are reserved. */
typedef enum CoordSys_e {
    CoordSys_Paper = 3, /* Paper units, those of CorUtilFrameGetPosAndSize. */
    CoordSys_Screen = 4 /* Pixels at the current zoom, those of a movie in screen size. */
} CoordSys_e;

/* The buttons of a message box. Other values are reserved and count as a notice. */
typedef enum MessageBox_e {
    MessageBox_Notice = 2, /* OK. */
    MessageBox_YesNo = 4   /* Yes and No. */
} MessageBox_e;

/* What a file name is asked for. 1 and 2 are reserved and count as reading. */
typedef enum SelectFileOption_e {
    SelectFile_Read = 0, /* An existing file. */
    SelectFile_Write = 3 /* Any file. */
} SelectFileOption_e;

/* The format of an exported file. Other codes stand for formats of still images: they can be set,
 * and are refused when a movie is started. */
typedef enum ExportFormat_e {
    ExportFormat_RasterMetafile = 0, /* Binary PPM pictures one behind the other; holds no speed. */
    ExportFormat_AVI = 14,
    ExportFormat_FlashSWF = 17, /* Holds the speed in steps of 1/256 frame per second. */
    ExportFormat_FlashFLV = 20,
    ExportFormat_MPEG4 = 21,
    ExportFormat_WMV = 22
} ExportFormat_e;

/* The part of the page that an export shows. */
typedef enum ExportRegion_e {
    ExportRegion_CurrentFrame = 0, /* The active frame. */
    ExportRegion_AllFrames = 1,    /* The smallest box round all frames. */
    ExportRegion_WorkArea = 2      /* All that the window shows of the page. */
} ExportRegion_e;

/* How the pictures of an AVI movie are compressed. */
typedef enum AVICompression_e {
    AVICompression_ColorPreserving = 0,
    AVICompression_LinePreserving = 1, /* Lossless: thin lines stay exact. */
    AVICompression_LosslessUncompressed = 2
} AVICompression_e;

/* How an SWF movie holds its pictures. */
typedef enum FlashImageType_e {
    FlashImageType_Lossless = 0, /* True colour. */
    FlashImageType_JPEG = 1,
    FlashImageType_256Color = 2
} FlashImageType_e;

/* What the compression of an SWF movie aims at. Outside of the set-up 255 stands for
 * neither of them. */
typedef enum FlashCompressionType_e {
    FlashCompressionType_BestSpeed = 0,
    FlashCompressionType_SmallestSize = 1
} FlashCompressionType_e;

/* What became of writing a style value. Only StyleSet_Ok changes anything. */
typedef enum StyleSetResult_e {
    StyleSet_Ok = 0,
    StyleSet_Unchanged = 1, /* The value was there already; nothing needs drawing. */
    StyleSet_BadPath = 2,   /* There is no such path. */
    StyleSet_BadValue = 3,  /* Not finite, out of range, or of the wrong type. */
    StyleSet_NotAllowed = 4 /* The path exists, but cannot be written in the present state. */
} StyleSetResult_e;

/* What became of reading a style value. Only StyleGet_Ok writes a result. */
typedef enum StyleGetResult_e {
    StyleGet_Ok = 0,
    StyleGet_BadPath = 1,     /* There is no such path. */
    StyleGet_NotAvailable = 2 /* No value of that type, or none now, such as without a 3D frame. */
} StyleGetResult_e;

#endif
