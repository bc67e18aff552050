#include "host/app/Inputs.h"

#include "host/app/Options.h"
#include "host/core/files/InputFiles.h"

namespace corvane::app {

void noteInputs(const Options& options) {
    host::InputFiles& inputs = host::inputFiles();
    for (const auto* const files : {&options.data, &options.addOns}) {
        for (const std::string& file : *files) {
            inputs.add(file);
        }
    }
    for (const std::string& file : {options.macro, options.keyFrames}) {
        if (!file.empty()) {
            inputs.add(file);
        }
    }
}

} // namespace corvane::app
