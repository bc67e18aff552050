// A run without a window, from the options to the exit code.
#include "host/app/BatchRun.h"

#include "host/app/AddOnLibraries.h"
#include "host/app/BatchPrompts.h"
#include "host/app/Flight.h"
#include "host/app/Inputs.h"
#include "host/app/MemoryLimits.h"
#include "host/app/Messages.h"
#include "host/app/Signals.h"
#include "host/app/TerminalStatus.h"
#include "host/app/TimedRenderer.h"
#include "host/app/TraceFile.h"
#include "host/core/Host.h"
#include "host/core/commands/SceneMacro.h"
#include "host/core/macro/MacroFile.h"
#include "host/movie/LibavMovieWriters.h"
#include "host/movie/PngFiles.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <memory>
#include <unistd.h>

namespace corvane::app {
namespace {

class BatchRun {
public:
    explicit BatchRun(const Options& options)
        : m_options(options),
          m_scene(nullptr, memoryForPlots(options), m_tell),
          m_renderer(m_scene),
          m_reader(memoryForData(options)),
          m_status(options.quiet ? m_silence : std::cerr,
                   !options.quiet && isatty(STDERR_FILENO) != 0, isStopSignalled),
          m_prompts(options.quiet),
          m_host({.renderer = m_renderer,
                  .reader = m_reader,
                  .movies = m_movies,
                  .status = m_status,
                  .prompts = m_prompts,
                  .pictures = m_pictures,
                  .tell = m_tell}) {}

    ExitCode run();

private:
    ExitCode outcomeOf(void (BatchRun::*step)());
    void work();
    void openData();
    void startRecording();
    void writeRecorded();
    void traceCalls();
    void finishTrace();
    void setUpPage();
    void sayWhatWasMade(double seconds);
    ExitCode failed(const std::string& message);

    const Options& m_options;
    const host::PartFile::Tell m_tell = [this](const std::string& note) {
        if (!m_options.quiet) {
            say(note);
        }
    };
    scene::SceneRenderer m_scene;
    TimedRenderer m_renderer;
    scene::DataReaders m_reader;
    movie::LibavMovieWriters m_movies{m_tell};
    movie::PngFiles m_pictures;
    std::ostream m_silence{nullptr};
    TerminalStatus m_status;
    BatchPrompts m_prompts;
    std::unique_ptr<TraceFile> m_trace;
    host::Host m_host;
};

ExitCode BatchRun::run() {
    const ExitCode code = outcomeOf(&BatchRun::work);
    m_host.session().quit();
    // The trace of a run that failed is of use, too.
    return std::max(code, outcomeOf(&BatchRun::finishTrace));
}

ExitCode BatchRun::outcomeOf(void (BatchRun::*step)()) {
    try {
        (this->*step)();
        return ExitDone;
    } catch (const std::exception& error) {
        return failed(host::messageOf(error));
    }
}

void BatchRun::work() {
    traceCalls();
    setUpPage();
    loadAddOns(m_host.session(), m_options, say);
    startRecording();
    openData();
    m_host.macros().stopWhen(isStopSignalled);
    for (const auto& [name, value] : m_options.variables) {
        m_host.macros().variables().set(name, value);
    }
    if (!m_options.macro.empty()) {
        m_host.macros().playFile(m_options.macro);
    }
    if (!m_options.keyFrames.empty()) {
        const auto start = std::chrono::steady_clock::now();
        fly(m_host, m_options);
        sayWhatWasMade(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    writeRecorded();
}

void BatchRun::openData() {
    if (!m_options.data.empty()) {
        m_host.perform("READDATA", m_options.data);
    }
}

void BatchRun::startRecording() {
    if (!m_options.record.empty()) {
        host::expectWritable(m_options.record, m_tell);
        host::startRecording(m_host.session(), m_host.recorder());
    }
}

void BatchRun::writeRecorded() {
    if (!m_options.record.empty()) {
        host::writeMacro(m_host.recorder().stop(), m_options.record, m_tell);
    }
}

void BatchRun::traceCalls() {
    if (!m_options.trace.empty()) {
        m_trace = std::make_unique<TraceFile>(m_options.trace, m_tell);
        m_trace->attachTo(m_host.session().trace());
    }
}

void BatchRun::finishTrace() {
    if (m_trace) {
        m_trace->finish();
    }
}

void BatchRun::setUpPage() {
    m_host.session().resizeWorkArea(
        {m_options.width, m_options.height, m_options.width / host::paperWidthInches});
    if (m_options.isSizeGiven) {
        m_host.macros().keepPictureSize();
    }
}

void BatchRun::sayWhatWasMade(double seconds) {
    const unsigned long frames = m_host.session().exporter().frames();
    char figures[128];
    std::snprintf(figures, sizeof figures,
                  ": %lu frames in %.1f s, %.1f frames a second, %.0f %% of it drawing", frames,
                  seconds, static_cast<double>(frames) / seconds,
                  100.0 * m_renderer.seconds() / seconds);
    m_tell(m_options.output + figures);
}

ExitCode BatchRun::failed(const std::string& message) {
    if (isStopSignalled()) {
        say("Stopped; what was not complete was not written.");
        return ExitStopped;
    }
    say(message);
    return ExitFailed;
}

} // namespace

ExitCode runBatch(const Options& options) {
    watchStopSignals();
    noteInputs(options);
    try {
        return BatchRun(options).run();
    } catch (const std::exception& error) {
        say(host::messageOf(error));
        return ExitFailed;
    }
}

} // namespace corvane::app
