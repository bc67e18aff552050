// Opens damaged files, in processes that may die of it.
#include "tests/mutation/Attack.h"

#include "host/core/base/HostError.h"
#include "host/core/page/Page.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "tests/mutation/Mutator.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <random>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace corvane::test {

namespace {

namespace fs = std::filesystem;

constexpr rlim_t secondsForOneFile = 10;
/// More than any of the small files can need; a process that wants more is refused it.
constexpr rlim_t mostAddressSpace = rlim_t{12} << 30U;
constexpr long mostMemory = 2L << 20U; ///< kB

/// How far a process has come, seen by the one that started it.
struct Progress {
    std::atomic<int> index{0};
    std::atomic<int> opened{0};
    std::atomic<int> refused{0};
    std::atomic<bool> isNotOneLine{false};
    std::atomic<bool> isGreedy{false};
};

class SharedProgress {
public:
    SharedProgress()
        : m_memory(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
        if (m_memory == MAP_FAILED) {
            throw std::runtime_error("no shared memory");
        }
        new (m_memory) Progress;
    }
    ~SharedProgress() { munmap(m_memory, sizeof(Progress)); }
    SharedProgress(const SharedProgress&) = delete;
    SharedProgress& operator=(const SharedProgress&) = delete;

    Progress* operator->() const { return static_cast<Progress*>(m_memory); }

private:
    void* m_memory;
};

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void replaceContent(const fs::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

/// The sample, one file of which is damaged by each mutation.
class Target {
public:
    Target(const MutationSample& sample, std::uint64_t seed)
        : m_name(sample.name), m_opened(sample.write(m_folder.path())), m_seed(seed) {
        for (const auto& entry : fs::recursive_directory_iterator(m_folder.path())) {
            if (entry.is_regular_file() && entry.file_size() > 0) {
                m_files.push_back({entry.path(), contentOf(entry.path())});
            }
        }
        std::sort(m_files.begin(), m_files.end());
    }

    const std::string& opened() const { return m_opened; }
    const fs::path& folder() const { return m_folder.path(); }

    void damage(int index) {
        std::seed_seq seeds{m_seed, std::hash<std::string>()(m_name),
                            static_cast<std::uint64_t>(index)};
        std::array<std::uint32_t, 2> mixed{};
        seeds.generate(mixed.begin(), mixed.end());
        const auto& [file, content] = m_files[mixed[0] % m_files.size()];
        m_damaged = file;
        replaceContent(file, Mutator(mixed[1]).damaged(content));
    }
    void mend() {
        for (const auto& [file, content] : m_files) {
            if (file == m_damaged) {
                replaceContent(file, content);
            }
        }
    }

private:
    TempFolder m_folder;
    std::string m_name;
    std::string m_opened;
    std::uint64_t m_seed;
    std::vector<std::pair<fs::path, std::string>> m_files;
    fs::path m_damaged;
};

void allowSeconds(rlim_t seconds) {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto spent = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
    const rlimit limit{spent + seconds, RLIM_INFINITY};
    setrlimit(RLIMIT_CPU, &limit);
}

/// What a user who opens the file has happen.
void openAndDraw(scene::SceneRenderer& renderer, const std::string& file) {
    host::Page page;
    host::Frame& frame = page.createFrame({0.0, 0.0, 8.0, 4.5});
    frame.attachData(scene::DataReaders(std::size_t{1} << 30U).read({file}));
    host::chooseDefaultPlots(frame);
    renderer.draw(page, {ExportRegion_WorkArea, 64, 36, 1});
    renderer.waitForReadAhead();
}

void tryOne(scene::SceneRenderer& renderer, Progress& progress, const std::string& file,
            bool tellsRefusals) {
    try {
        openAndDraw(renderer, file);
        ++progress.opened;
    } catch (const host::HostError& error) {
        ++progress.refused;
        if (tellsRefusals) {
            std::cout << progress.index << " " << error.what() << std::endl;
        }
        progress.isNotOneLine = std::strchr(error.what(), '\n') != nullptr;
    }
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    progress.isGreedy = used.ru_maxrss > mostMemory;
}

/// Until all are tried, or one is worth telling.
[[noreturn]] void tryAll(Target& target, Progress& progress, const AttackOptions& options) {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    const rlimit memory{mostAddressSpace, mostAddressSpace};
    setrlimit(RLIMIT_AS, &memory);
    scene::SceneRenderer renderer;
    for (; progress.index < options.count; ++progress.index) {
        target.damage(progress.index);
        allowSeconds(secondsForOneFile);
        tryOne(renderer, progress, target.opened(), options.tellsRefusals);
        if (progress.isNotOneLine || progress.isGreedy) {
            break;
        }
        target.mend();
    }
    _exit(0);
}

/// Empty when the process did what it should.
std::string findingOf(int status, const Progress& progress) {
    if (WIFSIGNALED(status)) {
        return WTERMSIG(status) == SIGXCPU ? "takes more than 10 s of computing"
                                           : std::string("ends by ") + strsignal(WTERMSIG(status));
    }
    if (WEXITSTATUS(status) != 0) {
        return "ends with " + std::to_string(WEXITSTATUS(status));
    }
    if (progress.isGreedy) {
        return "takes more than 2 GB";
    }
    return progress.isNotOneLine ? "is refused with more than one line" : "";
}

void keep(const Target& target, const fs::path& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    fs::copy(target.folder(), folder, fs::copy_options::recursive);
}

int waitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

} // namespace

AttackResult attack(const MutationSample& sample, const AttackOptions& options) {
    Target target(sample, options.seed);
    const SharedProgress progress;
    AttackResult result;
    while (progress->index < options.count) {
        const pid_t process = fork();
        if (process == 0) {
            try {
                tryAll(target, *progress.operator->(), options);
            } catch (...) {
                _exit(99);
            }
        }
        const std::string finding = findingOf(waitFor(process), *progress.operator->());
        if (finding.empty()) {
            continue;
        }
        const std::string name = sample.name + "." + std::to_string(progress->index);
        result.findings.push_back(name + " " + finding);
        // What was damaged is not known here, but can be done again.
        target.damage(progress->index);
        keep(target, options.kept / name);
        target.mend();
        progress->isNotOneLine = false;
        progress->isGreedy = false;
        ++progress->index;
    }
    result.opened = progress->opened;
    result.refused = progress->refused;
    return result;
}

} // namespace corvane::test
