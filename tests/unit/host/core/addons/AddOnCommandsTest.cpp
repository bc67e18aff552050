// Tests of add-on commands by name.
#include "host/core/addons/AddOnCommands.h"

#include <gtest/gtest.h>

namespace corvane::host {
namespace {

TEST(AddOnCommandsTest, findsCommandsByTheirExactName) {
    AddOnCommands commands;
    EXPECT_TRUE(commands.add("Flight", [](const std::string& text) { return text + "!"; }));
    ASSERT_NE(commands.find("Flight"), nullptr);
    EXPECT_EQ((*commands.find("Flight"))("go"), "go!");
    EXPECT_EQ(commands.find("flight"), nullptr);
    EXPECT_EQ(commands.find(""), nullptr);
    EXPECT_EQ(commands.names(), std::vector<std::string>{"Flight"});
}

TEST(AddOnCommandsTest, aNameIsTakenOnce) {
    AddOnCommands commands;
    EXPECT_FALSE(commands.add("", [](const std::string&) { return std::nullopt; }));
    EXPECT_TRUE(commands.add("A", [](const std::string&) { return "first"; }));
    EXPECT_FALSE(commands.add("A", [](const std::string&) { return "second"; }));
    EXPECT_EQ((*commands.find("A"))(""), "first");
}

} // namespace
} // namespace corvane::host
