// A host for tests: the real core and C operations, with everything outside in memory.
#include "host/memory/MemoryHost.h"

#include "host/api/AllocationRegistry.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace corvane::memory {

MemoryHost::MemoryHost(bool hasWindows)
    : m_program(std::make_unique<host::Host>(
          host::Ports{.renderer = m_renderer,
                      .reader = m_reader,
                      .movies = m_movies,
                      .status = m_status,
                      .prompts = m_prompts,
                      .pictures = m_pictures,
                      .screen = &m_renderer,
                      .idleTimer = &m_idleTimer,
                      .widgets = hasWindows ? &m_widgets : nullptr,
                      .mainMenu = hasWindows ? &m_mainMenu : nullptr,
                      .tell = [this](const std::string& note) { m_told.push_back(note); }})) {
    host::TraceSinks sinks = misuseAndScript();
    sinks.onCall = [this](const host::TraceRecord& record) { m_records.push_back(record); };
    m_program->session().trace().connect(std::move(sinks));
}

host::TraceSinks MemoryHost::misuseAndScript() {
    return {.onMisuse =
                [this](const std::string& what) {
                    const std::lock_guard<std::mutex> lock(m_misuseMutex);
                    m_misuse.push_back(what);
                },
            .onException = [this](const std::string& what) { m_exceptions.push_back(what); },
            .onEnter = [this](const char* operation,
                              bool hasResult) { return mayProceed(operation, hasResult); }};
}

bool MemoryHost::mayProceed(const char* operation, bool hasResult) {
    const bool hadFailed = hasFailedAt();
    const bool proceeds = m_script.mayProceed(operation, hasResult);
    if (hasFailedAt() && !hadFailed) {
        m_callsBeforeFailure = m_records.size();
    }
    return proceeds;
}

Complaints MemoryHost::takeComplaints() {
    const std::lock_guard<std::mutex> lock(m_misuseMutex);
    return {std::exchange(m_misuse, {}), std::exchange(m_exceptions, {})};
}

std::size_t MemoryHost::thingsHeld() {
    return host::thingsHeldByAddOns();
}

void MemoryHost::stopRemembering() {
    m_program->session().trace().connect(misuseAndScript());
}

MemoryHost::MemoryHost(Empty) : MemoryHost(true) {}

MemoryHost::MemoryHost(Windowless) : MemoryHost(false) {}

MemoryHost::MemoryHost() : MemoryHost(Empty{}) {
    addFrame();
}

MemoryHost::~MemoryHost() = default;

host::Frame& MemoryHost::frame() {
    host::Frame* const active = m_program->session().silentPage().active();
    if (active == nullptr) {
        throw std::logic_error("The page has no frame.");
    }
    return *active;
}

host::Frame& MemoryHost::addFrame(host::Placement placement) {
    host::Frame& added = m_program->session().silentPage().createFrame(placement);
    added.attachData(makeTransientData());
    host::chooseDefaultPlots(added);
    return added;
}

void MemoryHost::setData(std::shared_ptr<const host::DataSet> data) {
    const bool isAttached = data != nullptr;
    frame().attachData(std::move(data));
    m_program->session().pageChanged(isAttached ? StateChange_DataSetAttached
                                                : StateChange_DataSetRemoved);
}

void MemoryHost::setPlotType(PlotType_e type) {
    frame();
    m_program->session().setPlotType(type);
}

std::vector<std::string> MemoryHost::callsOf(std::string_view prefix) const {
    std::vector<std::string> calls;
    for (const host::TraceRecord& record : m_records) {
        if (record.call.starts_with(prefix)) {
            calls.push_back(record.call);
        }
    }
    return calls;
}

std::size_t MemoryHost::count(std::string_view operation) const {
    return callsOf(std::string(operation) + '(').size();
}

void MemoryHost::failNext(const std::string& operation, std::size_t n) {
    m_script.failNext(operation, n);
}

void MemoryHost::throwAt(const std::string& operation, std::size_t k) {
    m_script.throwAt(operation, k);
}

bool MemoryHost::isExpected(const std::string& misuse) const {
    return std::any_of(
        m_expectedMisuse.begin(), m_expectedMisuse.end(),
        [&](const std::string& part) { return misuse.find(part) != std::string::npos; });
}

std::vector<std::string> MemoryHost::recordedCommands() {
    std::vector<std::string> lines = m_program->recorder().stop();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("$!EXTCOMMAND"); });
    return lines;
}

std::vector<std::string> MemoryHost::leftBehind() const {
    std::vector<std::string> findings = m_script.unmet();
    for (const std::string& misuse : m_misuse) {
        if (!isExpected(misuse)) {
            findings.push_back("misuse: " + misuse);
        }
    }
    for (const std::string& part : m_expectedMisuse) {
        const auto holdsPart = [&](const std::string& misuse) {
            return misuse.find(part) != std::string::npos;
        };
        if (std::none_of(m_misuse.begin(), m_misuse.end(), holdsPart)) {
            findings.push_back("no misuse although it was expected: " + part);
        }
    }
    if (m_program->session().locks().depth() != 0) {
        findings.push_back("locks held: " + std::to_string(m_program->session().locks().depth()));
    }
    if (m_program->session().drawing().suspensions() != 0) {
        findings.push_back("drawing suspended: " +
                           std::to_string(m_program->session().drawing().suspensions()));
    }
    if (m_program->session().status().isActive()) {
        findings.push_back("the percent-done display is open");
    }
    if (m_program->session().exporter().isRecording()) {
        findings.push_back("a movie is being recorded");
    }
    return findings;
}

} // namespace corvane::memory
