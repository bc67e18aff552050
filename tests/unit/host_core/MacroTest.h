// A host in memory that plays macros.
#pragma once

#include "host/core/macro/MacroText.h"
#include "tests/unit/host_core/Fakes.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace corvane::host {

class MacroTest : public testing::Test {
protected:
    MacroTest() { host.reader.data = fakes::volumeData(); }

    void play(const std::string& text) {
        std::istringstream macro(text);
        app.macros().play(macro, "test.macro", "/scenes");
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
    Frame& frame() { return *app.page().active(); }

    fakes::FakeHost host;
    Application& app = host.app;
};

} // namespace corvane::host
