#include "ui/byte_count_formatter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "ui/rendering.h"

namespace vantor::byte_count_formatter_test {
namespace {

constexpr std::int64_t kib = 1024;
constexpr std::int64_t mib = 1024 * kib;
constexpr std::int64_t gib = 1024 * mib;
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

std::string memory(std::int64_t count) {
    return utf8(ByteCountFormatter(ByteCountFormatter::Style::memory).string(count));
}

std::string decimal(std::int64_t count) {
    return utf8(ByteCountFormatter(ByteCountFormatter::Style::decimal).string(count));
}

TEST(ByteCountFormatter, BytesAreCountedAndOneIsSingular) {
    EXPECT_EQ(memory(0), "0 bytes");
    EXPECT_EQ(memory(1), "1 byte");
    EXPECT_EQ(memory(2), "2 bytes");
    EXPECT_EQ(memory(512), "512 bytes");
    EXPECT_EQ(decimal(1), "1 byte");
    EXPECT_EQ(decimal(999), "999 bytes");
}

TEST(ByteCountFormatter, AKilobyteIs1024InMemoryAnd1000Elsewhere) {
    EXPECT_EQ(memory(1000), "1000 bytes");
    EXPECT_EQ(memory(1023), "1023 bytes");
    EXPECT_EQ(memory(1024), "1 KB");
    EXPECT_EQ(decimal(1000), "1 KB");
    EXPECT_EQ(decimal(1024), "1 KB");
}

TEST(ByteCountFormatter, KilobytesHaveNoFractionAndHalvesRoundUp) {
    EXPECT_EQ(memory(kib + 511), "1 KB");
    EXPECT_EQ(memory(kib + 512), "2 KB");
    EXPECT_EQ(decimal(1499), "1 KB");
    EXPECT_EQ(decimal(1500), "2 KB");
}

TEST(ByteCountFormatter, MegabytesHaveOneDigit) {
    EXPECT_EQ(memory(mib), "1 MB");
    EXPECT_EQ(memory(mib + mib / 2), "1.5 MB");
    EXPECT_EQ(memory(mib + mib / 3), "1.3 MB");
    EXPECT_EQ(decimal(1'540'000), "1.54 MB");
    EXPECT_EQ(decimal(1'549'999), "1.5 MB");
    EXPECT_EQ(decimal(1'550'001), "1.6 MB");
    EXPECT_EQ(decimal(987'654'321), "987.7 MB");
}

TEST(ByteCountFormatter, MegabytesKeepTwoDigitsThatTellThemExactly) {
    EXPECT_EQ(decimal(1'250'000), "1.25 MB");
    EXPECT_EQ(memory(mib + mib / 4), "1.25 MB");
    EXPECT_EQ(decimal(2'010'000), "2.01 MB");
    EXPECT_EQ(decimal(1'250'001), "1.3 MB");
}

TEST(ByteCountFormatter, GigabytesAndAboveHaveTwoDigits) {
    EXPECT_EQ(memory(16 * gib), "16 GB");
    EXPECT_EQ(memory(7 * gib + gib / 2), "7.5 GB");
    EXPECT_EQ(memory(gib + gib / 3), "1.33 GB");
    EXPECT_EQ(decimal(1'005'000'000), "1.01 GB");
    EXPECT_EQ(decimal(2'340'000'000'000), "2.34 TB");
    EXPECT_EQ(decimal(2'000'000'000'000'000), "2 PB");
}

TEST(ByteCountFormatter, ZerosAtTheEndAreNotWrittenAndThoseWithinAre) {
    EXPECT_EQ(decimal(3'500'000'000), "3.5 GB");
    EXPECT_EQ(decimal(3'050'000'000), "3.05 GB");
    EXPECT_EQ(decimal(3'000'000'000), "3 GB");
    EXPECT_EQ(decimal(3'004'999'999), "3 GB");
}

TEST(ByteCountFormatter, WhatRoundsUpToTheNextUnitIsWrittenInIt) {
    EXPECT_EQ(memory(mib - 1), "1 MB");
    EXPECT_EQ(memory(mib - 512), "1 MB");
    EXPECT_EQ(memory(mib - 513), "1023 KB");
    EXPECT_EQ(memory(mib + 600), "1 MB");
    EXPECT_EQ(memory(gib - 1), "1 GB");
    EXPECT_EQ(memory(1024 * gib - 1), "1 TB");
    EXPECT_EQ(decimal(999'499), "999 KB");
    EXPECT_EQ(decimal(999'500), "1 MB");
    EXPECT_EQ(decimal(999'949'999), "999.9 MB");
    EXPECT_EQ(decimal(999'950'001), "1 GB");
    EXPECT_EQ(decimal(999'995'000'000), "1 TB");
}

TEST(ByteCountFormatter, ReachesToTheLargestCount) {
    EXPECT_EQ(memory(largest), "8 EB");
    EXPECT_EQ(memory(std::int64_t{1} << 60), "1 EB");
    EXPECT_EQ(memory((std::int64_t{1} << 60) + (std::int64_t{1} << 58)), "1.25 EB");
    EXPECT_EQ(memory((std::int64_t{1} << 60) - 1), "1 EB");
    EXPECT_EQ(decimal(largest), "9.22 EB");
    EXPECT_EQ(decimal(1'000'000'000'000'000'000), "1 EB");
    EXPECT_EQ(decimal(1'239'999'999'999'999'999), "1.24 EB");
}

TEST(ByteCountFormatter, ANegativeCountIsNothing) {
    EXPECT_EQ(memory(-1), "0 bytes");
    EXPECT_EQ(decimal(std::numeric_limits<std::int64_t>::min()), "0 bytes");
}

TEST(ByteCountFormatter, NoCountShowsMoreThanFourDigitsOfItsWholePart) {
    for (std::int64_t count = 1; count > 0 && count < largest / 3; count = count * 3 + 1) {
        for (const std::string& text : {memory(count), decimal(count)}) {
            EXPECT_LE(text.find_first_of(". "), 4u) << text;
        }
    }
}

}  // namespace
}  // namespace vantor::byte_count_formatter_test
