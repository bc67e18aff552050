// The add-on's one exception for errors that are meant for the user.
#pragma once

#include <exception>
#include <string>

namespace corvane::corutiltools {

// what() is the whole text that the user reads. Deliberately not a std::logic_error: the driver
// turns those into its out-of-memory message and lets this one pass.
class KeyFrameError : public std::exception {
public:
    explicit KeyFrameError(const std::string& message);
    ~KeyFrameError() override;

    // Valid as long as the exception lives.
    const char* what() const noexcept override;

private:
    std::string m_message;
};

} // namespace corvane::corutiltools
