// The sample data and small flights through them, as files for whole runs.
#include "tests/app/WakeFlight.h"

#include "tests/support/TempFolder.h"

#include <fstream>
#include <sstream>

namespace corvane::test {

std::string exampleFile(const std::string& name) {
    return CORVANE_SOURCE_DIR "/examples/" + name;
}

std::string readFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

void writeFile(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string shortFlight() {
    return R"(#!KeyFrame 1

%Settings
 AnimateTime false
 TimeAnimationOperation Forward
 NumCycles 1
 AnimateStreamtraces false
 FadeIn false
 FadeOut false
%Settings

%KeyFrameView
 Name "From the side"
 Position 4 -24 11
 Angle 70 0 0
 Width 15
 FrameCount 6
 SolutionTime 0
%KeyFrameView

%KeyFrameView
 Name "From upstream"
 Position -14 -16 11
 Angle 70 48 0
 Width 15
 FrameCount 5
 SolutionTime 0
%KeyFrameView

%KeyFrameView
 Name "From above"
 Position -6 -9 18
 Angle 40 48 5
 Width 15
 FrameCount 30
 SolutionTime 0
%KeyFrameView)";
}

std::vector<std::string> shortRun(const TempFolder& folder, const std::string& movie) {
    const std::string keyFrames = folder.write("short.keyframe", shortFlight());
    return {exampleFile("wake/wake.pvd"),
            "--keyframes",
            keyFrames,
            "--output",
            movie,
            "--size",
            "320x180"};
}

} // namespace corvane::test
