// Pieces of key frame files, and reading them from memory.
#pragma once

#include "addon/base/KeyFrameError.h"
#include "addon/file/KeyFrameFile.h"
#include "addon/model/ListModelKeyFrame.h"

#include <gtest/gtest.h>

#include <locale>
#include <sstream>
#include <string>

namespace corvane::corutiltools {

inline bool operator==(const Settings_s& left, const Settings_s& right) {
    return left.timeOptions.animateTime == right.timeOptions.animateTime &&
           left.timeOptions.operation == right.timeOptions.operation &&
           left.timeOptions.numCycles == right.timeOptions.numCycles &&
           left.destination == right.destination &&
           left.animateStreamtraces == right.animateStreamtraces && left.fadeIn == right.fadeIn &&
           left.fadeOut == right.fadeOut;
}

} // namespace corvane::corutiltools

namespace corvane::test {

using corutiltools::KeyFrame_s;
using corutiltools::KeyFrameError;
using corutiltools::KeyFrameFile;
using corutiltools::ListModelKeyFrame;
using corutiltools::Settings_s;

// What the main dialog starts with.
inline Settings_s defaultSettings() {
    return {{false, corutiltools::TimeAnimationOperation_Forward, 1},
            corutiltools::Destination_OnScreen,
            false,
            false,
            false};
}

inline const std::string header = "#!KeyFrame 1\n";
inline const std::string place = "Position 1 2 3\nAngle 4 5 6\n";

// A block with a place and these items.
inline std::string block(const std::string& items) {
    return "%KeyFrameView\n" + place + items + "%KeyFrameView\n";
}

// A key frame with all its items.
inline const std::string fullBlock = "%KeyFrameView\n"
                                     " Name \"Key Frame 1\"\n"
                                     " Position 1.5 2 30\n"
                                     " Angle 0 45 -90\n"
                                     " Width 12.25\n"
                                     " FrameCount 20\n"
                                     " SolutionTime 0.5\n"
                                     "%KeyFrameView\n";

inline const KeyFrame_s fullKeyFrame{corutiltools::View(1.5, 2, 30, 0, 45, -90, 12.25),
                                     "Key Frame 1", 20, 0.5};

inline std::string settingsBlock(const std::string& lines) {
    return "%Settings\n" + lines + "%Settings\n";
}

// What came of reading a text: settings begin as the defaults.
struct ReadResult {
    Settings_s settings = defaultSettings();
    ListModelKeyFrame model;

    const KeyFrame_s& first() const { return model.data(0); }
};

inline void read(const std::string& text, ReadResult& result) {
    std::istringstream stream(text);
    KeyFrameFile().read(stream, result.settings, result.model);
}

// The message with which the text is refused; fails the test when it is read.
inline std::string refusal(const std::string& text) {
    ReadResult result;
    try {
        read(text, result);
    } catch (const KeyFrameError& error) {
        return error.what();
    }
    ADD_FAILURE() << "was read:\n" << text;
    return {};
}

// How the reader words a complaint about a line.
inline std::string located(const std::string& detail, unsigned long line) {
    return "Error reading key frame settings file.\n\n" + detail +
           "\n\nError occurred on line number " + std::to_string(line) + ".";
}

inline std::string written(const Settings_s& settings, const ListModelKeyFrame& model) {
    std::ostringstream stream;
    KeyFrameFile().write(stream, settings, model);
    return stream.str();
}

// Makes numbers look German while it lives.
class CommaLocale {
public:
    CommaLocale() : m_before(std::locale::global({std::locale::classic(), new Punctuation})) {}
    ~CommaLocale() { std::locale::global(m_before); }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    class Punctuation : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
        std::string do_truename() const override { return "wahr"; }
        std::string do_falsename() const override { return "falsch"; }
    };

    std::locale m_before;
};

} // namespace corvane::test
