// Feeds files to a fuzzed function without a fuzzer: the seeds, and what fuzzers found before.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void replay(const std::filesystem::path& file) {
    // Named first, so that a crash tells where it happened.
    std::cout << file.string() << std::endl;
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

// Arguments: folders. Fails when one of them is missing or all of them hold nothing.
int main(int argumentCount, char** arguments) {
    std::size_t count = 0;
    for (int index = 1; index < argumentCount; ++index) {
        for (const auto& entry : std::filesystem::directory_iterator(arguments[index])) {
            // A hidden file keeps an empty folder in the repository.
            if (entry.path().filename().string().front() != '.') {
                replay(entry.path());
                ++count;
            }
        }
    }
    if (count == 0) {
        std::cerr << "nothing to replay\n";
    }
    return count == 0 ? 1 : 0;
}
