// Registration of add-ons.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class AddOnApiTest : public EmptyHostTest {};

TEST_F(AddOnApiTest, registeringCopiesTheStrings) {
    std::string name = "Kites";
    const CorAddOnID id = CorUtilAddOnRegister(110, name.c_str(), "1.2", "Somebody");
    name = "other";
    ASSERT_THAT(host.session().addOns().all(), SizeIs(1));
    const CorAddOn_s& addOn = *host.session().addOns().all().front();
    EXPECT_EQ(&addOn, id);
    EXPECT_EQ(addOn.interfaceNumber, 110);
    EXPECT_EQ(addOn.name, "Kites");
    EXPECT_EQ(addOn.version, "1.2");
    EXPECT_EQ(addOn.author, "Somebody");
}

TEST_F(AddOnApiTest, anIdIsTracedByItsName) {
    const CorAddOnID id = CorUtilAddOnRegister(110, "Kites", "1", "S");
    CorUtilLockStart(id);
    CorUtilLockFinish(id);
    CorUtilLockStart(nullptr);
    CorUtilLockFinish(nullptr);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilAddOnRegister(110, \"Kites\", \"1\", \"S\")",
                            "CorUtilLockStart(\"Kites\")", "CorUtilLockFinish(\"Kites\")",
                            "CorUtilLockStart(NULL)", "CorUtilLockFinish(NULL)"));
    EXPECT_EQ(host.records().front().result, "\"Kites\"");
}

TEST_F(AddOnApiTest, anotherInterfaceNumberIsReportedAndStillGetsAnId) {
    host.expectMisuse("Kites was made for interface 111, this host offers 110");
    EXPECT_NE(CorUtilAddOnRegister(111, "Kites", "1", "S"), nullptr);
}

TEST_F(AddOnApiTest, withoutANameNothingIsRegistered) {
    host.expectMisuse("CorUtilAddOnRegister: name is NULL");
    EXPECT_EQ(CorUtilAddOnRegister(110, nullptr, "1", "S"), nullptr);
    EXPECT_THAT(host.session().addOns().all(), SizeIs(0));
}

TEST_F(AddOnApiTest, versionAndAuthorMayBeMissing) {
    ASSERT_NE(CorUtilAddOnRegister(110, "Kites", nullptr, nullptr), nullptr);
    EXPECT_EQ(host.session().addOns().all().front()->version, "");
    EXPECT_EQ(host.session().addOns().all().front()->author, "");
}

} // namespace
} // namespace corvane::test
