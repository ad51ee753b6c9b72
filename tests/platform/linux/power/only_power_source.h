#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/power/power_supply.h"

namespace vantor {

/// The only source that these supplies make.
inline PropertyDictionary describeOnlySource(const std::vector<PowerSupplyTexts>& supplies) {
    const auto sources = describePowerSupplies(supplies);
    EXPECT_THAT(sources, testing::SizeIs(1));
    if (sources.empty() || !sources.front()) return {};
    return *sources.front();
}

/// "none" where there is no such text.
inline std::string textIn(const PropertyDictionary& description, const char* key) {
    const std::string* const value = findText(description, key);
    return value ? *value : "none";
}

}  // namespace vantor
