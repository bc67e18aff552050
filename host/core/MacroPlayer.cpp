// The commands of the macro language.
#include "host/core/MacroPlayer.h"

#include "host/core/Application.h"
#include "host/core/HostError.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <utility>

namespace corvane::host {

namespace {

using Words = std::vector<std::string>;

[[noreturn]] void reject(const std::string& cause) {
    throw std::invalid_argument(cause);
}

void expect(bool isSo, const char* form) {
    if (!isSo) {
        reject(std::string("Expected ") + form + ".");
    }
}

/// The value of "= value".
const std::string& valueOf(const Words& words, const char* form) {
    expect(words.size() == 2 && words[0] == "=", form);
    return words[1];
}

template <typename T>
T numberFrom(const std::string& text) {
    T value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end) {
        reject("\"" + text + "\" is not a number that fits here.");
    }
    return value;
}

long booleanFrom(const std::string& text) {
    if (equalIgnoringCase(text, "true")) {
        return 1;
    }
    if (!equalIgnoringCase(text, "false")) {
        reject("\"" + text + "\" is neither true nor false.");
    }
    return 0;
}

/// Reads a text as what the leaf holds.
struct InputFrom {
    const std::string& text;

    StyleInput operator()(const bool*) const { return booleanFrom(text); }
    StyleInput operator()(const int*) const { return numberFrom<long>(text); }
    StyleInput operator()(const double*) const { return numberFrom<double>(text); }
    StyleInput operator()(const std::string*) const { return text; }
};

void checkWritten(StyleSetResult_e result, const std::string& path, const std::string& value) {
    switch (result) {
    case StyleSet_Ok:
    case StyleSet_Unchanged:
        return;
    case StyleSet_BadPath:
        reject("There is no value " + path + ".");
    case StyleSet_BadValue:
        reject(path + " cannot be \"" + value + "\".");
    case StyleSet_NotAllowed:
        reject(path + " cannot be set in the present state.");
    }
}

void readData(Application& application, const Words& words, const std::string& folder) {
    expect(!words.empty(), "one or more file names");
    Words files;
    for (const std::string& word : words) {
        files.push_back((std::filesystem::path(folder) / word).string());
    }
    application.openData(files);
}

void setStyle(Application& application, const Words& words, const std::string& /*folder*/) {
    expect(words.size() == 3 && words[1] == "=", "path = value");
    const StylePath path = stylePathFromString(words[0]);
    const StyleLeaf* leaf = application.findStyle(path);
    if (leaf == nullptr) {
        reject("There is no value " + words[0] + ".");
    }
    const StyleInput value = std::visit(InputFrom{words[2]}, leaf->target);
    checkWritten(application.setStyle(path, value), words[0], words[2]);
}

void setPlotType(Application& application, const Words& words, const std::string& /*folder*/) {
    constexpr const char* form = "= CARTESIAN3D or = CARTESIAN2D";
    const std::string& value = valueOf(words, form);
    const bool spatial = equalIgnoringCase(value, "CARTESIAN3D");
    expect(spatial || equalIgnoringCase(value, "CARTESIAN2D"), form);
    if (!application.setPlotType(spatial ? PlotType_Cartesian3D : PlotType_Cartesian2D)) {
        reject("There is no frame.");
    }
}

void changeView(Application& application, const Words& words, const std::string& /*folder*/) {
    expect(words.size() == 1 && equalIgnoringCase(words[0], "FIT"), "FIT");
    if (!application.fitView()) {
        reject("There are no 3D data that the view could be fitted to.");
    }
}

void setSolutionTime(Application& application, const Words& words, const std::string& /*folder*/) {
    const auto time = numberFrom<double>(valueOf(words, "= time"));
    if (!application.setSolutionTime(time)) {
        reject("The solution time cannot be set: there are no data, or it is not finite.");
    }
}

void redraw(Application& application, const Words& words, const std::string& /*folder*/) {
    expect(words.empty(), "nothing behind the command");
    application.drawing().redraw(true);
}

void setUpExport(Application& application, const Words& words, const std::string& /*folder*/) {
    expect(words.size() == 3 && words[1] == "=", "name = value");
    const StylePath path{"ExportSetup", words[0]};
    if (application.findStyle(path) == nullptr) {
        reject("There is no export setting " + words[0] + ".");
    }
    const std::optional<StyleInput> value = exportSettingFromText(words[0], words[2]);
    if (!value) {
        reject(words[0] + " cannot be \"" + words[2] + "\".");
    }
    checkWritten(application.setStyle(path, *value), words[0], words[2]);
}

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(" \t") + 1);
    return text;
}

void runAddOnCommand(Application& application, const Words& words, const std::string& /*folder*/) {
    expect(words.size() == 2, "\"add-on\" \"command\"");
    if (application.status().isActive() || application.exporter().isRecording()) {
        reject("An animation is running.");
    }
    const AddOnCommand* found = application.addOnCommands().find(words[0]);
    if (found == nullptr) {
        reject("There is no add-on \"" + words[0] + "\" that has macro commands.");
    }
    const AddOnCommand command = *found;
    Exporter& exporter = application.exporter();
    exporter.forgetFailure();
    const std::optional<std::string> error = command(withoutTrailingBlanks(words[1]));
    // The add-on knows only that it was stopped; the exporter knows why.
    if (exporter.hasFailed()) {
        throw HostError(exporter.failure());
    }
    if (error) {
        throw HostError(*error);
    }
}

/// Counts plays that are under way, also when one ends by an exception.
class Counted {
public:
    explicit Counted(int& count) : m_count(count) { ++m_count; }
    ~Counted() { --m_count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& m_count;
};

} // namespace

const std::vector<MacroCommand>& macroCommands() {
    static const std::vector<MacroCommand> all{
        {"READDATA", "\"FILE\" [\"FILE\" ...]",
         "Reads data into the active frame and chooses plots and view for them.", readData},
        {"PLOTTYPE", "= CARTESIAN3D | CARTESIAN2D", "Sets what the active frame shows.",
         setPlotType},
        {"STYLE", "PATH = VALUE", "Sets one value of the active frame or of the program.",
         setStyle},
        {"VIEW", "FIT", "Makes the data fill the active frame.", changeView},
        {"SOLUTIONTIME", "= TIME", "Shows the data at a solution time.", setSolutionTime},
        {"REDRAW", "", "Draws all frames.", redraw},
        {"EXPORTSETUP", "NAME = VALUE", "Sets one value of the export set-up.", setUpExport},
        {"EXTCOMMAND", "\"ADD-ON\" \"COMMAND\"", "Runs a command of an add-on.", runAddOnCommand}};
    return all;
}

void MacroPlayer::playFile(const std::string& fileName) {
    const std::filesystem::path path(fileName);
    std::error_code error;
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path, error)) {
        throw HostError("Cannot open the macro file " + fileName + ".");
    }
    play(file, fileName, path.parent_path().string());
}

void MacroPlayer::play(std::istream& macro, const std::string& name, const std::string& folder) {
    const Counted playing(m_depth);
    MacroReader reader(macro, name);
    MacroLine line;
    while (reader.next(line)) {
        runLine(line, name, folder);
    }
}

void MacroPlayer::run(const std::string& name, const std::vector<std::string>& words,
                      const std::string& folder) {
    for (const MacroCommand& command : macroCommands()) {
        if (equalIgnoringCase(command.name, name)) {
            command.run(m_application, words, folder);
            return;
        }
    }
    reject("There is no command " + name + ".");
}

void MacroPlayer::runLine(const MacroLine& line, const std::string& name,
                          const std::string& folder) {
    try {
        run(line.name, line.words, folder);
    } catch (const std::exception& error) {
        throw MacroError(name, line.number, line.text, error.what());
    }
}

} // namespace corvane::host
