// Want of memory on cue: this program has an operator new of its own.
#pragma once

#include <cstddef>

namespace corvane::test {

/// While it lives, the n-th allocation by new (1 = the next one) throws std::bad_alloc, and so do
/// those after it up to the given count. One at a time; of one thread.
class FailingNew {
public:
    explicit FailingNew(std::size_t n, std::size_t count = 1);
    ~FailingNew();
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;

    /// Whether there was an n-th one.
    bool hasFailed() const;

    /// For what the test itself does meanwhile: that is neither counted nor does it fail.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        bool m_wasArmed;
    };
};

} // namespace corvane::test
