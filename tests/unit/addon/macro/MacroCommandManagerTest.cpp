// The syntax of macro commands.
#include "addon/macro/MacroCommandManager.h"
#include "addon/base/KeyFrameError.h"
#include "addon/macro/MacroKeywords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using Manager = MacroCommandManager<Command_e, Parameter_e, KeyFrameError>;
using Parameters = std::vector<std::pair<Parameter_e, std::string>>;

const Manager manager(" ");

std::vector<std::string> tokensOf(const std::string& text) {
    std::vector<std::string> tokens;
    manager.tokenize(text, tokens);
    return tokens;
}

std::string splitRefusal(const std::string& text) {
    std::vector<std::string> tokens{"before"};
    try {
        manager.tokenize(text, tokens);
    } catch (const KeyFrameError& error) {
        EXPECT_THAT(tokens, ElementsAre("before"));
        return error.what();
    }
    ADD_FAILURE() << "was split: " << text;
    return {};
}

Parameters parametersOf(const std::string& text, Command_e expectedCommand) {
    Command_e command{};
    Parameters parameters{{Parameter_FileName, "from before"}};
    manager.parseMacroCommandString(text, command, parameters);
    EXPECT_EQ(command, expectedCommand);
    return parameters;
}

std::string parseRefusal(const std::string& text) {
    Command_e command = Command_Animate;
    Parameters parameters{{Parameter_FileName, "from before"}};
    try {
        manager.parseMacroCommandString(text, command, parameters);
    } catch (const KeyFrameError& error) {
        EXPECT_EQ(command, Command_Animate);
        EXPECT_THAT(parameters, ElementsAre(Pair(Parameter_FileName, "from before")));
        return error.what();
    }
    ADD_FAILURE() << "was parsed: " << text;
    return {};
}

const std::string badFormat = "Invalid macro command string format.";
const std::string unmatchedQuote = badFormat + " Unmatched quotation mark.";

// --- words

TEST(MacroTokenize, findsNoWordsInNothing) {
    EXPECT_THAT(tokensOf(""), IsEmpty());
    EXPECT_THAT(tokensOf(" "), IsEmpty());
    EXPECT_THAT(tokensOf("     "), IsEmpty());
}

TEST(MacroTokenize, replacesWhatTheOutputHeld) {
    std::vector<std::string> tokens{"before"};
    manager.tokenize("Animate", tokens);
    EXPECT_THAT(tokens, ElementsAre("Animate"));
}

TEST(MacroTokenize, splitsAtBlanks) {
    EXPECT_THAT(tokensOf("Animate"), ElementsAre("Animate"));
    EXPECT_THAT(tokensOf("Animate a=1 b=2"), ElementsAre("Animate", "a=1", "b=2"));
    EXPECT_THAT(tokensOf("  Animate  a=1   b=2"), ElementsAre("Animate", "a=1", "b=2"));
}

TEST(MacroTokenize, doesNotSplitAtTabs) {
    EXPECT_THAT(tokensOf("Animate\ta=1\tb=2"), ElementsAre("Animate\ta=1\tb=2"));
}

TEST(MacroTokenize, wantsNoEqualsSignInTheFirstWord) {
    EXPECT_THAT(tokensOf("=="), ElementsAre("=="));
    EXPECT_THAT(tokensOf("a=\"b c=d"), ElementsAre("a=\"b", "c=d"));
}

TEST(MacroTokenize, letsQuotedValuesHoldBlanks) {
    EXPECT_THAT(tokensOf("A f=\"x y  z\" g=\"\" h=1"),
                ElementsAre("A", "f=\"x y  z\"", "g=\"\"", "h=1"));
    EXPECT_THAT(tokensOf("A f=\"x y\"z g=1"), ElementsAre("A", "f=\"x y\"z", "g=1"));
    EXPECT_THAT(tokensOf("A f=\"x \"y\" z=1"), ElementsAre("A", "f=\"x \"y\"", "z=1"));
}

TEST(MacroTokenize, knowsQuotesAtTheBeginningOfAValueOnly) {
    EXPECT_THAT(tokensOf("A f=x\"y z=\"1\""), ElementsAre("A", "f=x\"y", "z=\"1\""));
}

TEST(MacroTokenize, refusesALaterWordWithoutEqualsSign) {
    EXPECT_EQ(splitRefusal("Animate AnimationDestination"), badFormat);
    EXPECT_EQ(splitRefusal("A b=1 c"), badFormat);
}

TEST(MacroTokenize, looksForTheEqualsSignInTheWholeRest) {
    EXPECT_THAT(tokensOf("A b c=1"), ElementsAre("A", "b", "c=1"));
    // The quote of the later word even joins both.
    EXPECT_THAT(tokensOf("A b c=\"1 2\" d=3"), ElementsAre("A", "b c=\"1 2\"", "d=3"));
}

TEST(MacroTokenize, refusesAnUnmatchedQuote) {
    EXPECT_EQ(splitRefusal("A f=\"x"), unmatchedQuote);
    EXPECT_EQ(splitRefusal("A f=\"x y g=1"), unmatchedQuote);
    EXPECT_EQ(splitRefusal("A f=\""), unmatchedQuote);
}

TEST(MacroTokenize, throwsForATrailingBlank) {
    for (const std::string text : {"Animate ", "Animate   ", "A b=1 ", "A b=\"1 2\" "}) {
        std::vector<std::string> tokens{"before"};
        EXPECT_THROW(manager.tokenize(text, tokens), std::out_of_range) << text;
        EXPECT_THAT(tokens, ElementsAre("before"));
    }
}

TEST(MacroTokenize, splitsAtEachCharacterOfItsDelimiters) {
    std::vector<std::string> tokens;
    Manager(",;").tokenize("A;b=1,;c=\"2,3\"", tokens);
    EXPECT_THAT(tokens, ElementsAre("A", "b=1", "c=\"2,3\""));
}

TEST(MacroTokenize, splitsManyWordsBeforeTheOnlyEqualsSign) {
    constexpr std::size_t count = 200'000;
    std::string text = "A";
    for (std::size_t word = 0; word < count; ++word) {
        text += " b";
    }
    EXPECT_EQ(tokensOf(text + "=").size(), count + 1);
}

// --- parsing

TEST(MacroParse, ignoresLetterCaseOfKeywords) {
    for (const std::string text :
         {"Animate AnimationDestination=OnScreen", "animate animationdestination=OnScreen",
          "ANIMATE  ANIMATIONDESTINATION=OnScreen"}) {
        EXPECT_THAT(parametersOf(text, Command_Animate),
                    ElementsAre(Pair(Parameter_AnimationDestination, "OnScreen")));
    }
}

TEST(MacroParse, leavesValuesAsTheyStand) {
    EXPECT_THAT(parametersOf("animate animationdestination=onscreen", Command_Animate),
                ElementsAre(Pair(Parameter_AnimationDestination, "onscreen")));
    EXPECT_THAT(parametersOf("OpenSettingsFile FileName=/a=b/c.d", Command_OpenSettingsFile),
                ElementsAre(Pair(Parameter_FileName, "/a=b/c.d")));
}

TEST(MacroParse, acceptsACommandAlone) {
    EXPECT_THAT(parametersOf("OpenSettingsFile", Command_OpenSettingsFile), IsEmpty());
}

TEST(MacroParse, keepsDuplicatesAndUnneededParametersInOrder) {
    EXPECT_THAT(
        parametersOf("Animate FileName=a AnimationDestination=b filename=c", Command_Animate),
        ElementsAre(Pair(Parameter_FileName, "a"), Pair(Parameter_AnimationDestination, "b"),
                    Pair(Parameter_FileName, "c")));
}

TEST(MacroParse, removesAllQuotesAroundAValue) {
    for (const auto& [text, value] :
         std::vector<std::pair<std::string, std::string>>{{"\"a b\"", "a b"},
                                                          {"\"\"", ""},
                                                          {"", ""},
                                                          {"\"\"\"a\"\"", "a"},
                                                          {"a\"", "a"},
                                                          {"a\"b", "a\"b"},
                                                          {"\"a \"b\"", "a \"b"},
                                                          {"\"\\\"\"", "\\"}}) {
        EXPECT_THAT(parametersOf("OpenSettingsFile FileName=" + text, Command_OpenSettingsFile),
                    ElementsAre(Pair(Parameter_FileName, value)))
            << text;
    }
}

TEST(MacroParse, refusesNothing) {
    EXPECT_EQ(parseRefusal(""), "Invalid macro command string.");
    EXPECT_EQ(parseRefusal("   "), "Invalid macro command string.");
}

TEST(MacroParse, refusesAnUnknownCommand) {
    EXPECT_EQ(parseRefusal("Fly FileName=a"), "Unknown macro command: Fly");
    EXPECT_EQ(parseRefusal("\"Animate\""), "Unknown macro command: \"Animate\"");
    EXPECT_EQ(parseRefusal("Animate\tFileName=a"), "Unknown macro command: Animate\tFileName=a");
}

TEST(MacroParse, refusesAWordWithoutEqualsSignBeforeOneWithIt) {
    EXPECT_EQ(parseRefusal("Animate OnScreen AnimationDestination=OnScreen"),
              "Invalid macro parameter string: OnScreen");
}

TEST(MacroParse, refusesAnUnknownParameter) {
    EXPECT_EQ(parseRefusal("Animate Foo=1"), "Unknown macro parameter: Foo");
    EXPECT_EQ(parseRefusal("Animate =1"), "Unknown macro parameter: ");
    EXPECT_EQ(parseRefusal("Animate FileName =1"), "Invalid macro parameter string: FileName");
}

TEST(MacroParse, passesTheSplittersErrors) {
    EXPECT_EQ(parseRefusal("Animate AnimationDestination"), badFormat);
    EXPECT_EQ(parseRefusal("OpenSettingsFile FileName=\"a"), unmatchedQuote);
    Command_e command{};
    Parameters parameters;
    EXPECT_THROW(manager.parseMacroCommandString("Animate ", command, parameters),
                 std::out_of_range);
}

// --- building

TEST(MacroBuild, writesKeywordsAsTheTablesDo) {
    EXPECT_EQ(manager.buildMacroCommandString(Command_Animate, {}), "Animate");
    EXPECT_EQ(manager.buildMacroCommandString(
                  Command_Animate,
                  {{Parameter_AnimationDestination, "OnScreen"}, {Parameter_FileName, ""}}),
              "Animate AnimationDestination=OnScreen FileName=");
}

TEST(MacroBuild, quotesValuesWithBlanksOnly) {
    EXPECT_EQ(manager.buildMacroCommandString(Command_OpenSettingsFile,
                                              {{Parameter_FileName, "/my files/a.keyframe"}}),
              "OpenSettingsFile FileName=\"/my files/a.keyframe\"");
    EXPECT_EQ(
        manager.buildMacroCommandString(Command_OpenSettingsFile, {{Parameter_FileName, "a\tb"}}),
        "OpenSettingsFile FileName=a\tb");
}

TEST(MacroBuild, writesQuotesAsTheyStand) {
    EXPECT_EQ(
        manager.buildMacroCommandString(Command_OpenSettingsFile, {{Parameter_FileName, "a\"b c"}}),
        "OpenSettingsFile FileName=\"a\"b c\"");
}

TEST(MacroBuild, refusesAnEnumeratorWithoutKeyword) {
    for (
        const auto build :
        {+[] { manager.buildMacroCommandString(static_cast<Command_e>(2), {}); },
         +[] {
             manager.buildMacroCommandString(Command_Animate, {{static_cast<Parameter_e>(2), "x"}});
         }}) {
        try {
            build();
            FAIL() << "was built";
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "Enumeration out of range.");
        }
    }
}

TEST(MacroBuild, isReadBack) {
    for (const std::string value :
         {"a", "", "/my files/a b.keyframe", "C:\\x y\\z", "x=y", "x = y", "\xC3\xA4 \xC3\xB6"}) {
        const Parameters parameters{{Parameter_FileName, value}, {Parameter_FileName, "b"}};
        const std::string text =
            manager.buildMacroCommandString(Command_OpenSettingsFile, parameters);
        EXPECT_EQ(parametersOf(text, Command_OpenSettingsFile), parameters) << text;
    }
}

} // namespace
