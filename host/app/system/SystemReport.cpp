#include "host/app/system/SystemReport.h"

#include "host/app/system/Bundle.h"
#include "host/app/system/DriverChoice.h"
#include "host/core/base/HostError.h"
#include "host/gui/base/WindowLibraries.h"
#include "host/movie/MovieLibraries.h"
#include "host/scene/vtk/EglContext.h"
#include "host/scene/vtk/VtkVersion.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <exception>
#include <gnu/libc-version.h>
#include <sched.h>
#include <sys/sysinfo.h>
#include <sys/utsname.h>
#include <typeinfo>
#include <vector>

namespace corvane::app {

namespace {

std::string line(const char* name, const std::string& text) {
    std::string label = name;
    label.resize(std::max<std::size_t>(label.size() + 1, 10), ' ');
    return label + text + '\n';
}

/// The file that the library with this object was loaded from.
std::string libraryOf(const void* object) {
    Dl_info info{};
    if (dladdr(object, &info) == 0 || info.dli_fname == nullptr) {
        return "unknown";
    }
    std::error_code none;
    const auto file = std::filesystem::canonical(info.dli_fname, none);
    return none ? info.dli_fname : file.string();
}

std::string place() {
    const auto bundle = Bundle::find();
    return bundle ? "all in one folder, " + bundle->folder().string()
                  : libraryOf(reinterpret_cast<const void*>(&reportSystem));
}

std::string inOneLine(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text.empty() ? "none" : text;
}

/// The files that describe drivers, where libglvnd looks for them unless it is told otherwise.
std::vector<std::string> installedDrivers() {
    std::vector<std::string> files;
    for (const char* folder : {"/etc/glvnd/egl_vendor.d", "/usr/share/glvnd/egl_vendor.d"}) {
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(folder, none)) {
            files.push_back(entry.path());
        }
    }
    return files;
}

std::string foundForDrawing(const Graphics& graphics) {
    return line("devices", inOneLine(graphics.devices)) +
           line("drivers", graphics.driverFiles.empty() ? inOneLine(installedDrivers())
                                                        : graphics.driverFiles);
}

SystemReport reportDrawing() {
    const std::string found = foundForDrawing(Graphics::ofThisMachine());
    const DriverChoice choice = settleDriver();
    const std::string chosen =
        std::string(choice.isBundled ? "the bundled driver" : "the system's driver") + ": " +
        choice.reason;
    try {
        const scene::DrawingDriver driver = scene::EglContext().driver();
        return {line("pictures", driver.renderer + ", OpenGL " + driver.version) +
                    line("", chosen) + found,
                true};
    } catch (const std::exception& error) {
        return {line("pictures", host::messageOf(error)) + line("", chosen) + found, false};
    }
}

std::string displays() {
    std::string text;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (const char* const value = std::getenv(name); value != nullptr) {
            text += std::string("; ") + name + '=' + value;
        }
    }
    return text.empty() ? "; no display" : text;
}

int usableCores() {
    cpu_set_t cores;
    CPU_ZERO(&cores);
    return sched_getaffinity(0, sizeof cores, &cores) == 0 ? CPU_COUNT(&cores) : 1;
}

std::string machine() {
    struct sysinfo memory {};
    sysinfo(&memory);
    const auto mebibytes =
        static_cast<unsigned long long>(memory.totalram) * memory.mem_unit >> 20U;
    return std::to_string(usableCores()) + " cores, " + std::to_string(mebibytes) +
           " MiB of memory";
}

std::string kernel() {
    utsname system{};
    uname(&system);
    return std::string(system.sysname) + ' ' + system.release + ' ' + system.machine;
}

} // namespace

SystemReport reportSystem() {
    const SystemReport drawing = reportDrawing();
    return {"corvane " CORVANE_VERSION "\n" + line("program", place()) + drawing.text +
                line("windows", gui::windowLibraries() + displays()) +
                line("movies", movie::movieLibraries()) +
                line("data", "VTK " + scene::vtkVersionText()) +
                line("C, C++", std::string("glibc ") + gnu_get_libc_version() + ", " +
                                   libraryOf(&typeid(std::exception))) +
                line("system", kernel()) + line("machine", machine()),
            drawing.canDraw};
}

} // namespace corvane::app
