// The frame of every C operation: what happens before, after and instead of its work.
#include "host/api/TracedCall.h"

#include <exception>
#include <utility>

namespace corvane::host {

bool mayProceedUntraced(const char* operation, bool hasResult) {
    Application* const application = Application::current();
    return !application || mayProceed(application->trace(), operation, hasResult);
}

void reportMisuse(const char* operation, const std::string& what) {
    if (Application* const application = Application::current()) {
        application->trace().misuse(std::string(operation) + ": " + what);
    }
}

void reportException(const char* operation) {
    try {
        throw;
    } catch (const std::exception& error) {
        reportMisuse(operation, error.what());
    } catch (...) {
        reportMisuse(operation, "failed for an unknown reason");
    }
}

void record(Application& application, std::string call, std::string result) {
    const CallTrace& trace = application.trace();
    if (trace.isOn()) {
        trace.onCall({std::move(call), std::move(result), application.locks().depth()});
    }
}

} // namespace corvane::host
