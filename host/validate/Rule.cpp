#include "host/validate/Rule.h"

#include <algorithm>

namespace corvane::validate {

namespace {

struct Sign {
    const char* part; ///< of a misuse
    Rule rule;
};

constexpr std::array signs{
    Sign{"locks are not balanced", Rule::Locks},
    Sign{"no such lock is held", Rule::Locks},
    Sign{"CorUtilLockStart: unknown add-on", Rule::Locks},
    Sign{"CorUtilLockFinish: unknown add-on", Rule::Locks},
    Sign{"suspended drawing is not balanced", Rule::Drawing},
    Sign{"drawing is not suspended", Rule::Drawing},
    Sign{"called on another thread", Rule::Threads},
    Sign{"freed before", Rule::Memory},
    Sign{"args is no list of arguments", Rule::Memory},
    Sign{"no display is open", Rule::Progress},
    Sign{"nothing is recorded", Rule::Movies},
    Sign{"a movie is being recorded already", Rule::Movies},
    Sign{"was made for interface", Rule::Loading},
};

} // namespace

const std::array<RuleText, ruleCount>& allRules() {
    static const std::array<RuleText, ruleCount> rules{{
        {Rule::Loading, "loading", "is loaded, has the entry point, and registers itself there",
         "Export InitCorAddOn113, and call CorUtilAddOnRegister(110, ...) in it."},
        {Rule::Survival, "survival",
         "comes back from each callback: no crash, no endless work, no exit()",
         "Look at that callback in a debugger; where a call of the host failed, look at what is "
         "done with its result."},
        {Rule::Locks, "locks", "gives back each lock in the callback that took it",
         "Take locks in the constructor of an object and give them back in its destructor, so that "
         "each way out gives them back."},
        {Rule::Drawing, "drawing", "lets drawing go on in the callback that suspended it",
         "Let CorUtilDrawGraphics(TRUE) follow each CorUtilDrawGraphics(FALSE), on each way out."},
        {Rule::Threads, "threads", "calls the host on the thread of the user interface alone",
         "Let threads leave results where work of the idle queue finds them; call nothing there."},
        {Rule::Memory, "memory", "gives back what the host gave, once, and nothing else",
         "Free each string, array, set and argument list of the host once, by the operation that "
         "belongs to it, on each way out."},
        {Rule::Exceptions, "exceptions", "lets no exception out of a callback",
         "Catch it, and tell the user in a sentence of your own."},
        {Rule::Progress, "progress", "closes the percent-done displays that it opens",
         "Let CorUtilStatusFinishPercentDone follow each CorUtilStatusStartPercentDone, on each "
         "way "
         "out."},
        {Rule::Stopping, "stopping", "ends its work when the user stops it",
         "End the work when CorUtilStatusCheckPercentDone answers FALSE."},
        {Rule::Movies, "movies", "finishes or cancels the movies that it starts",
         "Let CorUtilExportFinish or CorUtilExportCancel follow each CorUtilExportStart that "
         "succeeded."},
        {Rule::Dialogs, "dialogs", "lets users leave its modal dialogs",
         "Call CorGUIDialogDrop in the Cancel callback."},
        {Rule::Arguments, "arguments", "hands over what the operations take",
         "Look the operation up in its header; handles and pointers may be failures of calls "
         "before."},
    }};
    return rules;
}

const RuleText& textOf(Rule rule) {
    return allRules().at(static_cast<std::size_t>(rule));
}

Rule ruleBrokenBy(const std::string& misuse) {
    const auto found = std::find_if(signs.begin(), signs.end(), [&](const Sign& sign) {
        return misuse.find(sign.part) != std::string::npos;
    });
    return found != signs.end() ? found->rule : Rule::Arguments;
}

} // namespace corvane::validate
