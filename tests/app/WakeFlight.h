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

/// Arguments of a small, quick run of the short flight. The key frame file is written to the
/// folder.
std::vector<std::string> shortRun(const TempFolder& folder, const std::string& movie);

} // namespace corvane::test
