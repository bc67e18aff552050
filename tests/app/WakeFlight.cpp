// The sample data and small flights through them, as files for whole runs.
#include "tests/app/WakeFlight.h"

#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <fstream>
#include <sstream>

namespace corvane::test {

std::string exampleFile(const std::string& name) {
    return sourceFile("examples/" + name);
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

std::string StandingFlight::keyFrameFile() const {
    const auto word = [](bool isOn) { return isOn ? "true" : "false"; };
    const auto view = [](const char* name, int count, double time) {
        std::ostringstream text;
        text << "\n%KeyFrameView\n Name \"" << name
             << "\"\n Position 4.6 -18.1 6.2\n Angle 78 0 0\n"
             << " Width 17.5\n FrameCount " << count << "\n SolutionTime " << time
             << "\n%KeyFrameView\n";
        return text.str();
    };
    std::ostringstream text;
    text << "#!KeyFrame 1\n\n%Settings\n AnimateTime " << word(!timeOperation.empty())
         << "\n TimeAnimationOperation " << (timeOperation.empty() ? "Forward" : timeOperation)
         << "\n NumCycles " << cycles << "\n AnimateStreamtraces " << word(streamtraces)
         << "\n FadeIn " << word(fadeIn) << "\n FadeOut " << word(fadeOut) << "\n%Settings\n"
         << view("first", frames - 1, firstTime) << view("last", 30, lastTime);
    return text.str();
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
