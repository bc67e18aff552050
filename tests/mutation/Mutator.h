// Damages files in the ways that programs, disks and networks do, and in worse ones.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace corvane::test {

class Mutator {
public:
    explicit Mutator(std::uint64_t seed) : m_random(seed) {}

    /// The content with one to four damages.
    std::string damaged(std::string content);

private:
    void damageOnce(std::string& content);
    void flipBytes(std::string& content);
    void replaceNumber(std::string& content);
    void replaceBinaryNumber(std::string& content);
    void swapWord(std::string& content);
    void dropLines(std::string& content);
    void repeatLine(std::string& content);
    void nestLine(std::string& content);
    void dropBytes(std::string& content);
    void clearBytes(std::string& content);

    std::size_t below(std::size_t end); ///< 0 when end is
    /// Mostly near the start, where files tell what is in them.
    std::size_t place(const std::string& content);

    std::mt19937_64 m_random;
};

} // namespace corvane::test
