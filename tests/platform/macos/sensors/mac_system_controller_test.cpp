#include "platform/macos/sensors/mac_system_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

#include "platform/darwin/smc_record.h"
#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_system_controller_test {
namespace {

class MacSystemControllerTest : public FakeDarwinTest {
  protected:
    void SetUp() override {
        darwin.controller = [](std::span<const std::byte> request, std::span<std::byte> response,
                               std::size_t& size) {
            std::copy(request.begin(), request.end(), response.begin());
            response[SMCRecord::valueOffset] = std::byte{42};
            size = SMCRecord::size - 8;
            return 0;
        };
    }

    struct Answer {
        int result = -1;
        std::size_t size = 7;
        SMCRecord record;
    };
    static Answer ask(MacSystemController& controller) {
        Answer answer;
        const auto service = controller.matchingService();
        if (service == 0) return answer;
        if (const auto connection = controller.open(service); connection != 0) {
            SMCRecord request;
            request.setKey(0x54433050);
            answer.result = controller.callStructMethod(connection, 2, request.bytes(),
                                                        answer.record.bytes(), answer.size);
            controller.close(connection);
        }
        controller.release(service);
        return answer;
    }
};

TEST_F(MacSystemControllerTest, HandsTheRecordsOver) {
    MacSystemController controller(darwin.frameworks());
    const Answer answer = ask(controller);
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.size, 72u);
    EXPECT_EQ(answer.record.key(), 0x54433050u);
    EXPECT_EQ(answer.record.value().front(), std::byte{42});
}

TEST_F(MacSystemControllerTest, LeavesTheSizeAloneWhenTheCallFails) {
    MacSystemController controller(darwin.frameworks());
    darwin.controller = [](auto, auto, std::size_t& size) {
        size = 3;
        return -536870212;
    };
    const Answer answer = ask(controller);
    EXPECT_EQ(answer.result, -536870212);
    EXPECT_EQ(answer.size, 7u);
}

TEST_F(MacSystemControllerTest, HasNoServiceWhereThereIsNoController) {
    MacSystemController controller(darwin.frameworks());
    darwin.controller = nullptr;
    EXPECT_EQ(controller.matchingService(), 0u);
}

TEST_F(MacSystemControllerTest, HasNoConnectionThatCouldNotBeOpened) {
    MacSystemController controller(darwin.frameworks());
    darwin.openFails = true;
    const auto service = controller.matchingService();
    EXPECT_EQ(controller.open(service), 0u);
    EXPECT_EQ(controller.open(0), 0u);
    controller.close(0);
    controller.release(service);
    controller.release(0);
}

TEST_F(MacSystemControllerTest, AsksNothingWithoutATaskToAskFor) {
    const auto frameworks = darwin.frameworks();
    frameworks->task = 0;
    MacSystemController controller(frameworks);
    EXPECT_EQ(controller.matchingService(), 0u);
    SMCRecord record;
    std::size_t size = 7;
    EXPECT_NE(controller.callStructMethod(1, 2, record.bytes(), record.bytes(), size), 0);
    EXPECT_EQ(size, 7u);
    EXPECT_EQ(darwin.callsThatCanFail, 0);
}

TEST_F(MacSystemControllerTest, SurvivesEachFunctionMissing) {
    withEachFunctionMissing([](const std::shared_ptr<const Frameworks>& some) {
        MacSystemController controller(some);
        ask(controller);
    });
}

TEST_F(MacSystemControllerTest, SurvivesEachCallFailing) {
    withEachCallFailing(4, [](const std::shared_ptr<const Frameworks>& some) {
        MacSystemController controller(some);
        ask(controller);
    });
}

TEST_F(MacSystemControllerTest, KeepsNothingOfManyReads) {
    MacSystemController controller(darwin.frameworks());
    manyTimes([&] { ASSERT_EQ(ask(controller).result, 0); });
}

TEST_F(MacSystemControllerTest, AnswersSeveralThreadsAtOnce) {
    MacSystemController controller(darwin.frameworks());
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 100; ++j)
                EXPECT_EQ(ask(controller).result, 0);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace
}  // namespace vantor::mac_system_controller_test
