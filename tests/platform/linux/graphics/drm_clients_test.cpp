#include "platform/linux/graphics/drm_clients.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/fake_graphics.h"

namespace vantor::drm_clients_test {
namespace {

constexpr std::uint64_t millisecond = 1'000'000;

std::string said(int client, std::uint64_t milliseconds, const char* place = "0000:00:02.0",
                 const char* engine = "render") {
    return "pos:\t0\ndrm-driver:\ti915\ndrm-client-id:\t" + std::to_string(client) +
           "\ndrm-pdev:\t" + place + "\ndrm-engine-" + engine + ":\t" +
           std::to_string(milliseconds * millisecond) + " ns\n";
}

class GraphicsClients : public testing::Test {
  protected:
    GraphicsClients() {
        graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
        graphics.node("renderD128", "0000:00:02.0");
    }
    std::optional<double> busy(double secondsLater = 1) {
        return graphics.figure("Device Utilization %", secondsLater);
    }
    void client(int pid, int fd, const std::string& text, const char* node = "renderD128") const {
        graphics.client(pid, fd, node, text);
    }
    /// Open files of it read nothing from then on.
    void leave(int pid, int fd) const {
        client(pid, fd, "");
        graphics.tree.removeProc(std::to_string(pid));
    }

    FakeGraphics graphics;
};

TEST_F(GraphicsClients, TellHowBusyTheirDeviceIs) {
    client(50, 3, said(1, 1000));
    EXPECT_EQ(busy(), std::nullopt);
    client(50, 3, said(1, 1250));
    EXPECT_DOUBLE_EQ(busy().value(), 25);
    EXPECT_EQ(busy(), 0);
    client(50, 3, said(1, 2250));
    EXPECT_DOUBLE_EQ(busy(4).value(), 25);
}

TEST_F(GraphicsClients, ThatThereAreNoneOfTellNothing) {
    EXPECT_EQ(busy(), std::nullopt);
    EXPECT_EQ(busy(), std::nullopt);
    EXPECT_EQ(graphics.pass().size(), 1U);
}

TEST_F(GraphicsClients, OpenTwiceCountOnce) {
    client(50, 3, said(1, 0));
    client(50, 4, said(1, 0));
    client(60, 9, said(1, 0), "card0");
    busy();
    client(50, 3, said(1, 300));
    client(50, 4, said(1, 300));
    client(60, 9, said(1, 300), "card0");
    EXPECT_DOUBLE_EQ(busy().value(), 30);
}

TEST_F(GraphicsClients, OfDifferentProcessesAddUp) {
    client(50, 3, said(1, 0));
    client(60, 3, said(2, 0));
    busy();
    client(50, 3, said(1, 300));
    client(60, 3, said(2, 200));
    EXPECT_DOUBLE_EQ(busy().value(), 50);
}

TEST_F(GraphicsClients, ThatComeMakeNoSpike) {
    client(50, 3, said(1, 0));
    busy();
    client(60, 3, said(2, 900'000));
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(busy(), 0) << i;
    client(60, 3, said(2, 900'500));
    EXPECT_DOUBLE_EQ(busy().value(), 50);
}

TEST_F(GraphicsClients, AreFoundWithinFiveSeconds) {
    for (int pid = 100; pid < 130; ++pid)
        client(pid, 3, said(pid, 0));
    busy();
    for (const int pid : {50, 115, 200}) {
        std::uint64_t done = 0;
        client(pid, 5, said(1000 + pid, done));
        int passes = 0;
        while (busy().value() == 0 && passes < 20) {
            done += 500;
            client(pid, 5, said(1000 + pid, done));
            ++passes;
        }
        EXPECT_LE(passes, 11) << pid;
        busy();
    }
}

TEST_F(GraphicsClients, ThatLeaveMakeNoSpike) {
    client(50, 3, said(1, 0));
    client(60, 3, said(2, 900'000));
    busy();
    leave(60, 3);
    EXPECT_EQ(busy(), 0);
    leave(50, 3);
    EXPECT_EQ(busy(), std::nullopt);
    EXPECT_EQ(busy(), std::nullopt);
}

TEST_F(GraphicsClients, WhoseCountersStepBackMakeNoSpike) {
    client(50, 3, said(1, 900'000));
    busy();
    client(50, 3, said(1, 0));
    EXPECT_EQ(busy(), 0);
    client(50, 3, said(1, 100));
    EXPECT_DOUBLE_EQ(busy().value(), 10);
}

TEST_F(GraphicsClients, WhoseDescriptorIsAnotherFileByNowAreGone) {
    client(50, 3, said(1, 0));
    busy();
    client(50, 3, said(9, 500'000));
    EXPECT_EQ(busy(), std::nullopt);
    client(50, 3, "pos:\t0\nflags:\t02\n");
    EXPECT_EQ(busy(5), std::nullopt);
    EXPECT_EQ(busy(5), std::nullopt);
}

TEST_F(GraphicsClients, OfOneCardSayNothingOfAnother) {
    graphics.card(1, "0000:03:00.0", "8086:56a0", "i915");
    graphics.node("renderD129", "0000:03:00.0");
    client(50, 3, said(1, 0));
    client(50, 4, said(1, 0, "0000:03:00.0"), "renderD129");
    busy();
    client(50, 3, said(1, 100));
    client(50, 4, said(1, 700, "0000:03:00.0"), "renderD129");
    graphics.wind(1);
    const auto told = graphics.pass();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_DOUBLE_EQ(told[0].statistics.at("Device Utilization %"), 10);
    EXPECT_DOUBLE_EQ(told[1].statistics.at("Device Utilization %"), 70);
}

TEST_F(GraphicsClients, WhoseTextContradictsTheirNodeAreNone) {
    client(50, 3, said(1, 0, "0000:07:00.0"));
    busy();
    client(50, 3, said(1, 500, "0000:07:00.0"));
    EXPECT_EQ(busy(), std::nullopt);
}

TEST_F(GraphicsClients, ThatCannotBeLookedIntoAreNone) {
    graphics.tree.proc("60/fd", "no folder");
    graphics.tree.proc("61/stat", "");
    graphics.tree.linkProc("62/fd/3", "/dev/dri/renderD128");  // no fdinfo
    graphics.tree.linkProc("63/fd/3", "socket:[5]");
    graphics.tree.linkProc("64/fd/3", "/dev/dri/renderD200");
    graphics.tree.linkProc("65/fd/3", "/dev/dri/" + std::string(1000, 'x'));
    graphics.tree.proc("66/fdinfo/3", std::string(100'000, 'x'));
    graphics.tree.linkProc("66/fd/3", "/dev/dri/renderD128");
    client(50, 3, said(1, 0));
    busy();
    client(50, 3, said(1, 100));
    EXPECT_DOUBLE_EQ(busy().value(), 10);
}

TEST_F(GraphicsClients, AreNotAskedAgainRightAway) {
    client(50, 3, said(1, 0));
    busy();
    client(50, 3, said(1, 400));
    EXPECT_DOUBLE_EQ(busy().value(), 40);
    client(50, 3, said(1, 401));
    EXPECT_DOUBLE_EQ(busy(0.01).value(), 40);
    client(50, 3, said(1, 500));
    EXPECT_NEAR(busy(0.99).value(), 10, 0.01);
}

TEST_F(GraphicsClients, BeyondTheFilesThatAreKeptOpenCountAsWell) {
    constexpr int count = 300;
    for (int pid = 1; pid <= count; ++pid)
        client(pid, 3, said(pid, 0));
    busy();
    for (int pid = 1; pid <= count; ++pid)
        client(pid, 3, said(pid, 1));
    EXPECT_NEAR(busy().value(), count * 0.1, 1e-6);
}

TEST_F(GraphicsClients, AreSoughtAtOnceWhenTheirCardWakesUp) {
    graphics.power("0000:00:02.0", "suspended");
    client(50, 3, said(1, 0));
    EXPECT_EQ(busy(), std::nullopt);
    graphics.power("0000:00:02.0", "active");
    busy();
    client(50, 3, said(1, 200));
    EXPECT_DOUBLE_EQ(busy().value(), 20);
}

TEST_F(GraphicsClients, OfDriversWithAFigureOfTheirOwnAreNotSought) {
    FakeGraphics other;
    other.card(0, "0000:03:00.0", "1002:73bf", "amdgpu", {{"gpu_busy_percent", "5"}});
    other.node("renderD128", "0000:03:00.0");
    other.client(50, 3, "renderD128", said(1, 0, "0000:03:00.0"));
    other.figure("Device Utilization %");
    other.client(50, 3, "renderD128", said(1, 900, "0000:03:00.0"));
    EXPECT_EQ(other.figure("Device Utilization %"), 5);
}

TEST_F(GraphicsClients, OfAnOldKernelsAMDCardAreAllThatTells) {
    FakeGraphics other;
    other.card(0, "0000:03:00.0", "1002:73bf", "amdgpu");
    other.node("renderD128", "0000:03:00.0");
    other.client(50, 3, "renderD128", said(1, 0, "0000:03:00.0", "gfx"));
    other.figure("Device Utilization %");
    other.client(50, 3, "renderD128", said(1, 900, "0000:03:00.0", "gfx"));
    EXPECT_DOUBLE_EQ(other.figure("Device Utilization %").value(), 90);
}

TEST(GraphicsNodeOfALink, IsTheNameInTheFolderOfGraphics) {
    EXPECT_EQ(graphicsNode("/dev/dri/renderD128"), "renderD128");
    EXPECT_EQ(graphicsNode("/dev/dri/card0"), "card0");
    EXPECT_EQ(graphicsNode("/dri/card10"), "card10");
    for (const char* const other : {"", "/", "card0", "dri/card0", "/dev/card0", "/dev/dri/",
                                    "/dev/dri/by-path", "/dev/adri/card0", "socket:[77]"})
        EXPECT_EQ(graphicsNode(other), "") << other;
}

}  // namespace
}  // namespace vantor::drm_clients_test
