// The state of a page comes back from its text, equal to the bit.
#include "host/core/page/PageStateText.h"

#include "host/core/base/HostError.h"
#include "host/core/page/Page.h"
#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PageStateTextTest : public testing::Test {
protected:
    PageStateTextTest() {
        auto named = std::make_shared<DataSet>(*test::makeTransientData());
        named->files = {"/data/a \"b\"\n=.vtu", "c d.vtu"};
        data = named;
        Frame& frame = page.createFrame({0.1, 0.2, 0.3, 1.0 / 3.0});
        frame.attachData(data);
        chooseDefaultPlots(frame);
        page.createFrame({}).plotType = PlotType_Cartesian2D;
        page.activate(1);
    }

    PageState again(const PageState& state) {
        return pageStateFromText(toText(state), [this](const std::vector<std::string>& files) {
            asked.push_back(files);
            return data;
        });
    }
    std::string refusalOf(const std::string& text) {
        try {
            pageStateFromText(text, [this](const auto&) { return data; });
        } catch (const HostError& error) {
            return error.what();
        }
        return {};
    }
    /// The text with one line more, or another one in its place.
    static std::string with(std::string text, const std::string& line, const std::string& other) {
        const std::size_t at = text.find(line);
        return at == std::string::npos ? "no such line" : text.replace(at, line.size(), other);
    }

    std::shared_ptr<const DataSet> data;
    Page page;
    std::vector<std::vector<std::string>> asked;
};

/// Gives a value to each leaf that is unlike the one before, and hard to write down.
class Shuffle {
public:
    explicit Shuffle(unsigned seed) : m_random(seed) {}

    void values(const StyleTree& styles) {
        for (const StyleLeaf& leaf : styles.leaves()) {
            std::visit([&](auto* target) { change(leaf, *target); }, leaf.target);
        }
    }

private:
    void change(const StyleLeaf&, bool& value) { value = m_random() % 2 == 0; }
    void change(const StyleLeaf& leaf, int& value) {
        const auto range = static_cast<unsigned>(leaf.maximum - leaf.minimum) + 1U;
        value = static_cast<int>(leaf.minimum) + static_cast<int>(m_random() % range);
    }
    void change(const StyleLeaf& leaf, double& value) {
        static constexpr double odd[] = {-0.0, 0.1, 1e-300, 5e-324, 1.0 / 3.0, 1e300, -2.5e-7};
        const double chosen = odd[m_random() % std::size(odd)];
        value = chosen >= leaf.minimum && chosen <= leaf.maximum
                    ? chosen
                    : std::nextafter(leaf.minimum, leaf.maximum);
    }
    void change(const StyleLeaf& leaf, std::string& value) {
        if (!leaf.choices.empty()) {
            value = leaf.choices[m_random() % leaf.choices.size()];
        } else if (!leaf.accepts) {
            value = "a \"b\" \\ = ü\n" + std::to_string(m_random());
        }
    }

    std::minstd_rand m_random;
};

bool isSameToTheBit(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST_F(PageStateTextTest, isReadBackAsAnEqualState) {
    const PageState state = page.state();
    EXPECT_EQ(again(state), state);
    EXPECT_THAT(asked, ElementsAre(data->files));
}

TEST_F(PageStateTextTest, keepsEveryValueToTheBit) {
    for (unsigned seed = 1; seed <= 50; ++seed) {
        Frame& frame = *page.find(1);
        Shuffle(seed).values(frame.styles());
        frame.solutionTime = -1.0 / seed;
        const PageState state = page.state();
        const PageState read = again(state);
        ASSERT_EQ(read, state) << "seed " << seed << "\n" << toText(state);
        ASSERT_EQ(toText(read), toText(state)) << "seed " << seed;
        ASSERT_TRUE(isSameToTheBit(read.frames[1].style.slices[0].position,
                                   state.frames[1].style.slices[0].position));
    }
}

TEST_F(PageStateTextTest, isIndependentOfTheOrderOfTheValues) {
    // The width can be set without perspective only; here both are put back.
    Frame& frame = *page.find(1);
    frame.view.perspective = true;
    frame.view.width = 17.25;
    const PageState state = page.state();
    EXPECT_EQ(again(state).frames[1].view, state.frames[1].view);
}

TEST_F(PageStateTextTest, writesAnEmptyPage) {
    const PageState state = Page().state();
    EXPECT_EQ(again(state), state);
}

TEST_F(PageStateTextTest, refusesWhatIsNoState) {
    EXPECT_THAT(refusalOf(""), HasSubstr("corvane-page 1"));
    EXPECT_THAT(refusalOf("$!VIEW FIT\n"), HasSubstr("corvane-page 1"));
}

TEST_F(PageStateTextTest, refusesATextThatIsCutOffAnywhere) {
    const std::string text = toText(page.state());
    for (std::size_t length = 0; length + 1 < text.size(); ++length) {
        if (text[length] != '\n' || text.find('\n', length + 1) == std::string::npos) {
            continue;
        }
        EXPECT_NE(refusalOf(text.substr(0, length)), "") << length;
    }
}

TEST_F(PageStateTextTest, namesTheLineAndTheCause) {
    const std::string text = toText(page.state());
    EXPECT_THAT(refusalOf(with(text, "workarea ", "hall ")),
                testing::AllOf(HasSubstr("Line 2"), HasSubstr("\"hall\" is not known")));
    EXPECT_THAT(refusalOf(with(text, "end 1", "end 7")), HasSubstr("no frame 7"));
    EXPECT_THAT(refusalOf(with(text, "frame 1", "frame 2")), HasSubstr("number of a frame"));
    EXPECT_THAT(refusalOf(with(text, "frame 1", "frame -1")), HasSubstr("number of a frame"));
    EXPECT_THAT(refusalOf(with(text, "frame 1", "frame x")), HasSubstr("\"x\" is not a number"));
    EXPECT_THAT(refusalOf(with(text, "set Slice/1/Axis ", "set Slice/1/Axis 9 #")),
                HasSubstr("number of words"));
    EXPECT_THAT(refusalOf(with(text, "set Slice/1/Axis ", "set Slice/1/Axis 9")),
                HasSubstr("Slice/1/Axis cannot be"));
    EXPECT_THAT(refusalOf(with(text, "set Slice/1/Axis ", "set Slice/1/Knob ")),
                HasSubstr("no value Slice/1/Knob"));
    EXPECT_THAT(refusalOf(with(text, "plottype ", "plottype 99")), HasSubstr("plot type"));
    EXPECT_THAT(refusalOf(with(text, "workarea 1280", "workarea -5 #")),
                HasSubstr("number of words"));
    EXPECT_THAT(refusalOf(with(text, "time ", "time nan#")), HasSubstr("number"));
    EXPECT_THAT(refusalOf(text + "end 1\n"), HasSubstr("follows the end"));
    EXPECT_THAT(refusalOf("corvane-page 1\ntime 1\n"), HasSubstr("no frame yet"));
}

TEST_F(PageStateTextTest, passesOnWhyDataCannotBeRead) {
    const std::string text = toText(page.state());
    try {
        pageStateFromText(text, [](const auto&) -> std::shared_ptr<const DataSet> {
            throw HostError("There is no a.vtu.");
        });
        FAIL();
    } catch (const HostError& error) {
        EXPECT_THAT(error.what(), HasSubstr("There is no a.vtu."));
    }
}

} // namespace
} // namespace corvane::host
