// What a shared cache keeps, and how threads share it.
#include "host/scene/data/SharedCache.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <stdexcept>
#include <string>
#include <thread>

namespace corvane::test {

namespace {

using Cache = scene::SharedCache<int, std::string>;

std::size_t lengthOf(const std::string& text) {
    return text.size();
}

/// Tells which keys it had to make.
class Counted {
public:
    explicit Counted(std::size_t budget) : cache(budget, lengthOf) {}

    std::string get(int key) {
        return cache.get(key, [&] {
            made.push_back(key);
            return std::string(10, static_cast<char>('a' + key));
        });
    }

    Cache cache;
    std::vector<int> made;
};

} // namespace

TEST(SharedCache, makesAValueOnce) {
    Counted counted(1000);
    EXPECT_EQ(counted.get(1), "bbbbbbbbbb");
    EXPECT_EQ(counted.get(1), "bbbbbbbbbb");
    EXPECT_THAT(counted.made, testing::ElementsAre(1));
    EXPECT_TRUE(counted.cache.has(1));
    EXPECT_FALSE(counted.cache.has(2));
}

TEST(SharedCache, dropsWhatWasUsedLongestAgo) {
    Counted counted(30);
    for (const int key : {1, 2, 3, 1, 4}) { // 2 must go
        counted.get(key);
    }
    EXPECT_FALSE(counted.cache.has(2));
    for (const int key : {1, 3, 4}) {
        EXPECT_TRUE(counted.cache.has(key)) << key;
    }
}

TEST(SharedCache, keepsTheLastOneHoweverLarge) {
    Counted counted(0);
    counted.get(1);
    EXPECT_TRUE(counted.cache.has(1));
    counted.get(2);
    EXPECT_FALSE(counted.cache.has(1));
    EXPECT_TRUE(counted.cache.has(2));
}

TEST(SharedCache, forgetsWhatItIsTold) {
    Counted counted(1000);
    for (const int key : {1, 2, 3, 4}) {
        counted.get(key);
    }
    counted.cache.forget([](int key) { return key % 2 == 0; });
    EXPECT_TRUE(counted.cache.has(1) && counted.cache.has(3));
    EXPECT_FALSE(counted.cache.has(2) || counted.cache.has(4));
    Counted full(20);
    full.get(1);
    full.get(2);
    full.cache.forget([](int) { return true; });
    full.get(3);
    full.get(4);
    EXPECT_TRUE(full.cache.has(3)) << "what was forgotten takes no room";
}

TEST(SharedCache, afterAFailureTheNextOneTriesAgain) {
    Cache cache(100, lengthOf);
    const auto fail = []() -> std::string { throw std::runtime_error("unreadable"); };
    EXPECT_THROW(cache.get(1, fail), std::runtime_error);
    EXPECT_THROW(cache.get(1, fail), std::runtime_error);
    EXPECT_EQ(cache.get(1, [] { return std::string("read"); }), "read");
}

TEST(SharedCache, twoThreadsThatWantTheSameMakeItOnce) {
    Cache cache(100, lengthOf);
    std::atomic<int> made{0};
    std::latch started(2);
    const auto ask = [&] {
        started.arrive_and_wait();
        EXPECT_EQ(cache.get(7,
                            [&] {
                                ++made;
                                return std::string("seven");
                            }),
                  "seven");
    };
    std::thread other(ask);
    ask();
    other.join();
    EXPECT_EQ(made, 1);
}

TEST(SharedCache, makingOneDoesNotHoldUpAnother) {
    Cache cache(100, lengthOf);
    std::latch isMaking(1);
    std::latch mayEnd(1);
    std::thread slow([&] {
        cache.get(1, [&] {
            isMaking.count_down();
            mayEnd.wait();
            return std::string("slow");
        });
    });
    isMaking.wait();
    EXPECT_EQ(cache.get(2, [] { return std::string("quick"); }), "quick");
    mayEnd.count_down();
    slow.join();
    EXPECT_TRUE(cache.has(1));
}

} // namespace corvane::test
