// A small data set without a file.
#include "host/memory/MemoryData.h"

#include <utility>

namespace corvane::memory {

namespace {

std::shared_ptr<host::DataSet> makeData(std::vector<std::string> files) {
    auto data = std::make_shared<host::DataSet>();
    data->files = std::move(files);
    data->variables = {{.name = "pressure", .components = 1, .minimum = 0.0, .maximum = 1.0},
                       {.name = "velocity", .components = 3, .minimum = 0.0, .maximum = 2.0}};
    data->bounds.add({0.0, 0.0, 0.0});
    data->bounds.add({1.0, 2.0, 3.0});
    return data;
}

} // namespace

std::shared_ptr<host::DataSet> makeTransientData(std::vector<std::string> files) {
    auto data = makeData(std::move(files));
    data->blocks = {{.name = "flow", .dimension = 3}, {.name = "body", .dimension = 2}};
    for (const double time : {0.0, 1.0, 2.0}) {
        data->zones.push_back({.block = 0, .solutionTime = time, .strand = 1});
    }
    data->zones.push_back({.block = 1});
    return data;
}

std::shared_ptr<host::DataSet> makeStaticData(std::vector<std::string> files) {
    auto data = makeData(std::move(files));
    data->blocks = {{.name = "body", .dimension = 2}};
    data->zones = {{.block = 0}};
    return data;
}

std::shared_ptr<host::DataSet> makeVolumeData() {
    auto data = std::make_shared<host::DataSet>();
    data->blocks = {{.name = "internal", .dimension = 3}};
    data->zones = {{.block = 0}};
    data->variables = {{.name = "p", .components = 1, .minimum = -2.0, .maximum = 4.0},
                       {.name = "U", .components = 3, .minimum = 0.0, .maximum = 8.0}};
    data->bounds = {{0, 0, 0}, {4, 2, 1}};
    return data;
}

} // namespace corvane::memory
