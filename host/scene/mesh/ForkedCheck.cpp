#include "host/scene/mesh/ForkedCheck.h"

#include "host/core/base/HostError.h"
#include "host/core/process/Helper.h"

namespace corvane::scene {

bool survives(const host::Task& task, const std::vector<std::string>& arguments,
              const TrialTime& time) {
    try {
        host::Helper helper(task, arguments, {.cpuSeconds = time.cpuSeconds});
        const auto end = helper.waitFor(time.patience);
        return end && end->isExit();
    } catch (const host::HostError&) {
        return true;
    }
}

} // namespace corvane::scene
