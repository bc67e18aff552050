// The frame of every C operation: what happens before, after and instead of its work.
#include "host/api/TracedCall.h"

#include <exception>
#include <utility>

namespace corvane::host {

namespace {

void tellCurrentException(const Operation& operation) {
    try {
        throw;
    } catch (const std::exception& error) {
        reportMisuse(operation, error.what());
    } catch (...) {
        reportMisuse(operation, "failed for an unknown reason");
    }
}

} // namespace

bool mayProceedUntraced(const Operation& operation, bool hasResult) {
    if (isOnWrongThread(operation)) {
        return false;
    }
    Host* const host = Host::current();
    return !host || host->session().trace().mayProceed(operation.name, hasResult);
}

void reportMisuse(const Operation& operation, const std::string& what) {
    Host::tellMisuse(complaint(operation, what));
}

bool isOnWrongThread(const Operation& operation) {
    if (Host::isHomeThread()) {
        return false;
    }
    reportMisuse(operation, "called on another thread than the user interface's; ignored");
    return true;
}

void reportException(const Operation& operation) noexcept {
    try {
        tellCurrentException(operation);
    } catch (...) { // NOLINT(bugprone-empty-catch): there is no one left to tell
    }
}

void record(Session& session, std::string call, std::string result) {
    session.trace().record({std::move(call), std::move(result), session.locks().depth()});
}

} // namespace corvane::host
