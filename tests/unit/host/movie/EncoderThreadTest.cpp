// The queue between drawing and encoding, with sinks that tests control.
#include "host/movie/EncoderThread.h"

#include "host/core/base/HostError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace corvane::movie_test {
namespace {

using movie::EncoderThread;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

/// The number of a picture is its width.
host::Picture numberedPicture(int number) {
    host::Picture picture;
    picture.width = number;
    return picture;
}

/// What a sink saw; outlives the sink.
struct SinkLog {
    std::vector<int> written;
    bool finished = false;
    bool destroyed = false;
};

class RecordingSink : public movie::PictureSink {
public:
    explicit RecordingSink(SinkLog& log) : m_log(log) {}
    ~RecordingSink() override { m_log.destroyed = true; }
    void write(const host::Picture& picture) override { m_log.written.push_back(picture.width); }
    void finish() override { m_log.finished = true; }

private:
    SinkLog& m_log;
};

/// Does what the test says for each picture, on the encoder's thread.
class ScriptedSink : public movie::PictureSink {
public:
    explicit ScriptedSink(std::function<void(int)> onWrite) : m_onWrite(std::move(onWrite)) {}
    void write(const host::Picture& picture) override { m_onWrite(picture.width); }
    void finish() override {}

private:
    std::function<void(int)> m_onWrite;
};

TEST(EncoderThread, writesAllPicturesInTheirOrder) {
    SinkLog log;
    EncoderThread writer(std::make_unique<RecordingSink>(log), 4);
    std::vector<int> expected(1000);
    std::iota(expected.begin(), expected.end(), 0);
    for (const int n : expected) {
        writer.add(numberedPicture(n));
    }
    writer.finish();
    EXPECT_EQ(log.written, expected);
    EXPECT_TRUE(log.finished);
}

TEST(EncoderThread, makesTheProducerWaitForASlowSink) {
    std::promise<void> gate;
    std::shared_future<void> gateOpen = gate.get_future().share();
    std::atomic<int> added = 0;
    EncoderThread writer(std::make_unique<ScriptedSink>([&](int) { gateOpen.wait(); }), 3);
    auto producer = std::async(std::launch::async, [&] {
        for (int n = 0; n < 50; ++n) {
            writer.add(numberedPicture(n));
            ++added;
        }
    });
    // One picture is at the sink, three wait, and the fifth is not taken however long it takes.
    EXPECT_EQ(producer.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout);
    EXPECT_LE(added, 4);
    EXPECT_LE(writer.waiting(), 3U);
    gate.set_value();
    producer.get();
    EXPECT_EQ(added, 50);
    writer.finish();
}

TEST(EncoderThread, neverHoldsMorePicturesThanItsBound) {
    for (const std::size_t bound : {1U, 2U, 4U}) {
        std::atomic<std::size_t> most = 0;
        std::promise<EncoderThread*> self;
        std::shared_future<EncoderThread*> writerReady = self.get_future().share();
        EncoderThread writer(std::make_unique<ScriptedSink>([&](int) {
                                 most = std::max(most.load(), writerReady.get()->waiting());
                             }),
                             bound);
        self.set_value(&writer);
        for (int n = 0; n < 500; ++n) {
            writer.add(numberedPicture(n));
        }
        writer.finish();
        EXPECT_LE(most, bound);
        EXPECT_EQ(writer.waiting(), 0U);
    }
}

TEST(EncoderThread, tellsTheCauseAtTheNextPicture) {
    EncoderThread writer(
        std::make_unique<ScriptedSink>([](int) { throw host::HostError("the disk is full"); }), 1);
    const auto addMany = [&] {
        for (int n = 0; n < 4; ++n) { // at most one fails, one waits, and one is taken meanwhile
            writer.add(numberedPicture(n));
        }
    };
    EXPECT_THAT(addMany, ThrowsMessage<host::HostError>("the disk is full"));
    EXPECT_THAT([&] { writer.add(numberedPicture(9)); },
                ThrowsMessage<host::HostError>("the disk is full"));
    EXPECT_THAT([&] { writer.finish(); }, ThrowsMessage<host::HostError>("the disk is full"));
}

TEST(EncoderThread, tellsTheCauseAtTheEnd) {
    EncoderThread writer(
        std::make_unique<ScriptedSink>([](int) { throw host::HostError("the disk is full"); }), 4);
    writer.add(numberedPicture(0));
    EXPECT_THAT([&] { writer.finish(); }, ThrowsMessage<host::HostError>("the disk is full"));
}

TEST(EncoderThread, freesAProducerThatWaitsWhenTheSinkFails) {
    std::promise<void> gate;
    std::shared_future<void> gateOpen = gate.get_future().share();
    EncoderThread writer(std::make_unique<ScriptedSink>([&](int) {
                             gateOpen.wait();
                             throw host::HostError("the encoder failed");
                         }),
                         1);
    auto producer = std::async(std::launch::async, [&] {
        for (int n = 0; n < 50; ++n) {
            writer.add(numberedPicture(n));
        }
    });
    EXPECT_EQ(producer.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
    gate.set_value();
    EXPECT_THAT([&] { producer.get(); }, ThrowsMessage<host::HostError>("the encoder failed"));
    EXPECT_EQ(writer.waiting(), 0U);
}

TEST(EncoderThread, turnsOtherExceptionsIntoHostErrors) {
    EncoderThread writer(std::make_unique<ScriptedSink>([](int) { throw std::bad_alloc(); }), 4);
    writer.add(numberedPicture(0));
    EXPECT_THAT([&] { writer.finish(); },
                ThrowsMessage<host::HostError>(HasSubstr("There is not enough memory")));
}

TEST(EncoderThread, writesNothingAfterAFailure) {
    std::vector<int> seen;
    EncoderThread writer(std::make_unique<ScriptedSink>([&](int number) {
                             seen.push_back(number);
                             if (number == 2) {
                                 throw host::HostError("the disk is full");
                             }
                         }),
                         2);
    const auto addAll = [&] {
        for (int n = 0; n < 100; ++n) {
            writer.add(numberedPicture(n));
        }
    };
    EXPECT_THROW(addAll(), host::HostError);
    EXPECT_THROW(writer.finish(), host::HostError);
    EXPECT_THAT(seen, ElementsAre(0, 1, 2));
}

TEST(EncoderThread, dropsWaitingPicturesWhenDestroyedUnfinished) {
    std::vector<int> seen;
    std::promise<EncoderThread*> self;
    std::shared_future<EncoderThread*> writerReady = self.get_future().share();
    std::promise<void> started;
    std::promise<void> destroying;
    std::shared_future<void> isDestroying = destroying.get_future().share();
    auto writer = std::make_unique<EncoderThread>(
        std::make_unique<ScriptedSink>([&](int number) {
            seen.push_back(number);
            if (number == 0) {
                started.set_value();
            }
            isDestroying.wait();
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(120);
            while (writerReady.get()->waiting() > 0 &&
                   std::chrono::steady_clock::now() < deadline) {
                std::this_thread::yield();
            }
        }),
        4);
    self.set_value(writer.get());
    for (int n = 0; n < 4; ++n) {
        writer->add(numberedPicture(n));
    }
    started.get_future().wait();
    destroying.set_value();
    writer.reset();
    EXPECT_THAT(seen, ElementsAre(0));
}

TEST(EncoderThread, destroysItsSinkUnfinished) {
    SinkLog log;
    { const EncoderThread writer(std::make_unique<RecordingSink>(log), 4); }
    EXPECT_FALSE(log.finished);
    EXPECT_TRUE(log.destroyed);
}

TEST(EncoderThread, takesNoPictureAfterTheEnd) {
    SinkLog log;
    EncoderThread writer(std::make_unique<RecordingSink>(log), 4);
    writer.add(numberedPicture(0));
    writer.finish();
    EXPECT_THROW(writer.add(numberedPicture(1)), std::logic_error);
    EXPECT_THAT(log.written, ElementsAre(0));
}

TEST(MostWaitingPictures, boundsTheirMemory) {
    EXPECT_EQ(movie::mostWaitingPictures(1, 1), 4U);
    EXPECT_EQ(movie::mostWaitingPictures(1920, 1080), 4U);
    EXPECT_EQ(movie::mostWaitingPictures(3840, 2160), 4U);
    EXPECT_EQ(movie::mostWaitingPictures(5000, 5000), 2U);
    EXPECT_EQ(movie::mostWaitingPictures(16384, 16384), 1U);
}

} // namespace
} // namespace corvane::movie_test
