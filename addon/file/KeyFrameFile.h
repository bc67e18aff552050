// The text file that holds a flight: its settings and its key frames.
#pragma once

#include "addon/base/EnumMap.h"
#include "addon/model/Records.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <sstream>
#include <string>
#include <vector>

namespace corvane::corutiltools {

class ListModelKeyFrame;

// Numbers are written with six significant digits, so a file that was read and is written again
// does not change, but what was captured loses its last digits. The destination of the settings is
// not part of the file. The same in every locale.
//
// Use a fresh object for each file that is read: it counts the lines.
class KeyFrameFile {
public:
    enum Section_e : std::int32_t { Section_Settings = 0, Section_KeyFrameView = 1 };

    enum Setting_e : std::int32_t {
        Setting_AnimateTime = 0,
        Setting_TimeAnimationOperation = 1,
        Setting_NumCycles = 2,
        Setting_AnimateStreamtraces = 3,
        Setting_FadeIn = 4,
        Setting_FadeOut = 5
    };

    enum KeyFrameItem_e : std::int32_t {
        KeyFrameItem_Name = 0,
        KeyFrameItem_Position = 1,
        KeyFrameItem_Angle = 2,
        KeyFrameItem_Width = 3,
        KeyFrameItem_FrameCount = 4,
        KeyFrameItem_SolutionTime = 5
    };

    static constexpr char m_headerToken[] = "#!KeyFrame";
    static constexpr std::int32_t m_version = 1;
    static constexpr char m_fileNameExtension[] = "keyframe";

    KeyFrameFile();

    // Replaces the file. Throws KeyFrameError when there are no key frames (no file is made then),
    // or the file cannot be opened or written, and std::out_of_range for a value without keyword.
    // What was written before a failure stays.
    void saveFile(const std::string& fileName, const Settings_s& settings,
                  const ListModelKeyFrame& model) const;

    // The same text into a stream, with or without key frames. The stream's state tells of
    // failures; its locale and its way of writing booleans are changed.
    void write(std::ostream& stream, const Settings_s& settings,
               const ListModelKeyFrame& model) const;

    // Settings that the file does not mention keep their values; the list is replaced. Throws
    // KeyFrameError with the line number for text that is no key frame file, and std::out_of_range
    // for a key frame without position or angle. On an error settings and model are unchanged.
    void readFile(const std::string& fileName, Settings_s& settings, ListModelKeyFrame& model);

    // The same from a stream, whose locale is changed.
    void read(std::istream& stream, Settings_s& settings, ListModelKeyFrame& model);

private:
    void writeSettings(std::ostream& stream, const Settings_s& settings) const;
    void writeModel(std::ostream& stream, const ListModelKeyFrame& model) const;

    void readFileHeader(std::istream& stream);
    void readBlocks(std::istream& stream, Settings_s& settings, std::vector<KeyFrame_s>& keyFrames);
    void readSettings(std::istream& stream, Settings_s& settings);
    void readSetting(std::istringstream& lineStream, Setting_e setting, Settings_s& settings);
    void readKeyFrameView(std::istream& stream, View& view, unsigned long& frameCount,
                          std::string& name, double& solutionTime);
    void requireItem(const std::vector<double>& values, KeyFrameItem_e item) const;

    static std::string readWord(std::istringstream& lineStream);
    bool readBoolean(std::istringstream& lineStream, Setting_e setting);
    TimeAnimationOperation_e readOperation(std::istringstream& lineStream);
    unsigned long readNumCycles(std::istringstream& lineStream);
    std::string readName(const std::istringstream& lineStream);
    double readWidth(std::istringstream& lineStream);
    unsigned long readFrameCount(std::istringstream& lineStream);
    double readSolutionTime(std::istringstream& lineStream);

    // Numbers up to the end of the line, which must be as many as expected.
    template <typename T>
    void readValuesFromStream(std::istringstream& lineStream, std::size_t expectedCount,
                              std::vector<T>& values);

    // The next line without the white space around it; the rest of the text, which may be empty,
    // where the stream ends.
    void readLine(std::istream& stream, std::string& line, bool skipBlankLines);
    void readLine(std::istream& stream, std::istringstream& lineStream, bool skipBlankLines);
    void readLine(std::istream& stream, std::istringstream& lineStream);

    [[noreturn]] void throwError(const std::string& message, bool withLineNumber) const;

    unsigned long m_lineCounter = 0;

    // The current line. Kept from line to line, since making a stream costs more than reading one.
    std::string m_line;
    std::istringstream m_lineStream;
};

template <>
void EnumMap<KeyFrameFile::Section_e>::initializeMaps();
template <>
void EnumMap<KeyFrameFile::Setting_e>::initializeMaps();
template <>
void EnumMap<KeyFrameFile::KeyFrameItem_e>::initializeMaps();
template <>
void EnumMap<TimeAnimationOperation_e>::initializeMaps();

} // namespace corvane::corutiltools
