#include "platform/darwin/smc_value.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "platform/darwin/smc_record.h"

namespace vantor::smc_value_test {
namespace {

using Bytes = std::vector<std::byte>;

std::optional<double> decode(const char* type, const Bytes& bytes) {
    return smcTemperature(*fourCC(type), bytes);
}

Bytes fixed(int high, int low) {
    return {static_cast<std::byte>(high), static_cast<std::byte>(low)};
}

Bytes floating(float value) {
    Bytes bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

TEST(SMCValue, FixedPointBytes2C80Are44AndAHalf) {
    EXPECT_EQ(decode("sp78", fixed(0x2C, 0x80)), 44.5);
}

TEST(SMCValue, FixedPointBytesFF00AreMinusOne) {
    EXPECT_EQ(decode("sp78", fixed(0xFF, 0x00)), -1.0);
}

TEST(SMCValue, FixedPointHas256thsOfADegree) {
    EXPECT_EQ(decode("sp78", fixed(0x00, 0x01)), 1 / 256.0);
    EXPECT_EQ(decode("sp78", fixed(0xFF, 0xFF)), -1 / 256.0);
    EXPECT_EQ(decode("sp78", fixed(0x00, 0x00)), 0.0);
    EXPECT_EQ(decode("sp78", fixed(0x7F, 0xFF)), 128 - 1 / 256.0);
    EXPECT_EQ(decode("sp78", fixed(0x80, 0x00)), std::nullopt);
}

TEST(SMCValue, FixedPointOfExactly150OrMinus20IsRejected) {
    EXPECT_EQ(decode("sp78", fixed(0x96, 0x00)), std::nullopt) << "0x96 is negative here";
    EXPECT_EQ(decode("sp78", fixed(0xEC, 0x00)), std::nullopt);
    EXPECT_EQ(decode("sp78", fixed(0xEC, 0x01)), -20 + 1 / 256.0);
}

TEST(SMCValue, FloatOfExactly150OrMinus20IsRejected) {
    EXPECT_EQ(decode("flt ", floating(150)), std::nullopt);
    EXPECT_EQ(decode("flt ", floating(-20)), std::nullopt);
    EXPECT_NE(decode("flt ", floating(std::nextafter(150.0F, 0.0F))), std::nullopt);
    EXPECT_NE(decode("flt ", floating(std::nextafter(-20.0F, 0.0F))), std::nullopt);
}

TEST(SMCValue, FloatIsInTheMachinesByteOrder) {
    EXPECT_EQ(decode("flt ", floating(44.5F)), 44.5);
    Bytes turned = floating(44.5F);
    std::swap(turned[0], turned[3]);
    std::swap(turned[1], turned[2]);
    EXPECT_NE(decode("flt ", turned), 44.5);
}

TEST(SMCValue, WhatIsNoNumberIsRejected) {
    using Limits = std::numeric_limits<float>;
    for (const float value : {Limits::quiet_NaN(), Limits::signaling_NaN(), Limits::infinity(),
                              -Limits::infinity(), Limits::max(), Limits::lowest()}) {
        EXPECT_EQ(decode("flt ", floating(value)), std::nullopt) << value;
    }
}

TEST(SMCValue, TooFewBytesAreRejectedAndMoreAreIgnored) {
    EXPECT_EQ(decode("sp78", {}), std::nullopt);
    EXPECT_EQ(decode("sp78", {std::byte{0x2C}}), std::nullopt);
    EXPECT_EQ(decode("sp78", Bytes(32, std::byte{0x20})), 32.125);
    EXPECT_EQ(decode("flt ", {}), std::nullopt);
    EXPECT_EQ(decode("flt ", Bytes(3, std::byte{0x42})), std::nullopt);
    Bytes longer = floating(44.5F);
    longer.resize(32, std::byte{0xFF});
    EXPECT_EQ(decode("flt ", longer), 44.5);
}

TEST(SMCValue, OtherTypesAreRejected) {
    for (const char* type : {"ui8 ", "ui16", "fpe2", "sp87", "SP78", "flt", "flt1", "FLT "}) {
        const auto code = fourCC(type);
        EXPECT_EQ(smcTemperature(code.value_or(0), floating(44.5F)), std::nullopt) << type;
    }
}

}  // namespace
}  // namespace vantor::smc_value_test
