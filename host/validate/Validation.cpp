#include "host/validate/Validation.h"

#include "host/core/base/HostError.h"
#include "host/validate/ScratchFolder.h"
#include "host/validate/TrialProcess.h"

#include <filesystem>

namespace corvane::validate {

namespace {

/// An add-on that ends so many processes is known well enough.
constexpr std::size_t mostDeaths = 12;
constexpr std::size_t mostCallsOfEntry = 300;

/// Trials work in folders of their own.
std::string pathForTrials(const std::string& library) {
    std::error_code error;
    return std::filesystem::exists(library, error) ? std::filesystem::absolute(library).string()
                                                   : library;
}

class Validation {
public:
    Validation(const std::string& library, unsigned cpuSeconds, int stop) : m_stop(stop) {
        m_order.addOn = pathForTrials(library);
        m_order.folder = m_folder.path();
        m_order.cpuSeconds = cpuSeconds;
    }

    Verdict run() {
        if (tryAs(TrialOrder::Kind::Everything) && wasLoaded()) {
            tryAs(TrialOrder::Kind::Backwards);
            tryAs(TrialOrder::Kind::Windowless);
            failInEntry();
        }
        return m_verdict;
    }

private:
    bool wasLoaded() const { return m_verdict.counts.actions > 0; }
    bool tryAs(TrialOrder::Kind kind);
    void failInEntry();
    TrialEnd tryOnce();

    /// Nothing more is to be tried.
    bool isOver() const { return m_verdict.gaveUp || m_verdict.wasStopped; }

    int m_stop;
    ScratchFolder m_folder;
    TrialOrder m_order;
    Verdict m_verdict;
    std::size_t m_deaths = 0;
};

TrialEnd Validation::tryOnce() {
    const TrialEnd end = runTrial(m_order, m_stop);
    m_verdict.wasStopped = end.wasStopped;
    m_verdict.findings.insert(m_verdict.findings.end(), end.findings.begin(), end.findings.end());
    m_verdict.counts.actions += end.counts.actions;
    m_verdict.counts.failures += end.counts.failures;
    m_verdict.counts.stops += end.counts.stops;
    if (!end.death.empty()) {
        Action action = end.at;
        action.condition += end.failing.empty() ? "" : " (" + end.failing + ')';
        m_verdict.findings.push_back({Rule::Survival, action, end.death});
        m_verdict.gaveUp = ++m_deaths >= mostDeaths;
    }
    return end;
}

/// Again without what ended the process, as long as there is something new to leave out.
bool Validation::tryAs(TrialOrder::Kind kind) {
    m_order.kind = kind;
    while (!isOver()) {
        const TrialEnd end = tryOnce();
        if (end.death.empty()) {
            return true;
        }
        const bool isNew = m_order.avoided.insert(nameToAvoid(end.at, end.failing)).second;
        if (!isNew) {
            return false;
        }
    }
    return false;
}

void Validation::failInEntry() {
    m_order.kind = TrialOrder::Kind::Entry;
    for (std::size_t n = 1; n <= mostCallsOfEntry && !isOver(); ++n) {
        m_order.failingCall = n;
        const TrialEnd end = tryOnce();
        if (end.death.empty() && !end.wasFailureReached) {
            return;
        }
        m_verdict.counts.failures += end.wasFailureReached ? 1 : 0;
    }
}

} // namespace

Verdict validate(const std::string& library, unsigned cpuSeconds, int stop) {
    return Validation(library, cpuSeconds, stop).run();
}

} // namespace corvane::validate
