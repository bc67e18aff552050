// What comes with the program when all of it was unpacked from one archive: libraries, fonts and a
// driver that draws without a graphics device, none of which the system needs to have.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace corvane::app {

class Bundle {
public:
    /// Empty when the program was installed as a package, or runs where it was built.
    static std::optional<Bundle> find();
    explicit Bundle(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    const std::filesystem::path& folder() const { return m_folder; }
    /// Describes the bundled driver to EGL.
    std::string driverFile() const;

    /// From now on EGL and Mesa use the bundled driver, and no other one. For the process and what
    /// it starts; before anything is drawn.
    void useDriver() const;
    /// Fonts and keyboard tables that the system lacks are taken from here.
    void lendFiles() const;

private:
    std::filesystem::path m_folder;
};

/// To be called first in main(): undoes what starting the program from a bundle took, so that
/// programs that this one starts find the system as it is, and lends the files of the bundle.
void settleIn();

} // namespace corvane::app
