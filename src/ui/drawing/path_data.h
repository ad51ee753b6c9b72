#pragma once

#include <QPainterPath>

#include <optional>
#include <string_view>

namespace vantor {

/// The path that the data of a drawing's path element describe: moves, lines, cubic curves and arcs
/// whose ellipse is not turned. Absent for data with anything else in them.
std::optional<QPainterPath> pathOfData(std::string_view data);

}  // namespace vantor
