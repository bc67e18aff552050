// A host in memory that plays macros.
#pragma once

#include "host/core/macro/MacroText.h"
#include "tests/support/HostTest.h"

#include <sstream>
#include <string>

namespace corvane::host {

class MacroTest : public test::EmptyHostTest {
protected:
    MacroTest() { host.reader().provide(test::makeVolumeData()); }

    void play(const std::string& text) {
        std::istringstream macro(text);
        program.macros().play(macro, "test.macro", "/scenes");
    }
    /// The cause alone, without file, line and text.
    std::string causeOf(const std::string& text) {
        try {
            play(text);
        } catch (const MacroError& error) {
            const std::string what = error.what();
            return what.substr(what.find('\n') + 1);
        }
        return {};
    }
    Frame& frame() { return *session.silentPage().active(); }

    Host& program = host.program();
    Session& session = host.session();
};

} // namespace corvane::host
