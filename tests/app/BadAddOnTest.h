// Runs of the program with an add-on that breaks the rules.
#pragma once

#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvane::test {

inline const std::string badAddOn = builtFile("tests/libraries/BadAddOn.so");

inline std::string badCommands(const std::vector<std::string>& deeds) {
    std::string macro = "$!READDATA \"" + exampleFile("wake/wake.pvd") + "\"\n";
    for (const std::string& deed : deeds) {
        macro += "$!EXTCOMMAND \"Bad Add-On\" \"" + deed + "\"\n";
    }
    return macro;
}

class BadAddOnTest : public testing::Test {
protected:
    ProgramResult perform(const std::vector<std::string>& deeds,
                          const std::vector<std::string>& more = {"--batch"}) {
        folder.write("bad.mcr", badCommands(deeds));
        std::vector<std::string> arguments = more;
        arguments.insert(arguments.end(), {"--add-on", badAddOn, "--macro", folder.file("bad.mcr"),
                                           "--trace", folder.file("calls")});
        return runProgram(arguments);
    }
    std::string trace() const { return folder.read("calls"); }
    std::string misuse(const std::string& what) const { return "misuse: BadAddOn.so: " + what; }

    const TempFolder folder;
};

} // namespace corvane::test
