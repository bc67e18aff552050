// Damages data files of all formats in some thousand ways, and opens them.
//   mutate_data [--seed N] [--count N] [--only NAME] [--keep FOLDER] [--tell yes]
// --count  mutations of each sample
// --only   samples whose names begin so
// --keep   where inputs go that bring the program down; by default mutation-findings
// --tell   what is said of those that are refused
// Ends with 1 when one does.
#include "tests/mutation/Attack.h"

#include "host/core/process/ProcessServer.h"

#include <iostream>
#include <stdexcept>

namespace {

using namespace corvane::test;

struct Options {
    AttackOptions attack{.kept = "mutation-findings"};
    std::string only;
};

Options parsed(int argc, char** argv) {
    Options options;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string name = argv[i];
        const std::string value = argv[i + 1];
        if (name == "--seed") {
            options.attack.seed = std::stoull(value);
        } else if (name == "--count") {
            options.attack.count = std::stoi(value);
        } else if (name == "--only") {
            options.only = value;
        } else if (name == "--keep") {
            options.attack.kept = value;
        } else if (name == "--tell") {
            options.attack.tellsRefusals = value == "yes";
        } else {
            throw std::invalid_argument("unknown option " + name);
        }
    }
    return options;
}

} // namespace

int main(int argc, char** argv) {
    const corvane::host::ProcessServer server;
    const Options options = parsed(argc, argv);
    int tried = 0;
    int found = 0;
    for (const MutationSample& sample : mutationSamples()) {
        if (!sample.name.starts_with(options.only)) {
            continue;
        }
        const AttackResult result = attack(sample, options.attack);
        std::cout << sample.name << ": " << result.opened << " opened, " << result.refused
                  << " refused, " << result.findings.size() << " found" << std::endl;
        for (const std::string& finding : result.findings) {
            std::cout << "    " << finding << std::endl;
        }
        tried += options.attack.count;
        found += static_cast<int>(result.findings.size());
    }
    std::cout << tried << " mutations, " << found << " findings" << std::endl;
    return found == 0 ? 0 : 1;
}
