#include "taskqueue.h"

#include <gmock/gmock.h>
#include <thread>

using testing::ElementsAre;
using namespace std::chrono_literals;

namespace {

QueuedTask enableTask(bool enable)
{
    QueuedTask entry;
    entry.task = SessionTasks::TaskApplyEnableState;
    entry.request = EnableRequest{enable, false};
    return entry;
}

void pushAll(TaskQueue &queue, std::initializer_list<int> codes)
{
    for (int code : codes)
        queue.push(static_cast<SessionTasks::Task>(code));
}

} // namespace

TEST(TaskQueue, RunsTasksInTheOrderOfAsking)
{
    TaskQueue queue;
    pushAll(queue, {4, 9, 3, 9});
    EXPECT_THAT(queue.codes(), ElementsAre(4, 9, 3, 9));
}

TEST(TaskQueue, ATaskKeepsWhatWasAskedWhenItWasQueued)
{
    TaskQueue queue;
    QueuedTask setpoint;
    setpoint.task = SessionTasks::TaskSetAbsoluteSetpoint;
    for (int target : {100, -200}) {
        setpoint.request = SetpointRequest{target};
        queue.push(setpoint);
    }
    QueuedTask taken;
    ASSERT_TRUE(queue.take(taken));
    EXPECT_EQ(std::get<SetpointRequest>(taken.request).setpoint, 100);
    ASSERT_TRUE(queue.take(taken));
    EXPECT_EQ(std::get<SetpointRequest>(taken.request).setpoint, -200);
    EXPECT_FALSE(queue.take(taken));
}

TEST(TaskQueue, ADisableOvertakesEverythingAndDropsWhatWouldMove)
{
    TaskQueue queue;
    pushAll(queue, {3, 12, 15, 27, 4, 28, 30, 16});
    queue.push(enableTask(true));
    queue.push(enableTask(false));
    EXPECT_THAT(queue.codes(), ElementsAre(11, 3, 4, 16));
    QueuedTask first;
    ASSERT_TRUE(queue.take(first));
    EXPECT_TRUE(first.isDisable());
}

TEST(TaskQueue, ARepeatedDisableDoesNotPileUp)
{
    TaskQueue queue;
    queue.push(SessionTasks::TaskGetParams);
    for (int i = 0; i < 5; ++i)
        queue.push(enableTask(false));
    EXPECT_THAT(queue.codes(), ElementsAre(11, 4));
}

TEST(TaskQueue, AnEnableWaitsItsTurnAlsoBehindADisable)
{
    TaskQueue queue;
    queue.push(SessionTasks::TaskGetParams);
    queue.push(enableTask(false));
    queue.push(enableTask(true));
    EXPECT_THAT(queue.codes(), ElementsAre(11, 4, 11));
    QueuedTask taken;
    EXPECT_TRUE(queue.takeDisable(taken));
    EXPECT_FALSE(queue.takeDisable(taken)) << "an enable is not to be served out of turn";
    EXPECT_THAT(queue.codes(), ElementsAre(4, 11));
}

TEST(TaskQueue, ADisconnectClearsWhatWaitsButStopsAndTheUsersChoices)
{
    TaskQueue queue;
    queue.push(enableTask(true));
    queue.push(enableTask(false));
    pushAll(queue, {4, 3, 9, 14, 27, 5, 16, 26, 23, 1, 2});
    EXPECT_THAT(queue.codes(), ElementsAre(11, 3, 14, 16, 26, 2));
}

TEST(TaskQueue, ADisconnectWaitsBehindARestart)
{
    for (int restart : {25, 29}) {
        TaskQueue queue;
        pushAll(queue, {4, restart, 9, 2});
        EXPECT_THAT(queue.codes(), ElementsAre(4, restart, 9, 2));
    }
}

TEST(TaskQueue, TheDisconnectAfterAnErrorGoesAheadOfAllButStops)
{
    TaskQueue queue;
    pushAll(queue, {3, 26, 4, 26, 16, 16});
    queue.push(enableTask(false));
    queue.pushDisconnectFirst();
    queue.pushDisconnectFirst();
    EXPECT_THAT(queue.codes(), ElementsAre(11, 26, 16, 2, 3, 4));
}

TEST(TaskQueue, OneScanWaitsAtATimeTheNewest)
{
    TaskQueue queue;
    QueuedTask scan;
    scan.task = SessionTasks::TaskScanBus;
    scan.request = ScanRequest{"/dev/ttyS0"};
    queue.push(scan);
    queue.push(SessionTasks::TaskSaveSettingsFile);
    scan.request = ScanRequest{"/dev/ttyS1"};
    queue.push(scan);
    EXPECT_THAT(queue.codes(), ElementsAre(21, 23));
    QueuedTask taken;
    ASSERT_TRUE(queue.take(taken));
    ASSERT_TRUE(queue.take(taken));
    EXPECT_EQ(std::get<ScanRequest>(taken.request).portName, "/dev/ttyS1");
}

TEST(TaskQueue, ClosingDisconnectsThenQuitsAndEndsPauses)
{
    TaskQueue queue;
    pushAll(queue, {4, 14, 21, 22});
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
        queue.push(enableTask(true));
        queue.push(enableTask(false));
    });
    EXPECT_EQ(queue.pauseUntil(std::chrono::steady_clock::now() + 1h), TaskQueue::Wake::Disable);
    user.join();
    QueuedTask taken;
    ASSERT_TRUE(queue.takeDisable(taken));
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
