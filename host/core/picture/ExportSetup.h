// How pictures and movies are exported: one store for style values, export operations and macros.
#pragma once

#include "host/core/page/StyleTree.h"
#include "hostapi/CorEnums.h"

#include <string>

namespace corvane::host {

struct ExportSetup {
    int format = ExportFormat_AVI;
    int aviCompression = AVICompression_LinePreserving;
    int flashImageType = FlashImageType_Lossless;
    int flashCompressionType = FlashCompressionType_BestSpeed;
    int region = ExportRegion_CurrentFrame;
    int imageWidth = 512; ///< limits::pictureSide; the height follows from the region's aspect
    double animationSpeed = 30.0; ///< limits::framesPerSecond
    bool useSuperSampleAntiAliasing = false;
    int superSampleFactor = 3; ///< limits::supersampling; used with useSuperSampleAntiAliasing
    std::string fileName;

    bool isAnimationFormat() const;
};

/// Binds the values under "ExportSetup" "ExportFormat" and so on; isAllowed is asked before writes.
void bindExportSetup(StyleTree& tree, ExportSetup& setup, std::function<bool()> isAllowed);

/// The words that macros write for the values of the named setting; empty for numbers and texts.
std::vector<std::string> exportSettingKeywords(const std::string& name);

/// Turns the text of a macro ("MPEG4", "true", "30", "flight.mp4") into the value that the named
/// setting takes; nothing when it does not fit. Names and keywords ignore letter case.
std::optional<StyleInput> exportSettingFromText(const std::string& name, const std::string& text);

} // namespace corvane::host
