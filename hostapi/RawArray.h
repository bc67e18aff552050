// Growable array for host calls that take a pointer and a count.
#pragma once

#include <cstddef>
#include <vector>

namespace corvane {

// Contiguous elements of T. Pointers from data() are valid until the next append() or clear().
template <class T>
class RawArray {
public:
    RawArray() {}
    explicit RawArray(std::size_t n) : m_v(n) {}

    std::size_t size() const { return m_v.size(); }
    bool empty() const { return m_v.empty(); }

    void append(const T& v) { m_v.push_back(v); }
    void clear() { m_v.clear(); }

    T* data() { return m_v.data(); }
    const T* data() const { return m_v.data(); }

    // Index from 0; not checked.
    T& operator[](std::size_t i) { return m_v[i]; }
    const T& operator[](std::size_t i) const { return m_v[i]; }

private:
    std::vector<T> m_v;
};

} // namespace corvane
