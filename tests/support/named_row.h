#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <ostream>
#include <string>

namespace vantor {

/// A row of a table of cases. Its name becomes the name of its test.
struct NamedRow {
    std::string name;
};

template <std::derived_from<NamedRow> Row>
void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

template <std::derived_from<NamedRow> Row>
std::string rowName(const testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

}  // namespace vantor
