#include "model/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "model/printed_number_text.h"

namespace vantor::number_text_test {
namespace {

using Room = std::array<char, 400>;

std::string shortest(double value) {
    Room room;
    return std::string(shortestText(room, value));
}

std::string printedShortest(double value) {
    Room room;
    return std::string(printedShortestText(room, value));
}

std::string fixed(double value, int precision) {
    Room room;
    return std::string(fixedText(room, value, precision));
}

std::string printedFixed(double value, int precision) {
    Room room;
    return std::string(printedFixedText(room, value, precision));
}

struct Written {
    double value;
    const char* text;
};

std::vector<Written> shortestNumbers() {
    using Limits = std::numeric_limits<double>;
    return {{0, "0"},
            {-0.0, "-0"},
            {0.1, "0.1"},
            {-12.5, "-12.5"},
            {1e5, "1e+05"},
            {123456, "123456"},
            {0.001, "0.001"},
            {0.0001, "1e-04"},
            {0.00001, "1e-05"},
            {1.0 / 3, "0.3333333333333333"},
            {0.1 + 0.2, "0.30000000000000004"},
            {17179869184.0, "17179869184"},
            {9007199254740993.0, "9007199254740992"},
            {1.2345678901234567e18, "1234567890123456768"},
            {Limits::max(), "1.7976931348623157e+308"},
            {Limits::min(), "2.2250738585072014e-308"},
            {Limits::denorm_min(), "5e-324"}};
}

TEST(NumberText, TakesAsFewDigitsAsReadBackTheSame) {
    for (const auto& [value, text] : shortestNumbers()) {
        EXPECT_EQ(shortest(value), text);
        EXPECT_EQ(printedShortest(value), text);
    }
}

TEST(NumberText, BothWaysAgreeOnAnyNumber) {
    std::mt19937_64 random(20'240'229);
    std::uniform_real_distribution<double> ratio(0, 1);
    for (int i = 0; i < 20'000; ++i) {
        const auto any = std::bit_cast<double>(random());
        const double size =
            std::floor(std::ldexp(1.0, static_cast<int>(random() % 100)) * ratio(random));
        for (const double value : {any, ratio(random), ratio(random) * 100, size}) {
            if (!std::isfinite(value)) continue;
            const std::string text = shortest(value);
            ASSERT_EQ(printedShortest(value), text);
            ASSERT_EQ(std::strtod(text.c_str(), nullptr), value);
        }
    }
}

TEST(NumberText, FixedDigitsRoundExactHalvesToTheEvenOne) {
    for (const auto& write : {fixed, printedFixed}) {
        EXPECT_EQ(write(0.5, 0), "0");
        EXPECT_EQ(write(1.5, 0), "2");
        EXPECT_EQ(write(0.125, 2), "0.12");
        EXPECT_EQ(write(-2.345, 1), "-2.3");
        EXPECT_EQ(write(1e300, 1).size(), 303u);
        EXPECT_EQ(write(0, 2), "0.00");
    }
}

TEST(NumberText, WhatDoesNotFitGivesNothing) {
    std::array<char, 4> room;
    EXPECT_EQ(shortestText(room, 0.25), "0.25");
    EXPECT_EQ(shortestText(room, 0.125), "");
    EXPECT_EQ(printedShortestText(room, 0.125), "");
    EXPECT_EQ(fixedText(room, 10, 2), "");
    EXPECT_EQ(printedFixedText(room, 10, 2), "");
    EXPECT_EQ(printedFixedText(room, 10, 1000), "");
}

TEST(NumberText, TheUsersLocaleDoesNotMatter) {
    const std::string former = std::setlocale(LC_NUMERIC, nullptr);
    const bool hasOne =
        std::setlocale(LC_NUMERIC, "de_DE.UTF-8") || std::setlocale(LC_NUMERIC, "fr_FR.UTF-8");
    if (!hasOne) GTEST_SKIP() << "there is no locale with a comma here";
    const std::vector<std::string> texts{shortest(0.5), printedShortest(0.5), fixed(0.5, 2),
                                         printedFixed(0.5, 2)};
    std::setlocale(LC_NUMERIC, former.c_str());
    EXPECT_EQ(texts, (std::vector<std::string>{"0.5", "0.5", "0.50", "0.50"}));
}

}  // namespace
}  // namespace vantor::number_text_test
