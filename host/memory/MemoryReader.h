// Reads data that tests made.
#pragma once

#include "host/core/ports/Ports.h"

#include <memory>
#include <string>
#include <vector>

namespace corvane::memory {

/// Any file holds the transient data of makeTransientData, unless a test said otherwise.
class MemoryReader : public host::DataReader {
public:
    std::vector<host::DataFormat> formats() const override { return {{{".mem"}, "Data of tests"}}; }
    std::shared_ptr<const host::DataSet> read(const std::vector<std::string>& files) override;

    /// What the next reads give.
    void provide(std::shared_ptr<const host::DataSet> data) { m_data = std::move(data); }
    /// The next read throws HostError with this message.
    void failNext(std::string message) { m_failure = std::move(message); }

    /// The file names of each read so far.
    const std::vector<std::vector<std::string>>& reads() const { return m_reads; }
    void clear() { m_reads.clear(); }

private:
    std::shared_ptr<const host::DataSet> m_data;
    std::string m_failure;
    std::vector<std::vector<std::string>> m_reads;
};

} // namespace corvane::memory
