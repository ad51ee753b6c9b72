#include "platform/darwin/interface_dump_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/simulated/simulated_interface_calls.h"
#include "support/named_row.h"

namespace vantor::interface_dump_reader_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kib = 1024;
constexpr std::size_t mib = 1024 * kib;
constexpr std::size_t question = 0;  // a buffer of no bytes asks for the size

class InterfaceDumpReaderTest : public testing::Test {
  protected:
    InterfaceDumpReaderTest() {
        interfaces.named("en0").received = 7;
        interfaces.named("en1").sent = 9;
        interfaces.onSysctl = [this](std::size_t size) { offers.push_back(size); };
    }

    bool read() {
        offers.clear();
        return reader.read64BitInterfaceCounters(interfaces);
    }
    /// The buffer that a reading offers.
    std::size_t buffer() {
        EXPECT_TRUE(read());
        return offers.back();
    }
    /// Makes the whole list that long.
    void makeList(std::size_t bytes) { interfaces.foreignBytes = bytes - 2 * 160; }
    int count() const { return static_cast<int>(reader.counters().size()); }

    SimulatedInterfaceCalls interfaces;
    InterfaceDumpReader reader;
    std::vector<std::size_t> offers;
};

TEST_F(InterfaceDumpReaderTest, GivesTheCountersByName) {
    ASSERT_TRUE(read());
    ASSERT_NE(reader.counters().find("en0"), nullptr);
    EXPECT_EQ(reader.counters().find("en0")->received, 7u);
    EXPECT_EQ(reader.counters().find("en1")->sent, 9u);
    EXPECT_EQ(count(), 2);
}

TEST_F(InterfaceDumpReaderTest, ForgetsTheInterfacesThatLeft) {
    read();
    interfaces.interfaces.pop_back();
    ASSERT_TRUE(read());
    EXPECT_EQ(count(), 1);
}

TEST_F(InterfaceDumpReaderTest, TheLaterOfTwoMessagesOfANameCounts) {
    interfaces.interfaces[1].name = "en0";
    interfaces.interfaces[1].index = 1;  // the same index twice in the list
    ASSERT_TRUE(read());
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(reader.counters().find("en0")->sent, 9u);
    EXPECT_EQ(reader.counters().find("en0")->received, 0u);
}

TEST_F(InterfaceDumpReaderTest, AsksForTheSizeAndThenOffersExactlyThat) {
    ASSERT_TRUE(read());
    EXPECT_THAT(offers, ElementsAre(question, 320u));
}

TEST_F(InterfaceDumpReaderTest, KeepsALargerBufferAsItIs) {
    makeList(1000);
    read();
    makeList(600);
    ASSERT_TRUE(read());
    EXPECT_THAT(offers, ElementsAre(question, 1000u));
}

TEST_F(InterfaceDumpReaderTest, FailsWhenTheSizeCannotBeHad) {
    interfaces.sizeErrors = {EPERM};
    EXPECT_FALSE(read());
    EXPECT_THAT(offers, ElementsAre(question));
    EXPECT_TRUE(read());
}

TEST_F(InterfaceDumpReaderTest, FailsWhenTheSizeIsZeroOrPastSixteenMegabytes) {
    for (const std::size_t size : {std::size_t{0}, 16 * mib + 1, SIZE_MAX}) {
        interfaces.claimedSizes = {size};
        EXPECT_FALSE(read());
        EXPECT_THAT(offers, ElementsAre(question));
    }
    interfaces.claimedSizes = {16 * mib};
    EXPECT_TRUE(read());
    EXPECT_THAT(offers, ElementsAre(question, 16 * mib));
}

TEST_F(InterfaceDumpReaderTest, AnotherErrorThanTooLittleRoomEndsIt) {
    interfaces.listErrors = {EIO};
    EXPECT_FALSE(read());
    EXPECT_THAT(offers, ElementsAre(question, 320u));
}

TEST_F(InterfaceDumpReaderTest, TriesThreeTimesWithAtLeastTwiceTheRoom) {
    interfaces.listErrors = {ENOMEM, ENOMEM};
    ASSERT_TRUE(read());
    EXPECT_THAT(offers, ElementsAre(question, 320u, question, 640u, question, 1280u));
    EXPECT_EQ(count(), 2);
}

TEST_F(InterfaceDumpReaderTest, GivesUpAfterTheThirdAttempt) {
    interfaces.listErrors = {ENOMEM, ENOMEM, ENOMEM};
    EXPECT_FALSE(read());
    EXPECT_THAT(offers, ElementsAre(question, 320u, question, 640u, question, 1280u));
    EXPECT_THAT(interfaces.listErrors, IsEmpty());
}

TEST_F(InterfaceDumpReaderTest, TakesTheNewSizeWhenThatIsMoreThanDouble) {
    interfaces.growthAfterSizeQuestions = {5000};
    ASSERT_TRUE(read());
    EXPECT_THAT(offers, ElementsAre(question, 320u, question, 5320u));
}

TEST_F(InterfaceDumpReaderTest, FailsWhenTheSecondSizeCannotBeHad) {
    for (const auto& [error, size] :
         {std::pair{EPERM, std::size_t{320}}, {0, std::size_t{0}}, {0, 16 * mib + 1}}) {
        interfaces.listErrors = {ENOMEM};
        interfaces.sizeErrors = {0, error};
        interfaces.claimedSizes = {320, size};
        EXPECT_FALSE(read());
        EXPECT_THAT(offers, ElementsAre(question, testing::_, question));
        interfaces.claimedSizes.clear();
    }
}

TEST_F(InterfaceDumpReaderTest, GrowsToSixteenMegabytesAndNoFurther) {
    interfaces.claimedSizes = {9 * mib};
    interfaces.listErrors = {ENOMEM, ENOMEM};
    EXPECT_FALSE(read()) << "there is nothing larger to try";
    EXPECT_THAT(offers, ElementsAre(question, 9 * mib, question, 16 * mib, question));
}

TEST_F(InterfaceDumpReaderTest, AClaimOfMoreThanTheBufferHoldsIsAFailure) {
    interfaces.claimedLength = 321;
    EXPECT_FALSE(read());
    interfaces.claimedLength = 320;
    EXPECT_TRUE(read());
}

TEST_F(InterfaceDumpReaderTest, ReadsOnlyAsFarAsTheAnswerGoes) {
    interfaces.claimedLength = 160;
    ASSERT_TRUE(read());
    EXPECT_EQ(count(), 1);
}

TEST_F(InterfaceDumpReaderTest, AnInterfaceWithoutANameFailsAllOfIt) {
    interfaces.interfaces[1].hasName = false;
    EXPECT_FALSE(read());
    EXPECT_EQ(count(), 0);
}

TEST_F(InterfaceDumpReaderTest, AMalformedListFailsAllOfIt) {
    ASSERT_TRUE(read());
    interfaces.rawList = std::vector<std::byte>(3);
    EXPECT_FALSE(read());
    EXPECT_EQ(count(), 0);
}

TEST_F(InterfaceDumpReaderTest, TrimsAfterEightOversizedSuccessesToTheFloor) {
    makeList(1 * mib);
    EXPECT_EQ(buffer(), 1 * mib);
    interfaces.foreignBytes = 0;
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(buffer(), 1 * mib) << i;
    EXPECT_EQ(buffer(), 256 * kib);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(buffer(), 256 * kib) << "the floor stays";
}

TEST_F(InterfaceDumpReaderTest, TrimsALargeListToTwiceItsLength) {
    makeList(1 * mib);
    buffer();
    makeList(200'000);  // four times that is below one megabyte
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(buffer(), 1 * mib);
    EXPECT_EQ(buffer(), 400'000u);
}

TEST_F(InterfaceDumpReaderTest, TrimsToTheFloorUpToHalfOfIt) {
    for (const auto& [length, trimmed] :
         {std::pair{131'071u, 262'144u}, {131'072u, 262'144u}, {131'073u, 262'146u}}) {
        makeList(1 * mib);
        buffer();
        makeList(length);
        for (int i = 0; i < 8; ++i)
            buffer();
        EXPECT_EQ(buffer(), trimmed) << length;
    }
}

TEST_F(InterfaceDumpReaderTest, ABufferOfFourTimesTheListIsNotOversized) {
    makeList(400'000);
    buffer();
    makeList(100'000);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(buffer(), 400'000u);
    makeList(99'999);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(buffer(), 400'000u);
    EXPECT_EQ(buffer(), 262'144u);
}

TEST_F(InterfaceDumpReaderTest, ABufferUpToTheFloorIsNeverOversized) {
    makeList(256 * kib);
    buffer();
    interfaces.foreignBytes = 0;
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(buffer(), 256 * kib);
}

TEST_F(InterfaceDumpReaderTest, ALargeListBeginsTheCountAnew) {
    makeList(1 * mib);
    buffer();
    interfaces.foreignBytes = 0;
    for (int i = 0; i < 7; ++i)
        buffer();
    makeList(1 * mib);
    buffer();
    interfaces.foreignBytes = 0;
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(buffer(), 1 * mib) << i;
    EXPECT_EQ(buffer(), 256 * kib);
}

struct Failure : NamedRow {
    void (*arrange)(SimulatedInterfaceCalls&);
};
class FailedDump : public InterfaceDumpReaderTest, public testing::WithParamInterface<Failure> {};

TEST_P(FailedDump, BeginsTheCountAnew) {
    makeList(1 * mib);
    buffer();
    interfaces.foreignBytes = 0;
    for (int i = 0; i < 7; ++i)
        buffer();
    const auto before = interfaces.interfaces;
    GetParam().arrange(interfaces);
    EXPECT_FALSE(read());
    interfaces.interfaces = before;
    interfaces.rawList.reset();
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(buffer(), 1 * mib) << i;
    EXPECT_EQ(buffer(), 256 * kib);
}

INSTANTIATE_TEST_SUITE_P(
    Failures, FailedDump,
    testing::Values(
        Failure{{"OfTheSize"}, [](SimulatedInterfaceCalls& i) { i.sizeErrors = {EIO}; }},
        Failure{{"OfTheList"}, [](SimulatedInterfaceCalls& i) { i.listErrors = {EIO}; }},
        Failure{{"OfTheBytes"},
                [](SimulatedInterfaceCalls& i) { i.rawList = std::vector<std::byte>(2); }},
        Failure{{"OfAName"}, [](SimulatedInterfaceCalls& i) { i.interfaces[0].hasName = false; }}),
    rowName<Failure>);

}  // namespace
}  // namespace vantor::interface_dump_reader_test
