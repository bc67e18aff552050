// The links of a chain.
#include "addon/engine/AnimatorAbstract.h"

#include "addon/base/KeyFrameError.h"
#include "addon/engine/AnimatorOnScreen.h"
#include "tests/unit/addon/EngineTest.h"

#include <memory>

namespace corvane::test {
namespace {

using corutiltools::AnimatorAbstract;
using corutiltools::AnimatorOnScreen;
using corutiltools::KeyFrameError;

using Log = std::vector<std::string>;

// Writes down what it is asked for.
class Scribe : public AnimatorAbstract {
public:
    Scribe(const KeyFrames& keyFrames, Log& log, std::string name, AnimatorAbstract* next = nullptr)
        : AnimatorAbstract(keyFrames, next), m_log(log), m_name(std::move(name)) {}
    ~Scribe() override { m_log.push_back(m_name + " gone"); }

    void drawFrameAtIndex(unsigned long index) override {
        m_log.push_back(m_name + " draws " + std::to_string(index));
    }
    void cancelAnimation() override {
        m_log.push_back(m_name + " cancels");
        AnimatorAbstract::cancelAnimation();
    }

private:
    Log& m_log;
    std::string m_name;
};

// Fails after its base is complete.
class Failure : public AnimatorAbstract {
public:
    Failure(const KeyFrames& keyFrames, AnimatorAbstract* next)
        : AnimatorAbstract(keyFrames, next) {
        throw std::runtime_error("construction failed");
    }
    void drawFrameAtIndex(unsigned long) override {}
};

class AnimatorAbstractTest : public EngineTest {
protected:
    const KeyFrames keyFrames = keyFramesWithCounts({10, 20, 5});
    Log log;
};

TEST_F(AnimatorAbstractTest, drawsFromTheHeadOn) {
    Scribe head(keyFrames, log, "a",
                new Scribe(keyFrames, log, "b", new Scribe(keyFrames, log, "c")));
    head.drawFrame(7);
    EXPECT_THAT(log, ElementsAre("a draws 7", "b draws 7", "c draws 7"));
}

TEST_F(AnimatorAbstractTest, cancelsFromTheHeadOn) {
    Scribe head(keyFrames, log, "a", new Scribe(keyFrames, log, "b"));
    head.cancelAnimation();
    EXPECT_THAT(log, ElementsAre("a cancels", "b cancels"));
}

TEST_F(AnimatorAbstractTest, takesTheRestOfTheChainWithIt) {
    { Scribe head(keyFrames, log, "a", new Scribe(keyFrames, log, "b")); }
    EXPECT_THAT(log, ElementsAre("a gone", "b gone"));
}

TEST_F(AnimatorAbstractTest, countsTheFramesOfTheWholeFlight) {
    EXPECT_EQ(Scribe(keyFrames, log, "a").numTotalFrames(), 31u);
}

TEST_F(AnimatorAbstractTest, refusesFewerThanTwoKeyFramesAndTakesItsSuccessorWithIt) {
    auto* next = new Scribe(keyFrames, log, "next");
    try {
        Scribe(keyFramesWithCounts({30}), log, "head", next);
        FAIL() << "one key frame was accepted";
    } catch (const KeyFrameError& error) {
        EXPECT_STREQ(error.what(),
                     "At least two keyFrame views must be established to perform an animation.");
    }
    EXPECT_THAT(log, ElementsAre("next gone"));
    EXPECT_THROW(Scribe({}, log, "head"), KeyFrameError);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorAbstractTest, thatFailsInADerivedConstructorTakesItsSuccessorWithIt) {
    EXPECT_THROW(Failure(keyFrames, new Scribe(keyFrames, log, "next")), std::runtime_error);
    EXPECT_THAT(log, ElementsAre("next gone"));
}

TEST_F(AnimatorAbstractTest, onScreenRedrawsFully) {
    AnimatorOnScreen animator(keyFrames, nullptr);
    host.clearCalls();
    animator.drawFrame(3);
    EXPECT_THAT(calls(), ElementsAre("CorUtilRedraw(TRUE)"));
    EXPECT_EQ(host.renderer().renders(), 1u);
}

} // namespace
} // namespace corvane::test
