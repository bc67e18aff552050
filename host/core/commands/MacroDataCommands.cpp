// Macro commands about data, times and styles.
#include "host/core/commands/MacroCommands.h"

#include <variant>

namespace corvane::host {

namespace {

/// Reads a text as what the leaf holds.
struct InputFrom {
    const std::string& text;

    StyleInput operator()(const bool*) const { return booleanFrom(text) ? 1L : 0L; }
    StyleInput operator()(const int*) const { return longFrom(text); }
    StyleInput operator()(const double*) const { return numberFrom(text); }
    StyleInput operator()(const std::string*) const { return text; }
};

void checkWritten(StyleSetResult_e result, const StyleLeaf& leaf, const std::string& path,
                  const std::string& value) {
    switch (result) {
    case StyleSet_Ok:
    case StyleSet_Unchanged:
        return;
    case StyleSet_BadPath:
        reject("There is no value " + path + ".");
    case StyleSet_BadValue:
        reject(path + " cannot be \"" + value + "\".");
    case StyleSet_NotAllowed:
        reject(path + " cannot be set now. " + leaf.needs);
    }
}

} // namespace

void readData(const MacroCall& call) {
    expect(!call.words.empty(), "one or more file names");
    std::vector<std::string> files;
    for (const std::string& word : call.words) {
        files.push_back(call.path(word));
    }
    call.session.openData(files);
}

void setSolutionTime(const MacroCall& call) {
    const double time = numberFrom(valueOf(call.words, "= time"));
    if (!call.session.setSolutionTime(time)) {
        reject("The solution time cannot be set: there are no data, or it is not finite.");
    }
}

void setStyle(const MacroCall& call) {
    const std::vector<std::string>& words = call.words;
    expect(words.size() == 3 && words[1] == "=", "path = value");
    const StylePath path = stylePathFromString(words[0]);
    const StyleLeaf* leaf = call.session.findStyle(path);
    if (leaf == nullptr) {
        reject("There is no value " + words[0] + ".");
    }
    const StyleInput value = std::visit(InputFrom{words[2]}, leaf->target);
    checkWritten(call.session.setStyle(path, value), *leaf, words[0], words[2]);
}

void setUpExport(const MacroCall& call) {
    const std::vector<std::string>& words = call.words;
    expect(words.size() == 3 && words[1] == "=", "name = value");
    const StylePath path{"ExportSetup", words[0]};
    const StyleLeaf* leaf = call.session.findStyle(path);
    if (leaf == nullptr) {
        reject("There is no export setting " + words[0] + ".");
    }
    const std::optional<StyleInput> value = exportSettingFromText(words[0], words[2]);
    if (!value) {
        reject(words[0] + " cannot be \"" + words[2] + "\".");
    }
    checkWritten(call.session.setStyle(path, *value), *leaf, words[0], words[2]);
}

} // namespace corvane::host
