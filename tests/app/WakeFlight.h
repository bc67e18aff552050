// The sample data and small flights through them, as files for whole runs.
#pragma once

#include <string>
#include <vector>

namespace corvane::test {

class TempFolder;

/// A file of the examples.
std::string exampleFile(const std::string& name);

std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& content);

/// A key frame file of three views around the wake, 6 and 5 frames apart: 12 frames.
std::string shortFlight();
inline constexpr unsigned long shortFlightFrames = 12;

/// A flight that does not move: what moves is not the camera.
struct StandingFlight {
    int frames = 25;             ///< at least 2
    std::string timeOperation{}; ///< keyword; empty: time stands
    int cycles = 1;
    double firstTime = 0.0; ///< captured with the two key frames
    double lastTime = 0.0;
    bool streamtraces = false;
    bool fadeIn = false;
    bool fadeOut = false;

    std::string keyFrameFile() const;
};

/// Arguments of a small, quick run of the short flight. The key frame file is written to the
/// folder.
std::vector<std::string> shortRun(const TempFolder& folder, const std::string& movie);

} // namespace corvane::test
