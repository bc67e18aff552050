// The text file that holds a flight: its settings and its key frames.
#include "addon/file/KeyFrameFile.h"

#include "addon/base/KeyFrameError.h"
#include "addon/model/ListModelKeyFrame.h"

#include <fstream>
#include <locale>
#include <stdexcept>
#include <string_view>

namespace corvane::corutiltools {

namespace {

constexpr std::string_view whiteSpace = " \t\r\n\v\f";
constexpr double largestWidth = 1e150;

bool equalIgnoringCase(std::string_view left, std::string_view right) {
    const CaseInsensitiveStringCompareObj less;
    return !less(left, right) && !less(right, left);
}

void removeOuterWhiteSpace(std::string& line) {
    line.erase(line.find_last_not_of(whiteSpace) + 1);
    line.erase(0, line.find_first_not_of(whiteSpace));
}

template <typename T>
const std::string& keyword(T value) {
    return EnumMap<T>::instance().toString(value);
}

// A line of a block: "\n ", the keyword and the values, each after one space.
template <typename Key, typename... Values>
void writeItem(std::ostream& stream, Key key, const Values&... values) {
    stream << "\n " << keyword(key);
    ((stream << ' ' << values), ...);
}

} // namespace

KeyFrameFile::KeyFrameFile() {
    m_lineStream.imbue(std::locale::classic());
}

void KeyFrameFile::saveFile(const std::string& fileName, const Settings_s& settings,
                            const ListModelKeyFrame& model) const {
    if (model.size() == 0) {
        throw KeyFrameError(model.emptyModelMessage());
    }
    std::ofstream stream(fileName);
    if (!stream) {
        throw KeyFrameError("Unable to open file for writing.");
    }
    write(stream, settings, model);
    if (!stream.flush()) {
        throw KeyFrameError("Error during file write.");
    }
}

void KeyFrameFile::write(std::ostream& stream, const Settings_s& settings,
                         const ListModelKeyFrame& model) const {
    stream.imbue(std::locale::classic());
    stream << std::boolalpha << m_headerToken << ' ' << m_version;
    writeSettings(stream, settings);
    writeModel(stream, model);
}

void KeyFrameFile::writeSettings(std::ostream& stream, const Settings_s& settings) const {
    const TimeAnimationOptions_s& timeOptions = settings.timeOptions;
    stream << "\n\n" << keyword(Section_Settings);
    writeItem(stream, Setting_AnimateTime, timeOptions.animateTime);
    writeItem(stream, Setting_TimeAnimationOperation, keyword(timeOptions.operation));
    writeItem(stream, Setting_NumCycles, timeOptions.numCycles);
    writeItem(stream, Setting_AnimateStreamtraces, settings.animateStreamtraces);
    writeItem(stream, Setting_FadeIn, settings.fadeIn);
    writeItem(stream, Setting_FadeOut, settings.fadeOut);
    stream << '\n' << keyword(Section_Settings);
}

void KeyFrameFile::writeModel(std::ostream& stream, const ListModelKeyFrame& model) const {
    for (unsigned long index = 0; index < model.size(); ++index) {
        const KeyFrame_s& keyFrame = model.data(index);
        const View& view = keyFrame.view;
        stream << "\n\n" << keyword(Section_KeyFrameView);
        writeItem(stream, KeyFrameItem_Name, '"' + keyFrame.name + '"');
        writeItem(stream, KeyFrameItem_Position, view.x(), view.y(), view.z());
        writeItem(stream, KeyFrameItem_Angle, view.psi(), view.theta(), view.alpha());
        writeItem(stream, KeyFrameItem_Width, view.width());
        writeItem(stream, KeyFrameItem_FrameCount, keyFrame.frameCount);
        writeItem(stream, KeyFrameItem_SolutionTime, keyFrame.solutionTime);
        stream << '\n' << keyword(Section_KeyFrameView);
    }
}

void KeyFrameFile::readFile(const std::string& fileName, Settings_s& settings,
                            ListModelKeyFrame& model) {
    std::ifstream stream(fileName);
    if (!stream) {
        throw KeyFrameError("Unable to open file for reading.");
    }
    read(stream, settings, model);
}

void KeyFrameFile::read(std::istream& stream, Settings_s& settings, ListModelKeyFrame& model) {
    stream.imbue(std::locale::classic());
    readFileHeader(stream);
    Settings_s settingsCopy = settings;
    std::vector<KeyFrame_s> keyFrames;
    readBlocks(stream, settingsCopy, keyFrames);
    if (stream.fail() && !stream.eof()) {
        throwError("Error during file read.", true);
    }
    settings = settingsCopy;
    model.setDataList(keyFrames);
}

void KeyFrameFile::readFileHeader(std::istream& stream) {
    readLine(stream, m_lineStream);
    const std::string token = readWord(m_lineStream);
    std::int32_t version = 0;
    m_lineStream >> version;
    if (stream.fail() || !equalIgnoringCase(token, m_headerToken)) {
        throw KeyFrameError("Invalid file header.");
    }
    if (version > m_version) {
        throw KeyFrameError("File created with a newer version of the Key Frame add-on.");
    }
}

void KeyFrameFile::readBlocks(std::istream& stream, Settings_s& settings,
                              std::vector<KeyFrame_s>& keyFrames) {
    std::string line;
    // A last line without line feed has taken the stream to its end and is not looked at.
    for (readLine(stream, line, true); stream.good(); readLine(stream, line, true)) {
        Section_e section{};
        if (!EnumMap<Section_e>::instance().fromString(line, section)) {
            throwError("Unknown section header: " + line, true);
        }
        if (section == Section_Settings) {
            readSettings(stream, settings);
        } else {
            KeyFrame_s& keyFrame = keyFrames.emplace_back();
            readKeyFrameView(stream, keyFrame.view, keyFrame.frameCount, keyFrame.name,
                             keyFrame.solutionTime);
        }
    }
}

void KeyFrameFile::readSettings(std::istream& stream, Settings_s& settings) {
    do {
        readLine(stream, m_lineStream);
        const std::string word = readWord(m_lineStream);
        if (word.empty() && !stream.good()) {
            return;
        }
        Section_e section{};
        if (EnumMap<Section_e>::instance().fromString(word, section)) {
            if (section != Section_Settings) {
                throwError("Missing end marker for Settings section.", true);
            }
            return;
        }
        Setting_e setting{};
        if (!EnumMap<Setting_e>::instance().fromString(word, setting)) {
            throwError("Unrecognized setting entry.", true);
        }
        readSetting(m_lineStream, setting, settings);
    } while (stream.good());
}

void KeyFrameFile::readSetting(std::istringstream& lineStream, Setting_e setting,
                               Settings_s& settings) {
    switch (setting) {
    case Setting_AnimateTime:
        settings.timeOptions.animateTime = readBoolean(lineStream, setting);
        break;
    case Setting_TimeAnimationOperation:
        settings.timeOptions.operation = readOperation(lineStream);
        break;
    case Setting_NumCycles:
        settings.timeOptions.numCycles = readNumCycles(lineStream);
        break;
    case Setting_AnimateStreamtraces:
        settings.animateStreamtraces = readBoolean(lineStream, setting);
        break;
    case Setting_FadeIn:
        settings.fadeIn = readBoolean(lineStream, setting);
        break;
    case Setting_FadeOut:
        settings.fadeOut = readBoolean(lineStream, setting);
        break;
    }
}

std::string KeyFrameFile::readWord(std::istringstream& lineStream) {
    std::string word;
    lineStream >> word;
    return word;
}

bool KeyFrameFile::readBoolean(std::istringstream& lineStream, Setting_e setting) {
    const std::string word = readWord(lineStream);
    if (word != "true" && word != "false") {
        throwError("Invalid value for " + keyword(setting) +
                       " setting.\nValue must be \"true\" or \"false\".",
                   true);
    }
    return word == "true";
}

TimeAnimationOperation_e KeyFrameFile::readOperation(std::istringstream& lineStream) {
    TimeAnimationOperation_e operation{};
    if (!EnumMap<TimeAnimationOperation_e>::instance().fromString(readWord(lineStream),
                                                                  operation)) {
        throwError("Invalid value for TimeAnimationOperation setting.", true);
    }
    return operation;
}

unsigned long KeyFrameFile::readNumCycles(std::istringstream& lineStream) {
    std::int32_t numCycles = 0;
    // One cycle is fine; the text has always said otherwise.
    if (!(lineStream >> numCycles) || numCycles <= 0) {
        throwError("Invalid value for NumCycles setting.\n"
                   "Value must be an integer greater than 1.",
                   true);
    }
    return static_cast<unsigned long>(numCycles);
}

void KeyFrameFile::readKeyFrameView(std::istream& stream, View& view, unsigned long& frameCount,
                                    std::string& name, double& solutionTime) {
    std::vector<double> position;
    std::vector<double> angle;
    double width = 0.0;
    frameCount = 0;
    name.clear();
    solutionTime = 0.0;
    for (readLine(stream, m_lineStream); stream.good(); readLine(stream, m_lineStream)) {
        const std::string word = readWord(m_lineStream);
        Section_e section{};
        if (EnumMap<Section_e>::instance().fromString(word, section)) {
            if (section != Section_KeyFrameView) {
                throwError("Missing end marker for KeyFrameView section.", true);
            }
            break;
        }
        KeyFrameItem_e item{};
        if (!EnumMap<KeyFrameItem_e>::instance().fromString(word, item)) {
            throwError("Unrecognized KeyFrameItem entry.", true);
        }
        switch (item) {
        case KeyFrameItem_Name:
            name = readName(m_lineStream);
            break;
        case KeyFrameItem_Position:
            readValuesFromStream(m_lineStream, 3, position);
            break;
        case KeyFrameItem_Angle:
            readValuesFromStream(m_lineStream, 3, angle);
            break;
        case KeyFrameItem_Width:
            width = readWidth(m_lineStream);
            break;
        case KeyFrameItem_FrameCount:
            frameCount = readFrameCount(m_lineStream);
            break;
        case KeyFrameItem_SolutionTime:
            solutionTime = readSolutionTime(m_lineStream);
            break;
        }
    }
    requireItem(position, KeyFrameItem_Position);
    requireItem(angle, KeyFrameItem_Angle);
    view = View(position[0], position[1], position[2], angle[0], angle[1], angle[2], width);
}

// The same kind of error as reading past the end of the values, but with a text that tells users
// what to mend.
void KeyFrameFile::requireItem(const std::vector<double>& values, KeyFrameItem_e item) const {
    if (values.empty()) {
        throw std::out_of_range("The key frame view that ends on line number " +
                                std::to_string(m_lineCounter) + " of the key frame file has no " +
                                keyword(item) + " entry.");
    }
}

std::string KeyFrameFile::readName(const std::istringstream& lineStream) {
    const std::string_view line = lineStream.view();
    const auto opening = line.find('"');
    const auto closing = opening == std::string_view::npos ? opening : line.find('"', opening + 1);
    if (closing == std::string_view::npos) {
        throwError("View name must be surrounded in quotation marks.", true);
    }
    if (closing == opening + 1) {
        throwError("Unable to read view name.", true);
    }
    return std::string(line.substr(opening + 1, closing - opening - 1));
}

double KeyFrameFile::readWidth(std::istringstream& lineStream) {
    double width = 0.0;
    if (!(lineStream >> width)) {
        throwError("Unable to read width value.", true);
    }
    if (width > largestWidth || width < -largestWidth) {
        throwError("Invalid width value. Width must be between -1e150 and 1e150", true);
    }
    return width;
}

unsigned long KeyFrameFile::readFrameCount(std::istringstream& lineStream) {
    unsigned long frameCount = 0;
    // Streams read -1 as the largest number. The text speaks of the width on purpose.
    lineStream >> std::ws;
    if (lineStream.peek() == '-' || !(lineStream >> frameCount)) {
        throwError("Unable to read width value.", true);
    }
    if (frameCount == 0) {
        throwError("Invalid frameCount value.", true);
    }
    return frameCount;
}

double KeyFrameFile::readSolutionTime(std::istringstream& lineStream) {
    double solutionTime = 0.0;
    if (!(lineStream >> solutionTime)) {
        throwError("Unable to read solution time value.", true);
    }
    return solutionTime;
}

template <typename T>
void KeyFrameFile::readValuesFromStream(std::istringstream& lineStream, std::size_t expectedCount,
                                        std::vector<T>& values) {
    values.clear();
    while (!(lineStream >> std::ws).eof()) {
        const auto wordStart = lineStream.tellg();
        T value{};
        if (!(lineStream >> value)) {
            const auto state = lineStream.rdstate();
            lineStream.clear();
            lineStream.seekg(wordStart);
            const std::string word = readWord(lineStream);
            lineStream.setstate(state);
            throwError("Error reading item from file.\n"
                       "Unable to convert input to appropriate value: " +
                           word,
                       true);
        }
        values.push_back(value);
    }
    if (values.size() != expectedCount) {
        throwError("Mismatch between number of expected values and number of values that could be "
                   "read.\nNumber of expected values: " +
                       std::to_string(expectedCount) +
                       "\nNumber of values read: " + std::to_string(values.size()),
                   true);
    }
}

void KeyFrameFile::readLine(std::istream& stream, std::string& line, bool skipBlankLines) {
    line.clear();
    while (stream.good()) {
        std::getline(stream, line);
        ++m_lineCounter;
        removeOuterWhiteSpace(line);
        if (!skipBlankLines || !line.empty()) {
            return;
        }
    }
}

void KeyFrameFile::readLine(std::istream& stream, std::istringstream& lineStream,
                            bool skipBlankLines) {
    readLine(stream, m_line, skipBlankLines);
    lineStream.clear();
    lineStream.str(m_line);
}

void KeyFrameFile::readLine(std::istream& stream, std::istringstream& lineStream) {
    readLine(stream, lineStream, true);
}

void KeyFrameFile::throwError(const std::string& message, bool withLineNumber) const {
    std::string text = "Error reading key frame settings file.\n\n" + message;
    if (withLineNumber && m_lineCounter != 0) {
        text += "\n\nError occurred on line number " + std::to_string(m_lineCounter) + ".";
    }
    throw KeyFrameError(text);
}

} // namespace corvane::corutiltools
