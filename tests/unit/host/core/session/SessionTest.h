// A session whose listeners are watched.
#pragma once

#include "tests/support/HostTest.h"

#include <memory>
#include <string>
#include <vector>

namespace corvane::host {

class SessionTest : public test::EmptyHostTest {
protected:
    SessionTest() {
        host.reader().provide(data);
        session.stateChanges().addListener(&SessionTest::listen, this);
    }

    static void listen(StateChange_e change, void* clientData) {
        static_cast<SessionTest*>(clientData)->told.push_back(change);
    }
    /// Data are loaded, drawn and told of.
    void open() {
        session.openData({"x"});
        settle();
    }
    void settle() {
        session.drawing().drawIfDue();
        told.clear();
    }
    Frame& frame() { return host.frame(); }
    std::vector<std::string> errors() {
        return host.prompts().shown(test::ShownDialog::Kind::Error);
    }

    std::shared_ptr<DataSet> data = test::makeVolumeData();
    Session& session = host.session();
    std::vector<StateChange_e> told;
};

} // namespace corvane::host
