// Reads data that tests made.
#include "tests/support/MemoryReader.h"

#include "host/core/base/HostError.h"
#include "tests/support/MemoryData.h"

#include <utility>

namespace corvane::test {

std::shared_ptr<const host::DataSet> MemoryReader::read(const std::vector<std::string>& files) {
    m_reads.push_back(files);
    if (!m_failure.empty()) {
        throw host::HostError(std::exchange(m_failure, {}));
    }
    return m_data ? m_data : makeTransientData(files);
}

} // namespace corvane::test
