// What a host in memory is asked about its add-on, and how it fails.
#include "host/memory/face/MemoryHostHandle.h"

#include <algorithm>
#include <iterator>
#include <numeric>

using namespace corvane;
using namespace corvane::memory;

namespace {

std::vector<std::string> shownOf(CorMemoryHost_s& it, CorMemoryShown_e kind) {
    return it.host->prompts().shown(static_cast<ShownDialog::Kind>(kind));
}

std::vector<std::string> brokenOf(CorMemoryHost_s& it) {
    std::vector<std::string> broken = it.host->leftBehind();
    const std::vector<std::string>& exceptions = it.host->exceptions();
    std::transform(exceptions.begin(), exceptions.end(), std::back_inserter(broken),
                   [](const std::string& exception) { return "exception: " + exception; });
    return broken;
}

std::size_t countFrom(long n) {
    if (n < 0) {
        throw std::invalid_argument("A number is below 0.");
    }
    return static_cast<std::size_t>(n);
}

/// The size of what work(handle) answers.
template <class Work>
long sizeOf(CorMemoryHost handle, const Work& work) {
    return answer(handle, 0L,
                  [&](CorMemoryHost_s& it) { return static_cast<long>(work(it).size()); });
}

} // namespace

CorBool CorMemoryHostAnswer(CorMemoryHost host, const char* partOfQuestion, CorBool yes) {
    return done(host, [&](CorMemoryHost_s& it) {
        it.host->prompts().answer(required(partOfQuestion, "partOfQuestion"), yes != FALSE);
    });
}

CorBool CorMemoryHostAnswerFile(CorMemoryHost host, const char* fileName) {
    return done(host, [&](CorMemoryHost_s& it) {
        it.host->prompts().answerFile(required(fileName, "fileName"));
    });
}

long CorMemoryHostGetShownCount(CorMemoryHost host, CorMemoryShown_e kind) {
    return sizeOf(host, [&](CorMemoryHost_s& it) { return shownOf(it, kind); });
}

const char* CorMemoryHostGetShown(CorMemoryHost host, CorMemoryShown_e kind, long number) {
    return text(host, [&](CorMemoryHost_s& it) { return numbered(shownOf(it, kind), number); });
}

long CorMemoryHostGetCallCount(CorMemoryHost host) {
    return sizeOf(host, [](CorMemoryHost_s& it) { return it.host->records(); });
}

const char* CorMemoryHostGetCall(CorMemoryHost host, long number) {
    return text(host,
                [&](CorMemoryHost_s& it) { return numbered(it.host->records(), number).call; });
}

CorBool CorMemoryHostClearCalls(CorMemoryHost host) {
    return done(host, [](CorMemoryHost_s& it) { it.host->clearCalls(); });
}

CorBool CorMemoryHostFailCall(CorMemoryHost host, long n) {
    return done(host, [&](CorMemoryHost_s& it) { it.host->failAt(countFrom(n)); });
}

CorBool CorMemoryHostHasFailed(CorMemoryHost host) {
    return answer(host, FALSE,
                  [](CorMemoryHost_s& it) { return it.host->hasFailedAt() ? TRUE : FALSE; });
}

CorBool CorMemoryHostFailNext(CorMemoryHost host, const char* operation, long times) {
    return done(host, [&](CorMemoryHost_s& it) {
        it.host->failNext(required(operation, "operation"), countFrom(times));
    });
}

CorBool CorMemoryHostStopAtCheck(CorMemoryHost host, long n) {
    return done(host, [&](CorMemoryHost_s& it) { it.host->stopAtCheck(countFrom(n)); });
}

long CorMemoryHostGetBrokenCount(CorMemoryHost host) {
    return sizeOf(host, brokenOf);
}

const char* CorMemoryHostGetBroken(CorMemoryHost host, long number) {
    return text(host, [&](CorMemoryHost_s& it) { return numbered(brokenOf(it), number); });
}

long CorMemoryHostGetHeldCount(CorMemoryHost host) {
    return answer(host, 0L,
                  [](CorMemoryHost_s&) { return static_cast<long>(MemoryHost::thingsHeld()); });
}

long CorMemoryHostGetPictureCount(CorMemoryHost host) {
    return sizeOf(host, [](CorMemoryHost_s& it) { return it.host->renderer().presented(); });
}

long CorMemoryHostGetMovieFrameCount(CorMemoryHost host) {
    return answer(host, 0L, [](CorMemoryHost_s& it) {
        const auto& movies = it.host->movies().movies();
        return std::accumulate(movies.begin(), movies.end(), 0L,
                               [](long sum, const MemoryMovie& movie) {
                                   return sum + static_cast<long>(movie.pictures);
                               });
    });
}

long CorMemoryHostGetFinishedMovieCount(CorMemoryHost host) {
    return answer(host, 0L, [](CorMemoryHost_s& it) {
        const auto& movies = it.host->movies().movies();
        return static_cast<long>(std::count_if(
            movies.begin(), movies.end(), [](const MemoryMovie& movie) { return movie.finished; }));
    });
}
