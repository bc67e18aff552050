// The words of the host's macro lines that set up an export.
#include "addon/ui/ExportKeywords.h"

namespace corvane::corutiltools {

template <>
void EnumMap<ExportFormat_e>::initializeMaps() {
    m_keywords[ExportFormat_AVI] = "AVI";
    m_keywords[ExportFormat_FlashFLV] = "FLV";
    m_keywords[ExportFormat_FlashSWF] = "FLASH";
    m_keywords[ExportFormat_MPEG4] = "MPEG4";
    m_keywords[ExportFormat_RasterMetafile] = "RASTERMETAFILE";
    m_keywords[ExportFormat_WMV] = "WMV";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<ExportRegion_e>::initializeMaps() {
    m_keywords[ExportRegion_CurrentFrame] = "CURRENTFRAME";
    m_keywords[ExportRegion_AllFrames] = "ALLFRAMES";
    m_keywords[ExportRegion_WorkArea] = "WORKAREA";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<AVICompression_e>::initializeMaps() {
    m_keywords[AVICompression_ColorPreserving] = "COLORPRESERVING";
    m_keywords[AVICompression_LinePreserving] = "LINEPRESERVING";
    m_keywords[AVICompression_LosslessUncompressed] = "LOSSLESSUNCOMPRESSED";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<FlashImageType_e>::initializeMaps() {
    m_keywords[FlashImageType_Lossless] = "LOSSLESS";
    m_keywords[FlashImageType_JPEG] = "JPEG";
    m_keywords[FlashImageType_256Color] = "256COLOR";
    ReverseMap(m_keywords, m_values);
}

template <>
void EnumMap<FlashCompressionType_e>::initializeMaps() {
    m_keywords[FlashCompressionType_BestSpeed] = "BESTSPEED";
    m_keywords[FlashCompressionType_SmallestSize] = "SMALLESTSIZE";
    ReverseMap(m_keywords, m_values);
}

} // namespace corvane::corutiltools
