#include "host/scene/formats/ReadingTrial.h"

#include "host/core/base/HostError.h"
#include "host/scene/formats/MeshFormats.h"
#include "host/scene/mesh/ForkedCheck.h"
#include "host/scene/mesh/KnownFiles.h"

#include <fcntl.h>
#include <filesystem>
#include <malloc.h>
#include <unistd.h>

namespace corvane::scene {

namespace {

/// Whether this process is one that tries.
bool isHelper = false;

/// Libraries that crash say so in words that are not for users.
void closeMouth() {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nowhere, stream);
    }
}

void readStep(const std::vector<std::string>& arguments) {
    isHelper = true;
    closeMouth();
    // What is read before it was written is never zero by chance.
    mallopt(M_PERTURB, 0x5a);
    const std::string& path = arguments.at(0);
    const int step = std::stoi(arguments.at(1));
    const MeshFormat& format = formatOf(path);
    if (format.readList != nullptr) {
        format.readList(path);
    } else if (step == contentsOnly) {
        format.open(path)->times();
    } else {
        format.open(path)->read(step);
    }
}

const host::Task reading("read a data file",
                         [](const host::TaskInput& input) { return tellEnd(input, readStep); });

host::HelperLimits limitsFor(const FileStates& files) {
    std::uint64_t bytes = 0;
    for (const auto& [path, state] : files) {
        bytes += state ? state->size : 0;
    }
    constexpr std::uint64_t leastMemory = std::uint64_t{1} << 30U;
    constexpr std::uint64_t memoryPerByte = 64;
    constexpr unsigned leastSeconds = 20;
    constexpr std::uint64_t bytesPerSecond = std::uint64_t{1} << 19U;
    return {leastMemory + memoryPerByte * bytes,
            leastSeconds + static_cast<unsigned>(bytes / bytesPerSecond)};
}

void tryReading(const std::string& path, int step, const FileStates& files) {
    // A helper works in the folder that the program was started in.
    const std::string absolute = std::filesystem::absolute(path).string();
    TrialEnd end = tryInHelper(reading, {absolute, std::to_string(step)}, limitsFor(files));
    switch (end.kind) {
    case TrialEnd::Kind::Crashed:
        refuse("what it tells of its contents makes no sense");
    case TrialEnd::Kind::Endless:
        refuse("reading it comes to no end");
    case TrialEnd::Kind::Refused:
        if (end.sentence.empty()) {
            refuse("its reader fails");
        }
        if (end.sentence.starts_with(absolute)) {
            end.sentence.replace(0, absolute.size(), path);
        }
        throw host::HostError(end.sentence);
    case TrialEnd::Kind::Done:
    case TrialEnd::Kind::Untried:
        return;
    }
}

} // namespace

FileLook alwaysUnknown(const std::string& /*path*/) {
    return {Certainty::Unknown};
}

void expectHarmless(const std::string& path, int step, FileCheck check) {
    static KnownFiles known;
    const std::string name = path + " " + std::to_string(step);
    if (isHelper || known.has(name)) {
        return;
    }
    // Before the look, so that a change meanwhile is noticed.
    FileStates files{{path, fileState(path)}};
    const FileLook look = check(path);
    for (const std::string& file : look.otherFiles) {
        files.emplace(file, fileState(file));
    }
    if (look.certainty == Certainty::Unknown) {
        tryReading(path, step, files);
    }
    known.add(name, std::move(files));
}

} // namespace corvane::scene
