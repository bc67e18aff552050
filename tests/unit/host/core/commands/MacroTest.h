// A host in memory that plays macros.
#pragma once

#include "host/core/macro/MacroText.h"
#include "tests/unit/host/core/Fakes.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace corvane::host {

class MacroTest : public testing::Test {
protected:
    MacroTest() { host.reader.data = fakes::volumeData(); }

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
    Frame& frame() { return *session.page().active(); }

    fakes::FakeHost host;
    Host& program = host.program;
    Session& session = host.session;
};

} // namespace corvane::host
