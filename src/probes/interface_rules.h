#pragma once

#include <string>
#include <string_view>

#include "platform/network_interfaces.h"

/// Which interfaces are shown, and which of their addresses. Pure functions.
namespace vantor {

/// Whether an interface is measured and listed at all: up, running, and not the loopback. (Those
/// that lead from point to point are left out later, where the settings say so.)
bool isEligible(const NetworkInterfaces::Record& record);

/// Whether a numeric IPv4 address is one that a machine gives itself when nobody else does
/// (169.254.0.0/16).
bool isIPv4LinkLocal(const char* address);

/// The same for IPv6 (fe80::/10); a "%scope" at the end does not matter.
bool isIPv6LinkLocal(std::string_view address);

/// Takes `offered` for an interface that has `held` (empty = none yet): the first address stays,
/// except that a routable one replaces a link-local one.
void offerIPv4Address(std::string& held, const char* offered);
void offerIPv6Address(std::string& held, const char* offered);

}  // namespace vantor
