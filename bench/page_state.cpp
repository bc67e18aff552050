// How long does it take to take the state of a page, to put it back, and to write it down?
#include "host/core/page/Page.h"
#include "host/core/page/PageStateText.h"
#include "tests/support/MemoryHost.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace corvane::test {
namespace {

/// As many blocks as an external-aerodynamics case has patches.
std::shared_ptr<const host::DataSet> manyBlocks(int count) {
    auto data = std::make_shared<host::DataSet>(*makeTransientData());
    data->files = {"case.foam"};
    data->blocks.resize(static_cast<std::size_t>(count), {"patch", 2});
    return data;
}

class PageOfBlocks {
public:
    explicit PageOfBlocks(int count) : data(manyBlocks(count)) {
        host::Frame& frame = page.createFrame({});
        frame.attachData(data);
        host::chooseDefaultPlots(frame);
    }

    std::shared_ptr<const host::DataSet> data;
    host::Page page;
};

void takeState(benchmark::State& run) {
    const PageOfBlocks shown(static_cast<int>(run.range(0)));
    for (auto _ : run) {
        benchmark::DoNotOptimize(shown.page.state());
    }
}

void compareStates(benchmark::State& run) {
    const PageOfBlocks shown(static_cast<int>(run.range(0)));
    const host::PageState first = shown.page.state();
    const host::PageState second = shown.page.state();
    for (auto _ : run) {
        benchmark::DoNotOptimize(first == second);
    }
}

void putStateBack(benchmark::State& run) {
    PageOfBlocks shown(static_cast<int>(run.range(0)));
    const host::PageState state = shown.page.state();
    for (auto _ : run) {
        shown.page.putBack(state);
    }
}

void writeAndReadState(benchmark::State& run) {
    const PageOfBlocks shown(static_cast<int>(run.range(0)));
    const host::PageState state = shown.page.state();
    for (auto _ : run) {
        const host::PageState again =
            host::pageStateFromText(host::toText(state), [&](const auto&) { return shown.data; });
        if (again != state) {
            run.SkipWithError("The state that was read differs from the one that was written.");
            break;
        }
    }
}

BENCHMARK(takeState)->Arg(2)->Arg(73);
BENCHMARK(compareStates)->Arg(2)->Arg(73);
BENCHMARK(putStateBack)->Arg(2)->Arg(73);
BENCHMARK(writeAndReadState)->Arg(2)->Arg(73);

} // namespace
} // namespace corvane::test

BENCHMARK_MAIN();
