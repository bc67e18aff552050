// Any bytes as a key frame file: they are refused with nothing changed, or what was read survives
// being written and read again.
#include "addon/base/KeyFrameError.h"
#include "addon/file/KeyFrameFile.h"
#include "addon/model/ListModelKeyFrame.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace corvane::corutiltools;
using corvane::fuzz::require;

struct Flight {
    Settings_s settings{
        {false, TimeAnimationOperation_Forward, 1}, Destination_OnScreen, false, false, false};
    ListModelKeyFrame model;
};

std::string written(const Flight& flight) {
    std::ostringstream stream;
    KeyFrameFile().write(stream, flight.settings, flight.model);
    return stream.str();
}

bool isKnownRefusal(std::string_view message) {
    return message == "Invalid file header." ||
           message == "File created with a newer version of the Key Frame add-on." ||
           (message.starts_with("Error reading key frame settings file.\n\n") &&
            message.find("\n\nError occurred on line number ") != std::string_view::npos);
}

// False when the text is refused.
bool read(const std::string& text, Flight& flight) {
    const std::string before = written(flight);
    std::istringstream stream(text);
    try {
        KeyFrameFile().read(stream, flight.settings, flight.model);
        return true;
    } catch (const KeyFrameError& error) {
        // A line that is quoted may hold a zero byte, where what() ends for us.
        require(isKnownRefusal(error.what()) || text.find('\0') != std::string::npos,
                "a refusal has a known text");
    } catch (const std::out_of_range&) {
        // A key frame without position or angle.
    }
    require(written(flight) == before, "a refusal changes nothing");
    return false;
}

// Key frames may lack a name or a frame count, but neither can be written so that it is read again.
bool canBeReadAgain(const Flight& flight) {
    const std::vector<KeyFrame_s>& keyFrames = flight.model.dataList();
    return std::all_of(keyFrames.begin(), keyFrames.end(), [](const KeyFrame_s& keyFrame) {
        return !keyFrame.name.empty() && keyFrame.frameCount != 0;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Flight first;
    if (!read(std::string(reinterpret_cast<const char*>(data), size), first)) {
        return 0;
    }
    const std::string text = written(first);
    Flight second;
    const bool survives = read(text, second);
    require(survives == canBeReadAgain(first), "what was read survives being written");
    if (survives) {
        require(written(second) == text, "what was read twice is written alike");
    }
    return 0;
}
