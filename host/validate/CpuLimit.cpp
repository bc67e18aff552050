#include "host/validate/CpuLimit.h"

#include <algorithm>
#include <sys/resource.h>

namespace corvane::validate {

void allowComputing(unsigned seconds) {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    rlimit limit{};
    getrlimit(RLIMIT_CPU, &limit);
    const auto spent = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
    // One more, since both times are cut off.
    limit.rlim_cur = std::min(limit.rlim_max, spent + 1 + seconds);
    setrlimit(RLIMIT_CPU, &limit);
}

} // namespace corvane::validate
