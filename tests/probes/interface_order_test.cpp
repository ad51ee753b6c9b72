#include "probes/interface_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/native_machine.h"

namespace vantor::interface_order_test {
namespace {

using testing::ElementsAre;

NetworkInterfaceStats row(const std::string& name, bool hasAddress = true, double download = 0,
                          double upload = 0) {
    NetworkInterfaceStats row;
    row.name = name;
    if (hasAddress) row.ipv4Address = "10.0.0.1";
    row.downloadBytesPerSecond = download;
    row.uploadBytesPerSecond = upload;
    return row;
}

std::vector<std::string> sorted(std::vector<NetworkInterfaceStats> rows,
                                const char* primary = nullptr) {
    const std::string name = primary ? primary : "";
    InterfaceOrder(makeNativeNameOrder()).sort(rows, primary ? &name : nullptr);
    std::vector<std::string> names;
    for (const auto& r : rows)
        names.push_back(r.name);
    return names;
}

TEST(InterfaceOrder, ThePrimaryInterfaceComesFirstWhateverElse) {
    EXPECT_THAT(sorted({row("a", true, 9, 9), row("z", false)}, "z"), ElementsAre("z", "a"));
}

TEST(InterfaceOrder, WithoutAKnownPrimaryTheOthersDecide) {
    EXPECT_THAT(sorted({row("z", false), row("a", true)}), ElementsAre("a", "z"));
    EXPECT_THAT(sorted({row("z", false), row("a", true)}, "none"), ElementsAre("a", "z"));
}

TEST(InterfaceOrder, ThoseWithAnAddressComeBeforeThoseWithout) {
    NetworkInterfaceStats six = row("six", false);
    six.ipv6Address = "fd00::1";
    EXPECT_THAT(sorted({row("a", false, 1000), row("b", true), six}), ElementsAre("b", "six", "a"));
}

TEST(InterfaceOrder, MoreTrafficInBothDirectionsTogetherComesFirst) {
    EXPECT_THAT(sorted({row("a", true, 5, 0), row("b", true, 0, 9), row("c", true, 4, 4)}),
                ElementsAre("b", "c", "a"));
}

TEST(InterfaceOrder, EqualTrafficIsByNameWithNumbersByValue) {
    EXPECT_THAT(sorted({row("en10", true, 1, 2), row("en2", true, 2, 1), row("EN1", true, 3, 0)}),
                ElementsAre("EN1", "en2", "en10"));
}

/// Names by their length, which no language has.
class ByLength : public NameOrder {
  public:
    explicit ByLength(int& questions) : questions_(questions) {}

    std::vector<std::uint32_t> ranks(std::span<const std::string> names) override {
        ++questions_;
        std::vector<std::uint32_t> ranks;
        for (const std::string& name : names)
            ranks.push_back(static_cast<std::uint32_t>(name.size()));
        return ranks;
    }

  private:
    int& questions_;
};

TEST(InterfaceOrder, AsksForTheOrderOfNamesOnlyWhenThereIsANewOne) {
    int questions = 0;
    InterfaceOrder order(std::make_unique<ByLength>(questions));
    std::vector<NetworkInterfaceStats> rows{row("aaa"), row("bb"), row("c")};
    for (int pass = 0; pass < 3; ++pass)
        order.sort(rows, nullptr);
    EXPECT_EQ(rows.front().name, "c");
    EXPECT_EQ(rows.back().name, "aaa");
    EXPECT_EQ(questions, 1);
    rows.pop_back();
    order.sort(rows, nullptr);
    EXPECT_EQ(questions, 1) << "one that went changes nothing";
    rows.push_back(row("eth0"));
    order.sort(rows, nullptr);
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(rows.back().name, "eth0");
}

TEST(InterfaceOrder, ForgetsNamesWhenTheyAreManyMoreThanThoseThatAreThere) {
    int questions = 0;
    InterfaceOrder order(std::make_unique<ByLength>(questions));
    std::vector<NetworkInterfaceStats> rows;
    for (int i = 0; i < 500; ++i)
        rows.push_back(row("veth" + std::to_string(i)));
    order.sort(rows, nullptr);
    rows.resize(10);
    order.sort(rows, nullptr);
    order.sort(rows, nullptr);
    EXPECT_EQ(questions, 2);
}

TEST(InterfaceOrder, SumsPastTheLargestNumberAreEqual) {
    constexpr double most = std::numeric_limits<double>::max();
    EXPECT_THAT(sorted({row("b", true, most, most), row("a", true, most, most)}),
                ElementsAre("a", "b"));
}

std::vector<std::string> namesOf(const std::vector<NetworkInterfaceStats>& rows) {
    std::vector<std::string> names;
    for (const auto& r : rows)
        names.push_back(r.name);
    return names;
}

TEST(InterfaceOrder, UndoingItPutsEachRowBack) {
    InterfaceOrder order(makeNativeNameOrder());
    std::vector<NetworkInterfaceStats> rows;
    order.undo(rows);
    EXPECT_THAT(rows, testing::IsEmpty());
    rows = {row("b"), row("a", false), row("c", true, 9)};
    const auto before = rows;
    for (int i = 0; i < 3; ++i) {
        order.sort(rows, nullptr);
        EXPECT_THAT(namesOf(rows), ElementsAre("c", "b", "a"));
        order.undo(rows);
        EXPECT_EQ(rows, before);
    }
}

TEST(InterfaceOrder, TheLastOrderHasNoPartInTheNext) {
    InterfaceOrder order(makeNativeNameOrder());
    std::vector<NetworkInterfaceStats> rows{row("a", true, 1), row("b", true, 2),
                                            row("c", true, 3)};
    order.sort(rows, nullptr);
    EXPECT_THAT(namesOf(rows), ElementsAre("c", "b", "a"));
    order.undo(rows);
    for (auto& each : rows)
        each.downloadBytesPerSecond = 0;
    order.sort(rows, nullptr);
    EXPECT_THAT(namesOf(rows), ElementsAre("a", "b", "c"));
    order.undo(rows);
    rows.insert(rows.begin(), row("A", false, 50));
    rows.push_back(row("0", true, 0));
    order.sort(rows, nullptr);
    EXPECT_THAT(namesOf(rows), ElementsAre("0", "a", "b", "c", "A"));
    order.undo(rows);
    rows.resize(2);
    order.sort(rows, nullptr);
    EXPECT_THAT(namesOf(rows), ElementsAre("a", "A"));
}

}  // namespace
}  // namespace vantor::interface_order_test
