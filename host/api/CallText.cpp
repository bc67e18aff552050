// The text of calls in the trace.
#include "host/api/CallText.h"

#include "host/api/ArgumentList.h"
#include "host/core/Host.h"
#include "host/core/base/Text.h"
#include "host/core/macro/MacroText.h"

#include <variant>

namespace corvane::host {

namespace {

bool isPathKey(const CorArgList_s::Entry& entry) {
    return entry.name.starts_with("Path") && std::holds_alternative<std::string>(entry.value);
}

void appendEntryValue(std::string& text, const CorArgList_s::Value& value) {
    std::visit(
        [&text](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::string>) {
                appendQuoted(text, held.c_str());
            } else {
                appendValue(text, held);
            }
        },
        value);
}

} // namespace

void appendTruth(std::string& text, bool value) {
    text += value ? "TRUE" : "FALSE";
}

void appendNumber(std::string& text, double value) {
    text += exactText(value);
}

void appendQuoted(std::string& text, const char* value) {
    text += value ? quoted(value) : "NULL";
}

void appendAddOn(std::string& text, CorAddOnID value) {
    Host* const host = Host::current();
    if (!value) {
        text += "NULL";
    } else if (host && host->session().addOns().isKnown(value)) {
        text += quoted(value->name);
    } else {
        text += "unknown";
    }
}

void appendArgumentList(std::string& text, CorArgList value) {
    if (!known(value)) {
        text += value ? "unknown" : "NULL";
        return;
    }
    bool previousIsPath = false;
    bool isFirst = true;
    for (const CorArgList_s::Entry& entry : value->entries) {
        const bool isPath = isPathKey(entry);
        if (!isFirst) {
            text += isPath && previousIsPath ? "," : ", ";
        }
        if (!isPath) {
            text += entry.name + '=';
        }
        appendEntryValue(text, entry.value);
        previousIsPath = isPath;
        isFirst = false;
    }
}

} // namespace corvane::host
