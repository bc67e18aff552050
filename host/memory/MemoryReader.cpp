// Reads data that tests made.
#include "host/memory/MemoryReader.h"

#include "host/core/base/HostError.h"
#include "host/memory/MemoryData.h"

#include <utility>

namespace corvane::memory {

std::shared_ptr<const host::DataSet> MemoryReader::read(const std::vector<std::string>& files) {
    m_reads.push_back(files);
    if (!m_failure.empty()) {
        throw host::HostError(std::exchange(m_failure, {}));
    }
    return m_data ? m_data : makeTransientData(files);
}

} // namespace corvane::memory
