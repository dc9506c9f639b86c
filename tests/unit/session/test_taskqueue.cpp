#include "taskqueue.h"

#include <gmock/gmock.h>
#include <thread>

using testing::ElementsAre;
using namespace std::chrono_literals;

namespace {

QueuedTask enableTask(bool enable)
{
    return {SessionTasks::TaskApplyEnableState, EnableRequest{enable, false}};
}

} // namespace

TEST(TaskQueue, PutsStopsFirstAndKeepsTheOrderOfTheRest)
{
    constexpr int enable = 100, disable = 101, lineLost = 102;
    const std::tuple<const char *, std::vector<int>, std::vector<int>> rows[] = {
        {"as asked", {4, 9, 3, 9}, {4, 9, 3, 9}},
        {"a disable drops what would move", {3, 12, 15, 27, 4, 28, 30, 16, enable, disable}, {11, 3, 4, 16}},
        {"a repeated disable does not pile up", {4, disable, disable, disable}, {11, 4}},
        {"an enable waits behind a disable", {4, disable, enable}, {11, 4, 11}},
        {"a disconnect clears all but stops and the user's choices",
         {enable, disable, 4, 3, 9, 14, 27, 5, 16, 26, 23, 1, 2},
         {11, 3, 14, 16, 26, 2}},
        {"a disconnect waits behind a restart", {4, 25, 9, 2}, {4, 25, 9, 2}},
        {"of either kind", {4, 29, 9, 2}, {4, 29, 9, 2}},
        {"the disconnect after an error goes ahead of all but stops",
         {3, 26, 4, 26, 16, 16, disable, lineLost, lineLost},
         {11, 26, 16, 2, 3, 4}},
    };
    for (const auto &[what, pushed, queued] : rows) {
        TaskQueue queue;
        for (const int code : pushed) {
            if (code == lineLost)
                queue.pushDisconnectFirst();
            else if (code == enable || code == disable)
                queue.push(enableTask(code == enable));
            else
                queue.push(static_cast<SessionTasks::Task>(code));
        }
        EXPECT_EQ(queue.codes(), queued) << what;
    }
}

TEST(TaskQueue, OneScanWaitsAtATimeTheNewest)
{
    TaskQueue queue;
    queue.push(QueuedTask{SessionTasks::TaskScanBus, ScanRequest{"/dev/ttyS0"}});
    queue.push(SessionTasks::TaskSaveSettingsFile);
    queue.push(QueuedTask{SessionTasks::TaskScanBus, ScanRequest{"/dev/ttyS1"}});
    EXPECT_THAT(queue.codes(), ElementsAre(21, 23));
    QueuedTask taken;
    ASSERT_TRUE(queue.take(taken));
    ASSERT_TRUE(queue.take(taken));
    EXPECT_EQ(std::get<ScanRequest>(taken.request).portName, "/dev/ttyS1");
}

TEST(TaskQueue, ClosingDisconnectsThenQuitsAndEndsPauses)
{
    TaskQueue queue;
    for (int code : {4, 14, 21, 22})
        queue.push(static_cast<SessionTasks::Task>(code));
    EXPECT_FALSE(queue.isClosing());
    queue.close();
    queue.close();
    EXPECT_THAT(queue.codes(), ElementsAre(14, 2, 21, 8)) << "a file that was asked for is still written";
    EXPECT_TRUE(queue.isClosing());
    EXPECT_FALSE(queue.isClosing(1h));
    EXPECT_EQ(queue.pauseUntil(std::chrono::steady_clock::now() + 1h), TaskQueue::Wake::Closing);
}

TEST(TaskQueue, APauseIsInterruptedByADisableOnly)
{
    TaskQueue queue;
    std::thread user([&queue] {
        queue.push(SessionTasks::TaskGetParams);
        for (const bool enable : {true, false, true})
            queue.push(enableTask(enable));
    });
    EXPECT_EQ(queue.pauseUntil(std::chrono::steady_clock::now() + 1h), TaskQueue::Wake::Disable);
    user.join();
    QueuedTask taken;
    EXPECT_TRUE(queue.takeDisable(taken) && taken.isDisable());
    EXPECT_FALSE(queue.takeDisable(taken)) << "only a disable is served out of turn";
    EXPECT_THAT(queue.codes(), ElementsAre(4, 11));
    EXPECT_EQ(queue.pauseUntil(std::chrono::steady_clock::now()), TaskQueue::Wake::TimeOver);
}

TEST(TaskQueue, WaitingEndsWhenATaskArrives)
{
    TaskQueue queue;
    std::thread user([&queue] { queue.push(SessionTasks::TaskCheckErrors); });
    queue.waitForTask(1h);
    EXPECT_THAT(queue.codes(), ElementsAre(9));
    user.join();
}
