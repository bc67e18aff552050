// The frame of every C operation: what happens before, after and instead of its work.
#pragma once

#include "host/api/CallText.h"
#include "host/api/Operation.h"
#include "host/core/Host.h"

#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace corvane::host {

/// One call of a C operation. It answers the failure without a host and on other threads
/// than its own, records the call and its result in the trace, and keeps exceptions of the host
/// inside. While nobody listens to the trace, no text is made.
template <class... Arguments>
class TracedCall {
public:
    explicit TracedCall(Operation operation, Arguments... arguments)
        : m_operation(operation), m_arguments(arguments...) {}

    /// The result of work(session), or of work(host) for operations about macros; failure when that
    /// is not possible.
    template <class Result, class Work>
    Result answer(Result failure, const Work& work) const;

    /// The same for operations without a result.
    template <class Work>
    void perform(const Work& work) const;

    /// Tells the trace what the caller did wrong. Answers false, which often is the result then.
    bool misuse(const std::string& what) const;

    /// The library that made the call; empty when it is not known.
    std::string callingLibrary() const { return libraryAt(m_operation.calledFrom); }

private:
    template <class Work, class AppendResult>
    void run(bool hasResult, const Work& work, const AppendResult& appendResult) const;
    template <class Step>
    void guarded(const Step& step) const;
    std::string text() const;
    /// To be made before the work, which may free what the arguments point to. The work is done
    /// where there is no memory for it, too.
    std::string textOrNothing() const;

    Operation m_operation;
    std::tuple<Arguments...> m_arguments;
};

/// For the operations that build lists and strings: they are needed with or without a
/// host, and would drown all others in the trace.
bool mayProceedUntraced(const Operation& operation, bool hasResult);
void reportMisuse(const Operation& operation, const std::string& what);

/// True, and told to the trace, on any thread but that of the host.
bool isOnWrongThread(const Operation& operation);

/// To be called in a catch block: tells the trace about the exception, if there is memory for that.
void reportException(const Operation& operation) noexcept;
void record(Session& session, std::string call, std::string result);

template <class Work>
decltype(auto) callWith(Host& host, const Work& work) {
    if constexpr (std::is_invocable_v<const Work&, Session&>) {
        return work(host.session());
    } else {
        return work(host);
    }
}

template <class... Arguments>
std::string TracedCall<Arguments...>::text() const {
    std::string text = m_operation.name;
    text += '(';
    const char* separator = "";
    const auto append = [&](auto argument) {
        text += separator;
        appendValue(text, argument);
        separator = ", ";
    };
    std::apply([&](auto... arguments) { (append(arguments), ...); }, m_arguments);
    text += ')';
    return text;
}

template <class... Arguments>
std::string TracedCall<Arguments...>::textOrNothing() const {
    std::string made;
    guarded([&] { made = text(); });
    return made;
}

template <class... Arguments>
template <class Step>
void TracedCall<Arguments...>::guarded(const Step& step) const {
    try {
        step();
    } catch (...) {
        reportException(m_operation);
    }
}

template <class... Arguments>
template <class Work, class AppendResult>
void TracedCall<Arguments...>::run(bool hasResult, const Work& work,
                                   const AppendResult& appendResult) const {
    Host* const host = isOnWrongThread(m_operation) ? nullptr : Host::current();
    if (!host) {
        return;
    }
    const CallTrace& trace = host->session().trace();
    const bool proceeds = trace.mayProceed(m_operation.name, hasResult);
    const bool isTraced = trace.isRecording();
    std::string call = isTraced ? textOrNothing() : std::string();
    if (proceeds) {
        guarded([&] { work(*host); });
    }
    if (isTraced) {
        guarded([&] {
            if (call.empty()) {
                call = m_operation.name;
            }
            std::string result;
            appendResult(result);
            record(host->session(), std::move(call), std::move(result));
        });
    }
}

template <class... Arguments>
template <class Result, class Work>
Result TracedCall<Arguments...>::answer(Result failure, const Work& work) const {
    Result result = failure;
    run(
        true, [&](Host& host) { result = callWith(host, work); },
        [&](std::string& text) { appendValue(text, result); });
    return result;
}

template <class... Arguments>
template <class Work>
void TracedCall<Arguments...>::perform(const Work& work) const {
    run(
        false, [&](Host& host) { callWith(host, work); }, [](std::string&) {});
}

template <class... Arguments>
bool TracedCall<Arguments...>::misuse(const std::string& what) const {
    reportMisuse(m_operation, what);
    return false;
}

} // namespace corvane::host
