// The end of a chain that goes into an animation file.
#include "addon/engine/AnimatorToFile.h"

#include "addon/base/KeyFrameError.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <array>

namespace corvane::corutiltools {

namespace {

bool isAnimationFormat(long format) {
    constexpr std::array<long, 6> animationFormats{
        ExportFormat_RasterMetafile, ExportFormat_AVI,   ExportFormat_FlashSWF,
        ExportFormat_FlashFLV,       ExportFormat_MPEG4, ExportFormat_WMV};
    return std::find(animationFormats.begin(), animationFormats.end(), format) !=
           animationFormats.end();
}

bool animationFormatIsChosen() {
    long format = 0;
    const toolbox::StyleValue setup("ExportSetup");
    return setup.getInteger(format, "ExportFormat") == StyleGet_Ok && isAnimationFormat(format);
}

} // namespace

AnimatorToFile::AnimatorToFile(const std::vector<KeyFrame_s>& keyFrames)
    : AnimatorAbstract(keyFrames, nullptr) {}

AnimatorToFile::~AnimatorToFile() {
    // An export that somebody else has running is not ours to finish.
    if (!m_isFirstFrame && CorUtilExportIsRecording()) {
        CorUtilExportFinish();
    }
}

void AnimatorToFile::drawFrameAtIndex(unsigned long /*index*/) {
    if (m_isFirstFrame) {
        startExport();
    } else {
        CorUtilExportNextFrame();
    }
}

void AnimatorToFile::cancelAnimation() {
    if (CorUtilExportIsRecording()) {
        CorUtilExportCancel();
    }
}

void AnimatorToFile::startExport() {
    if (CorUtilExportIsRecording()) {
        throw KeyFrameError(
            "Unable to start animation export. Another export is already in progress.");
    }
    if (!animationFormatIsChosen()) {
        throw KeyFrameError("The export file format must be set to an animation format \n"
                            "before animating to file.");
    }
    // Starting records the first picture.
    if (!CorUtilExportStart()) {
        throw KeyFrameError("Unable to start animation export.");
    }
    m_isFirstFrame = false;
}

} // namespace corvane::corutiltools
