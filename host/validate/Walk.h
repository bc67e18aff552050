// A user who tries everything, and a host that fails whenever it can.
#pragma once

#include "host/validate/Judge.h"
#include "host/validate/Steps.h"

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace corvane::validate {

/// What ended a process, by nameToAvoid(), to be left out from now on.
using Avoided = std::set<std::string>;

/// operation: the one that failed in the action; empty: none.
std::string nameToAvoid(const Action& action, const std::string& operation);

/// How a user goes about it.
struct Manner {
    bool agrees = true; ///< answers yes, gives names of files, and leaves dialogs with OK
    ItemOrder order = ItemOrder::FirstToLast;
};

class Walk {
public:
    /// cpuSeconds: the most computing for one action. All must outlive the walk.
    Walk(memory::MemoryHost& host, Journal& journal, Judge& judge, const Avoided& avoided,
         unsigned cpuSeconds);

    /// Does everything once that can be done.
    void round(const Manner& manner);
    /// Does what the rounds did again, while each call of the host fails in turn, and
    /// while the user stops at each check in turn.
    void failEverywhere();
    /// One action that is no step of the walk.
    void act(const std::string& what, const std::function<void()>& perform);

    const Counts& counts() const { return m_counts; }

private:
    void showData();
    std::vector<Step> steps();
    const Step* next(const std::vector<Step>& steps, const std::set<std::string>& done,
                     Step::Turn turn) const;
    const Step* next(const std::vector<Step>& steps, const std::set<std::string>& done) const;
    void answer(bool yes);
    static void remember(const Step& step, std::vector<Step>& steps);
    void noteRecorded();
    void perform(const Action& action, const std::function<void()>& work);
    void performOften(const Step& step);
    void refill();
    bool prepareFor(const std::function<bool()>& isPossible);
    bool isAvoided(const Action& action, const std::string& operation = {}) const {
        return m_avoided.count(nameToAvoid(action, operation)) != 0;
    }
    std::set<std::string> possibleSteps();
    void noteOpened(const Step& opening, const std::set<std::string>& possibleBefore);
    bool reach(const Step& step, int depth = 0);
    bool replayUntil(const Step& step);
    void failEachCallOf(const Step& step);
    void stopAtEachCheckOf(const Step& step);
    std::vector<std::size_t> callsToFail(const Step& step);
    bool mayFail(const Action& action, const std::string& operation);
    void leaveModals();
    host::Dialog* modalOnTop();
    void leave(const host::Dialog& dialog, const Action& cancelling);
    std::size_t rowCount();

    memory::MemoryHost& m_host;
    Journal& m_journal;
    Judge& m_judge;
    const Avoided& m_avoided;
    unsigned m_cpuSeconds;
    Counts m_counts;
    Manner m_manner;
    std::vector<Step> m_adding;            ///< those that added rows to a list
    std::vector<Step> m_known;             ///< in the order in which they were done first
    std::map<std::string, Step> m_openers; ///< of steps, by name: what made them possible
    std::map<std::string, int> m_replays;  ///< how often a round was done again for a step
    std::vector<std::string> m_recorded;   ///< lines of macros with commands of the add-on
};

} // namespace corvane::validate
