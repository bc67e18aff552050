#include "host/validate/Trial.h"

#include "host/core/base/HostError.h"
#include "host/core/base/Text.h"
#include "host/core/session/AddOnLoader.h"
#include "host/validate/CpuLimit.h"
#include "host/validate/Judge.h"

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <unistd.h>
#include <utility>

namespace corvane::validate {

namespace {

using Kind = TrialOrder::Kind;

/// Set when all was tried: what ends the process from then on is the trial itself.
Journal* journalToEnd = nullptr;

/// Called after the add-on's objects with static storage were destroyed, and in place of what else
/// the program would do at its end: this is a copy of it.
void endProcess() {
    if (journalToEnd != nullptr) {
        journalToEnd->end();
    }
    _exit(0);
}

class Trial {
public:
    Trial(const TrialOrder& order, Journal& journal)
        : m_order(order),
          m_journal(journal),
          m_host(makeHost(order.kind)),
          m_judge(*m_host, journal),
          m_walk(*m_host, journal, m_judge, m_order.avoided, order.cpuSeconds) {
        m_host->stopRemembering();
    }

    void run() {
        if (!load()) {
            return;
        }
        use();
        m_walk.act("the state change StateChange_HostQuit", [&] { m_host->session().quit(); });
        m_judge.endAll();
        m_journal.counts(m_walk.counts());
        m_journal.at({"the end of the process", ""});
    }

private:
    static std::unique_ptr<memory::MemoryHost> makeHost(Kind kind) {
        return kind == Kind::Windowless
                   ? std::make_unique<memory::MemoryHost>(memory::MemoryHost::Windowless{})
                   : std::make_unique<memory::MemoryHost>(memory::MemoryHost::Empty{});
    }
    bool load();
    void use();

    const TrialOrder& m_order;
    Journal& m_journal;
    std::unique_ptr<memory::MemoryHost> m_host;
    Judge m_judge;
    Walk m_walk;
};

/// Without an add-on there is nothing to try.
bool Trial::load() {
    const Action action{"the entry point InitCorAddOn113",
                        m_order.failingCall > 0
                            ? "when its call " + std::to_string(m_order.failingCall) +
                                  " of the host fails"
                            : ""};
    m_journal.at(action);
    allowComputing(m_order.cpuSeconds);
    m_host->askBeforeFailing([&](const std::string& operation) {
        m_journal.fails(operation);
        return true;
    });
    m_host->failAt(m_order.failingCall);
    m_judge.startAction();
    try {
        host::loadAddOn(m_host->session(), m_order.addOn);
    } catch (const host::HostError& error) {
        m_judge.broken(Rule::Loading, {"the library", ""}, error.what());
        return false;
    }
    m_judge.endAction(action);
    if (m_host->hasFailedAt()) {
        m_journal.failureWasReached();
    } else if (m_host->session().addOns().all().empty()) {
        m_judge.broken(Rule::Loading, action, "the add-on has not registered itself");
    }
    m_host->failAt(0);
    return true;
}

void Trial::use() {
    const bool isBackwards = m_order.kind == Kind::Backwards;
    const ItemOrder order = isBackwards ? ItemOrder::LastToFirst : ItemOrder::FirstToLast;
    m_walk.round({.agrees = true, .order = order});
    if (m_order.kind == Kind::Entry) {
        return;
    }
    m_walk.round({.agrees = false, .order = order});
    m_walk.round({.agrees = true, .order = order});
    m_walk.failEverywhere();
}

int work(const host::TaskInput& input) {
    const TrialOrder order = orderFrom(input.arguments);
    dup2(STDERR_FILENO, STDOUT_FILENO); // standard output is for the verdict
    std::filesystem::current_path(order.folder);
    Journal journal(input.descriptors.at(0).get());
    std::atexit(endProcess); // before the add-on comes, so that its own come first
    Trial(order, journal).run();
    allowComputing(order.cpuSeconds);
    journalToEnd = &journal;
    std::exit(EXIT_SUCCESS);
}

} // namespace

const host::Task trying("try an add-on", work);

std::vector<std::string> argumentsOf(const TrialOrder& order) {
    std::vector<std::string> arguments{std::to_string(static_cast<int>(order.kind)), order.addOn,
                                       order.folder, std::to_string(order.cpuSeconds),
                                       std::to_string(order.failingCall)};
    arguments.insert(arguments.end(), order.avoided.begin(), order.avoided.end());
    return arguments;
}

TrialOrder orderFrom(const std::vector<std::string>& arguments) {
    TrialOrder order;
    order.kind = static_cast<Kind>(host::parsedNumber<int>(arguments.at(0)).value());
    order.addOn = arguments.at(1);
    order.folder = arguments.at(2);
    order.cpuSeconds = host::parsedNumber<unsigned>(arguments.at(3)).value();
    order.failingCall = host::parsedNumber<std::size_t>(arguments.at(4)).value();
    order.avoided.insert(arguments.begin() + 5, arguments.end());
    return order;
}

} // namespace corvane::validate
