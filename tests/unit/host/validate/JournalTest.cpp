// What is written is read again, whatever add-ons are called.
#include "host/validate/Journal.h"

#include "host/core/process/Descriptor.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <unistd.h>

using namespace corvane::validate;

namespace {

class JournalTest : public testing::Test {
protected:
    JournalTest() {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        m_readEnd = corvane::host::Descriptor(ends[0]);
        m_writeEnd = corvane::host::Descriptor(ends[1]);
    }
    Journal journal() const { return Journal(m_writeEnd.get()); }
    /// The one line that was written.
    JournalLine line() const {
        std::array<char, 1000> bytes{};
        const ssize_t count = read(m_readEnd.get(), bytes.data(), bytes.size());
        const std::string text(bytes.data(), static_cast<std::size_t>(count));
        EXPECT_EQ(text.find('\n'), text.size() - 1);
        return readJournalLine(text.substr(0, text.size() - 1)).value();
    }

private:
    corvane::host::Descriptor m_readEnd;
    corvane::host::Descriptor m_writeEnd;
};

TEST_F(JournalTest, keepsActionsApartFromWhatHappenedInThem) {
    journal().at({"pressing \"A\tB\nC\"", "when its call 1"});
    const JournalLine read = line();
    EXPECT_EQ(read.kind, JournalLine::Kind::At);
    EXPECT_EQ(read.action.what, "pressing \"A B C\"");
    EXPECT_EQ(read.action.condition, "when its call 1");
}

TEST_F(JournalTest, keepsFindings) {
    journal().broken({Rule::Movies, {"here", "now"}, "that"});
    const JournalLine read = line();
    EXPECT_EQ(read.kind, JournalLine::Kind::Broken);
    EXPECT_EQ(read.finding.rule, Rule::Movies);
    EXPECT_EQ(read.finding.action.text(), "here, now");
    EXPECT_EQ(read.finding.what, "that");
}

TEST_F(JournalTest, keepsCountsAndSigns) {
    journal().counts({1, 2, 3});
    EXPECT_EQ(line().counts.stops, 3U);
    journal().fails("CorUtilRedraw");
    EXPECT_EQ(line().operation, "CorUtilRedraw");
    journal().failureWasReached();
    EXPECT_EQ(line().kind, JournalLine::Kind::FailureReached);
    journal().end();
    EXPECT_EQ(line().kind, JournalLine::Kind::End);
}

TEST(JournalLine, ofAnotherKindIsNone) {
    for (const char* const text : {"", "at", "broken\t99\ta\tb", "broken\t1", "ending"}) {
        EXPECT_FALSE(readJournalLine(text)) << text;
    }
}

} // namespace
