// A host for tests: the real core and C operations, with everything outside in memory.
#pragma once

#include "host/core/Host.h"
#include "host/memory/MemoryData.h"
#include "host/memory/MemoryIdleTimer.h"
#include "host/memory/MemoryMainMenu.h"
#include "host/memory/MemoryMovies.h"
#include "host/memory/MemoryPictures.h"
#include "host/memory/MemoryReader.h"
#include "host/memory/MemoryRenderer.h"
#include "host/memory/MemoryWidgets.h"
#include "host/memory/ScriptedCalls.h"
#include "host/memory/ScriptedPrompts.h"
#include "host/memory/ScriptedStatus.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::memory {

/// What the trace told of the caller.
struct Complaints {
    std::vector<std::string> misuse;
    std::vector<std::string> exceptions;
};

/// One per test. The C operations reach it while it lives, and every call of them is remembered.
///
///     MemoryHost host;
///     CorUtilDrawGraphics(FALSE);
///     EXPECT_THAT(host.calls(), ElementsAre("CorUtilDrawGraphics(FALSE)"));
class MemoryHost {
public:
    struct Empty {};      ///< no frame and no data, as when the add-on is loaded
    struct Windowless {}; ///< as Empty, and without dialogs and menus, as in a batch run

    /// One active 3D frame of 8 by 4.5 inches with the data of makeTransientData, at time 0.
    /// Nothing is drawn, marked for drawing, or remembered as a call yet.
    MemoryHost();
    explicit MemoryHost(Empty);
    explicit MemoryHost(Windowless);
    ~MemoryHost();
    MemoryHost(const MemoryHost&) = delete;
    MemoryHost& operator=(const MemoryHost&) = delete;

    host::Host& program() { return *m_program; }
    host::Session& session() { return m_program->session(); }
    MemoryRenderer& renderer() { return m_renderer; }
    MemoryMovies& movies() { return m_movies; }
    MemoryPictures& pictures() { return m_pictures; }
    MemoryReader& reader() { return m_reader; }
    ScriptedStatus& status() { return m_status; }
    ScriptedPrompts& prompts() { return m_prompts; }
    /// The dialogs of add-ons, for the user.
    MemoryWidgets& gui() { return m_widgets; }
    MemoryMainMenu& mainMenu() { return m_mainMenu; }

    /// The active frame; there must be one.
    host::Frame& frame();
    /// Adds a frame on top, with data and a view that shows them, and makes it active. Tells
    /// nobody.
    host::Frame& addFrame(host::Placement placement = {});
    /// Both tell the listeners. No data (null) is allowed.
    void setData(std::shared_ptr<const host::DataSet> data);
    void setPlotType(PlotType_e type);

    /// What the event loop does when nothing is pending.
    void runIdle() { m_program->session().onIdle(); }
    /// How often the host asked for idle time.
    std::size_t idleRequests() const { return m_idleTimer.requests(); }

    /// The calls so far, in the order in which they returned, without results and lock depths:
    /// CorUtilDrawGraphics(FALSE). Building argument lists and strings is left out, as in the
    /// trace, and so is a call that threw.
    std::vector<std::string> calls() const { return callsOf(""); }
    const std::vector<host::TraceRecord>& records() const { return m_records; }
    /// Of operations whose name begins so.
    std::vector<std::string> callsOf(std::string_view prefix) const;
    /// Of this very operation.
    std::size_t count(std::string_view operation) const;
    void clearCalls() { m_records.clear(); }
    /// For work whose calls would fill the memory: from now on calls() stays as it is.
    void stopRemembering();
    /// How often the operation was entered so far, whether it is one that calls() leaves out or
    /// not.
    std::size_t timesEntered(const std::string& operation) const {
        return m_script.timesEntered(operation);
    }

    /// The next n calls of the operation answer their failure and do nothing. An operation without
    /// a result does nothing then.
    void failNext(const std::string& operation, std::size_t n = 1);
    /// The k-th call from now (1 = the next one) of the operation does nothing but throw
    /// std::runtime_error, which the real host never does.
    void throwAt(const std::string& operation, std::size_t k = 1);
    /// The k-th call from now of all operations that have a result answers its failure and does
    /// nothing, those that build argument lists and strings included. Left out are operations whose
    /// failure would break the contract: the end of a movie (see movies().failFinish()), the
    /// question whether one is recorded, and the removal of a listener. For sweeps:
    ///     for (std::size_t k = 1;; ++k) { MemoryHost host; host.failAt(k); …
    ///         if (!host.hasFailedAt()) break; }
    void failAt(std::size_t k) { m_script.failAt(k); }
    bool hasFailedAt() const { return !m_script.failedAt().empty(); }
    /// The operation that failed so, and how many calls() there were before.
    const std::string& failedAt() const { return m_script.failedAt(); }
    std::size_t callsBeforeFailure() const { return m_callsBeforeFailure; }
    /// See ScriptedCalls.
    void keepCandidates() { m_script.keepCandidates(); }
    std::vector<std::string> takeCandidates() { return m_script.takeCandidates(); }
    void askBeforeFailing(std::function<bool(const std::string& operation)> mayFail) {
        m_script.askBeforeFailing(std::move(mayFail));
    }
    /// The user stops at the n-th time from now that the host asks (1 = the next one).
    void stopAtCheck(std::size_t n) { m_status.stopAtCheck(n); }

    /// Ends the recording of a macro, and gives the commands that add-ons recorded. The host itself
    /// records views and times that have changed.
    std::vector<std::string> recordedCommands();

    /// What the caller did wrong and the host ignored. To be asked when no other thread of the
    /// caller runs.
    const std::vector<std::string>& misuse() const { return m_misuse; }
    /// What callbacks let out, with the callback.
    const std::vector<std::string>& exceptions() const { return m_exceptions; }
    /// Both, taken away. Other threads may go on.
    Complaints takeComplaints();
    /// How many strings, arrays, sets and argument lists the caller has not given back.
    static std::size_t thingsHeld();
    /// Misuse with this text in it is part of the test; without it the test fails.
    void expectMisuse(std::string part = {}) { m_expectedMisuse.push_back(std::move(part)); }

    /// What the host told besides.
    const std::vector<std::string>& told() const { return m_told; }

    /// What an add-on must not leave behind, as sentences: unexpected misuse, locks, suspended
    /// drawing, an open percent-done display, a movie being recorded, scripted failures that never
    /// came.
    std::vector<std::string> leftBehind() const;

private:
    explicit MemoryHost(bool hasWindows);

    host::TraceSinks misuseAndScript();
    bool mayProceed(const char* operation, bool hasResult);
    bool isExpected(const std::string& misuse) const;

    MemoryRenderer m_renderer;
    MemoryMovies m_movies;
    MemoryPictures m_pictures;
    MemoryReader m_reader;
    ScriptedStatus m_status;
    ScriptedPrompts m_prompts;
    MemoryIdleTimer m_idleTimer;
    MemoryWidgets m_widgets;
    MemoryMainMenu m_mainMenu;
    ScriptedCalls m_script;
    std::size_t m_callsBeforeFailure = 0;
    std::vector<host::TraceRecord> m_records;
    std::mutex m_misuseMutex; ///< calls on other threads are misuse
    std::vector<std::string> m_misuse;
    std::vector<std::string> m_exceptions;
    std::vector<std::string> m_expectedMisuse;
    std::vector<std::string> m_told;
    std::unique_ptr<host::Host> m_program;
};

} // namespace corvane::memory
