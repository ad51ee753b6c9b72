#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/field.h"
#include "model/process_sample.h"
#include "model/system_snapshot.h"

/// The ways through the fields of a record, from which the document's writer, the JSON coding and
/// the tests' dumps follow: its table stands beside it (model/field.h) and is sorted at compile
/// time.
///
/// Pure functions of constants, any thread.
namespace vantor {

/// The two kinds of values that contain others.
template <class T>
constexpr bool isOptional = false;
template <class T>
constexpr bool isOptional<std::optional<T>> = true;
template <class T>
constexpr bool isList = false;
template <class T>
constexpr bool isList<std::vector<T>> = true;

template <class Record>
inline constexpr std::size_t fieldCount =
    std::tuple_size_v<std::remove_const_t<decltype(fieldsOf<Record>)>>;

/// Positions in `fieldsOf`, in the order of the names' bytes.
template <class Record>
inline constexpr auto fieldsByName = [] {
    const auto names =
        std::apply([](const auto&... field) { return std::array{std::string_view(field.name)...}; },
                   fieldsOf<Record>);
    std::array<std::size_t, fieldCount<Record>> order{};
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return names[a] < names[b]; });
    return order;
}();

/// Calls visit("name", record.name) for each field in declaration order while it returns true.
/// Returns whether it always did.
template <class Record, class Visit>
bool forEachField(Record& record, Visit&& visit) {
    return std::apply(
        [&](const auto&... field) { return (visit(field.name, record.*(field.member)) && ...); },
        fieldsOf<std::remove_const_t<Record>>);
}

/// The same in the order of the names.
template <class Record, class Visit>
bool forEachFieldByName(Record& record, Visit&& visit) {
    using Plain = std::remove_const_t<Record>;
    const auto visitOne = [&](const auto& field) {
        return visit(field.name, record.*(field.member));
    };
    return [&]<std::size_t... rank>(std::index_sequence<rank...>) {
        return (visitOne(std::get<fieldsByName<Plain>[rank]>(fieldsOf<Plain>)) && ...);
    }
    (std::make_index_sequence<fieldCount<Plain>>());
}

}  // namespace vantor
