// The life of a host in memory: data, add-ons, idle time, macros.
#include "host/core/macro/MacroText.h"
#include "host/core/session/AddOnLoader.h"
#include "host/memory/face/MemoryHostHandle.h"

#include <sstream>

using namespace corvane;
using namespace corvane::memory;

CorMemoryHost_s::CorMemoryHost_s(bool hasWindows)
    : host(hasWindows ? std::make_unique<MemoryHost>(MemoryHost::Empty{})
                      : std::make_unique<MemoryHost>(MemoryHost::Windowless{})) {}

namespace {

void addZones(host::DataSet& data, const double* times, long count) {
    const int block = static_cast<int>(data.blocks.size()) - 1;
    if (times == nullptr || count <= 0) {
        data.zones.push_back({.block = block});
        return;
    }
    for (long i = 0; i < count; ++i) {
        data.zones.push_back({.block = block, .solutionTime = times[i], .strand = block + 1});
    }
}

host::Vec3 pointFrom(const double* numbers, const char* name) {
    required(numbers, name);
    return {numbers[0], numbers[1], numbers[2]};
}

std::shared_ptr<const host::DataSet> takeData(CorMemoryHost_s& it) {
    auto data = std::make_shared<host::DataSet>(std::exchange(it.data, {}));
    if (data->blocks.empty() && data->variables.empty()) {
        return makeTransientData();
    }
    if (data->bounds.isEmpty()) {
        data->bounds.add({0.0, 0.0, 0.0});
        data->bounds.add({1.0, 1.0, 1.0});
    }
    data->files = {"data.mem"};
    return data;
}

} // namespace

CorMemoryHost CorMemoryHostCreate(CorBool hasWindows) {
    try {
        return std::make_unique<CorMemoryHost_s>(hasWindows != FALSE).release();
    } catch (const std::exception&) {
        return nullptr;
    }
}

void CorMemoryHostDestroy(CorMemoryHost* host) {
    if (host != nullptr) {
        const std::unique_ptr<CorMemoryHost_s> owned(std::exchange(*host, nullptr));
    }
}

const char* CorMemoryHostGetError(CorMemoryHost host) {
    return host != nullptr ? host->error.c_str() : "";
}

CorBool CorMemoryHostAddBlock(CorMemoryHost host, const char* name, int dimension,
                              const double* times, long timeCount) {
    return done(host, [&](CorMemoryHost_s& it) {
        it.data.blocks.push_back({.name = required(name, "name"), .dimension = dimension});
        addZones(it.data, times, timeCount);
    });
}

CorBool CorMemoryHostAddVariable(CorMemoryHost host, const char* name, int components, double least,
                                 double greatest) {
    return done(host, [&](CorMemoryHost_s& it) {
        it.data.variables.push_back({.name = required(name, "name"),
                                     .components = components,
                                     .minimum = least,
                                     .maximum = greatest});
    });
}

CorBool CorMemoryHostSetExtent(CorMemoryHost host, const double* low, const double* high) {
    return done(host, [&](CorMemoryHost_s& it) {
        it.data.bounds = {pointFrom(low, "low"), pointFrom(high, "high")};
    });
}

CorBool CorMemoryHostLoadData(CorMemoryHost host) {
    return done(host, [](CorMemoryHost_s& it) {
        it.host->reader().provide(takeData(it));
        it.host->session().openData({"data.mem"});
    });
}

CorBool CorMemoryHostRemoveData(CorMemoryHost host) {
    return done(host, [](CorMemoryHost_s& it) { it.host->setData(nullptr); });
}

CorBool CorMemoryHostLoadAddOn(CorMemoryHost host, const char* library) {
    return done(host, [&](CorMemoryHost_s& it) {
        if (!host::loadAddOn(it.host->session(), required(library, "library"))) {
            throw std::runtime_error("The entry point let an exception out: " +
                                     it.host->exceptions().back());
        }
    });
}

CorBool CorMemoryHostCallEntryPoint(CorMemoryHost host, void (*entryPoint)(void)) {
    return done(host, [&](CorMemoryHost_s& it) {
        required(entryPoint, "entryPoint");
        const std::string error = it.host->session().callAddOn("InitCorAddOn113", entryPoint);
        if (!error.empty()) {
            throw std::runtime_error("The entry point let an exception out: " + error);
        }
    });
}

CorBool CorMemoryHostRunIdle(CorMemoryHost host) {
    return done(host, [](CorMemoryHost_s& it) { it.host->runIdle(); });
}

CorBool CorMemoryHostRunMacro(CorMemoryHost host, const char* lines) {
    return done(host, [&](CorMemoryHost_s& it) {
        std::istringstream macro(required(lines, "lines"));
        it.host->program().macros().play(macro, "macro", ".");
    });
}

CorBool CorMemoryHostStartRecording(CorMemoryHost host) {
    return done(host, [](CorMemoryHost_s& it) { it.host->program().recorder().start(); });
}

long CorMemoryHostGetRecordedCount(CorMemoryHost host) {
    return answer(host, 0L, [](CorMemoryHost_s& it) {
        return static_cast<long>(it.host->program().recorder().lines().size());
    });
}

const char* CorMemoryHostGetRecorded(CorMemoryHost host, long number) {
    return text(host, [&](CorMemoryHost_s& it) {
        return numbered(it.host->program().recorder().lines(), number);
    });
}

CorBool CorMemoryHostQuit(CorMemoryHost host) {
    return done(host, [](CorMemoryHost_s& it) { it.host->session().quit(); });
}
