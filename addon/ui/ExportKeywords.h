// The words of the host's macro lines that set up an export.
#pragma once

#include "addon/base/EnumMap.h"
#include "hostapi/CorEnums.h"

namespace corvane::corutiltools {

template <>
void EnumMap<ExportFormat_e>::initializeMaps();
template <>
void EnumMap<ExportRegion_e>::initializeMaps();
template <>
void EnumMap<AVICompression_e>::initializeMaps();
template <>
void EnumMap<FlashImageType_e>::initializeMaps();
template <>
void EnumMap<FlashCompressionType_e>::initializeMaps();

} // namespace corvane::corutiltools
