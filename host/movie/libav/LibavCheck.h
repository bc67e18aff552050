// Turns error codes of libav into HostErrors that name the movie.
#pragma once

#include <string>

namespace corvane::movie {

class LibavCheck {
public:
    explicit LibavCheck(std::string path) : m_path(std::move(path)) {}

    const std::string& path() const { return m_path; }

    /// Returns the code, or throws if it is an error. The action completes "... while ...", for
    /// example "opening the file".
    int operator()(int code, const char* action) const;

    /// Returns the pointer, or throws if it is null, which is how libav reports lack of memory.
    template <typename T>
    T* made(T* pointer) const {
        if (!pointer) {
            fail("there is not enough memory");
        }
        return pointer;
    }

    /// Throws a HostError with the movie's path and the reason.
    [[noreturn]] void fail(const std::string& reason) const;

private:
    std::string m_path;
};

} // namespace corvane::movie
