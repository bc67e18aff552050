// What files in the making are called.
#pragma once

#include <string>
#include <string_view>

namespace corvane::host {

/// A file in the making of "NAME" is called "NAME.HOST-PID.part", or "NAME.HOST-PID-2.part" where
/// that is taken, so that it tells which process of which machine makes it. Of a long NAME only the
/// beginning is used: there is always room for the rest.
class PartName {
public:
    /// fileName: without its folder. That of a file in the making stands for what it is to become.
    /// longest: the most bytes that a name may have there.
    PartName(std::string_view fileName, std::size_t longest);

    std::string numbered(int number) const; ///< of this process; numbers count from 1
    /// Whether a process of this machine gives such a name to what becomes the same file.
    bool matches(std::string_view fileName) const;

private:
    std::string m_beginning; ///< of NAME
};

/// Whether processes of this machine give such names.
bool isPartName(std::string_view fileName);

} // namespace corvane::host
