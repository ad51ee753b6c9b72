#pragma once

#include <string>

#include "model/network_interface_stats.h"

namespace vantor {

/// Whether `a` comes before `b` in the list of interfaces: the primary one first (null = not
/// known), then those that have an address, then by their traffic, then by name. Pure; a strict
/// order as long as no two rows have the same name.
bool comesFirst(const NetworkInterfaceStats& a, const NetworkInterfaceStats& b,
                const std::string* primaryName);

}  // namespace vantor
