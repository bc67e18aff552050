// A file descriptor that is closed with its owner.
#pragma once

#include <unistd.h>
#include <utility>

namespace corvane::host {

class Descriptor {
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other) {
            reset();
            m_number = std::exchange(other.m_number, -1);
        }
        return *this;
    }

    int get() const { return m_number; } ///< -1: none
    void reset() {
        if (m_number >= 0) {
            close(std::exchange(m_number, -1));
        }
    }

private:
    int m_number;
};

} // namespace corvane::host
