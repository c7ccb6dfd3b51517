#include "wqspcfg/platform/framework/Mutex.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

// Whether another thread can have the mutex at once.
bool IsFree(CMutex& mutex)
{
    bool free = false;
    std::thread([&] { free = mutex.Lock(0) && mutex.Unlock(); }).join();
    return free;
}

TEST(Mutex, IsRecursiveAndBelongsToItsThread)
{
    CMutex mutex;
    EXPECT_FALSE(mutex.Unlock());
    EXPECT_TRUE(IsFree(mutex));
    EXPECT_TRUE(mutex.Lock());
    EXPECT_TRUE(mutex.Lock(10));
    std::thread([&] {
        EXPECT_FALSE(mutex.Lock(5));
        EXPECT_FALSE(mutex.Unlock());
    }).join();
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_FALSE(IsFree(mutex));
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_TRUE(IsFree(mutex));
    EXPECT_FALSE(mutex.Unlock());

    CMutex owned(TRUE);
    EXPECT_FALSE(IsFree(owned));
    EXPECT_TRUE(owned.Unlock());
}

TEST(Mutex, SingleLockUnlocksWhatItLocked)
{
    CMutex mutex;
    {
        CSingleLock lock(&mutex, TRUE);
        EXPECT_TRUE(lock.Lock()); // no second time
        EXPECT_FALSE(IsFree(mutex));
        EXPECT_TRUE(lock.Unlock());
        EXPECT_FALSE(lock.Unlock());
        EXPECT_TRUE(IsFree(mutex));
        EXPECT_TRUE(lock.Lock());
    }
    EXPECT_TRUE(IsFree(mutex));
    mutex.Lock();
    std::thread([&] {
        CSingleLock lock(&mutex);
        EXPECT_FALSE(lock.Lock(0));
        EXPECT_FALSE(lock.IsLocked());
    }).join();
    mutex.Unlock();
}

TEST(Mutex, ExcludesOtherThreads)
{
    CMutex mutex;
    int counter = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 2000; ++n) {
                CSingleLock outer(&mutex, TRUE);
                CSingleLock inner(&mutex, TRUE);
                ++counter;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counter, 8000);
    EXPECT_TRUE(IsFree(mutex));
}

} // namespace
