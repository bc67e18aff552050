// The export settings, their paths and their words in macros.
#include "host/core/picture/ExportSetup.h"

#include "host/core/base/Limits.h"
#include "host/core/base/Text.h"
#include "host/core/picture/MovieFormats.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace corvane::host {

namespace {

struct Keyword {
    const char* text;
    int value;
};

enum class Kind { Integer, Boolean, Number, Text };

/// How a macro writes one setting.
struct Setting {
    const char* name;
    Kind kind;
    std::vector<Keyword> keywords;
};

std::vector<Keyword> formatKeywords() {
    std::vector<Keyword> keywords;
    for (const MovieFormat& format : movieFormats()) {
        keywords.push_back({format.keyword, format.code});
    }
    return keywords;
}

const std::vector<Setting>& settings() {
    static const std::vector<Setting> all{
        {"ExportFormat", Kind::Integer, formatKeywords()},
        {"ExportRegion",
         Kind::Integer,
         {{"CURRENTFRAME", ExportRegion_CurrentFrame},
          {"ALLFRAMES", ExportRegion_AllFrames},
          {"WORKAREA", ExportRegion_WorkArea}}},
        {"AVICompression",
         Kind::Integer,
         {{"COLORPRESERVING", AVICompression_ColorPreserving},
          {"LINEPRESERVING", AVICompression_LinePreserving},
          {"LOSSLESSUNCOMPRESSED", AVICompression_LosslessUncompressed}}},
        {"FlashImageType",
         Kind::Integer,
         {{"LOSSLESS", FlashImageType_Lossless},
          {"JPEG", FlashImageType_JPEG},
          {"256COLOR", FlashImageType_256Color}}},
        {"FlashCompressionType",
         Kind::Integer,
         {{"BESTSPEED", FlashCompressionType_BestSpeed},
          {"SMALLESTSIZE", FlashCompressionType_SmallestSize}}},
        {"ImageWidth", Kind::Integer, {}},
        {"SuperSampleFactor", Kind::Integer, {}},
        {"UseSuperSampleAntiAliasing", Kind::Boolean, {{"true", 1}, {"false", 0}}},
        {"AnimationSpeed", Kind::Number, {}},
        {"ExportFName", Kind::Text, {}}};
    return all;
}

/// Null without such a setting.
const Setting* findSetting(const std::string& name) {
    const auto found =
        std::find_if(settings().begin(), settings().end(),
                     [&name](const Setting& s) { return equalIgnoringCase(s.name, name); });
    return found == settings().end() ? nullptr : &*found;
}

std::optional<StyleInput> keywordFromText(const Setting& setting, const std::string& text) {
    for (const Keyword& keyword : setting.keywords) {
        if (equalIgnoringCase(keyword.text, text)) {
            return static_cast<long>(keyword.value);
        }
    }
    return std::nullopt;
}

} // namespace

bool ExportSetup::isAnimationFormat() const {
    return movieFormatOf(format) != nullptr;
}

void bindExportSetup(StyleTree& tree, ExportSetup& setup, std::function<bool()> isAllowed) {
    const auto bind = [&](const char* name, auto* target, double minimum, double maximum) {
        StyleLeaf leaf;
        leaf.path = {"ExportSetup", name};
        leaf.target = target;
        leaf.minimum = minimum;
        leaf.maximum = maximum;
        leaf.effect = StyleEffect::None;
        leaf.isAllowed = isAllowed;
        leaf.needs = "A movie is being recorded.";
        tree.bind(std::move(leaf));
    };
    bind("ExportFormat", &setup.format, 0, std::numeric_limits<int>::max());
    bind("ExportRegion", &setup.region, 0, ExportRegion_WorkArea);
    bind("AVICompression", &setup.aviCompression, 0, AVICompression_LosslessUncompressed);
    bind("FlashImageType", &setup.flashImageType, 0, FlashImageType_256Color);
    bind("FlashCompressionType", &setup.flashCompressionType, 0, FlashCompressionType_SmallestSize);
    const auto bindRange = [&](const char* name, auto* target, const auto& range) {
        bind(name, target, range.least, range.most);
    };
    bindRange("ImageWidth", &setup.imageWidth, limits::pictureSide);
    bindRange("AnimationSpeed", &setup.animationSpeed, limits::framesPerSecond);
    bind("UseSuperSampleAntiAliasing", &setup.useSuperSampleAntiAliasing, 0, 1);
    bindRange("SuperSampleFactor", &setup.superSampleFactor, limits::supersampling);
    bind("ExportFName", &setup.fileName, 0, 0);
}

std::vector<std::string> exportSettingKeywords(const std::string& name) {
    std::vector<std::string> keywords;
    if (const Setting* const setting = findSetting(name)) {
        for (const Keyword& keyword : setting->keywords) {
            keywords.emplace_back(keyword.text);
        }
    }
    return keywords;
}

std::optional<StyleInput> exportSettingFromText(const std::string& name, const std::string& text) {
    const Setting* const setting = findSetting(name);
    if (setting == nullptr) {
        return std::nullopt;
    }
    if (auto keyword = keywordFromText(*setting, text)) {
        return keyword;
    }
    switch (setting->kind) {
    case Kind::Integer:
        return parsedNumber<long>(text);
    case Kind::Number:
        return parsedNumber<double>(text);
    case Kind::Text:
        return text;
    case Kind::Boolean:
        break;
    }
    return std::nullopt;
}

} // namespace corvane::host
