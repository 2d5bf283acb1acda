#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/guid.h"

/// What the machine says about its networks.
namespace rlx {

/// The interface of the IPv4 default route with the least metric, from the text of /proc/net/route; empty when there is
/// none. Lines that are not understood are passed over.
std::string DefaultRouteInterface(std::string_view procNetRoute);

/// The same from the text of /proc/net/ipv6_route.
std::string DefaultRouteInterface6(std::string_view procNetIpv6Route);

/// The names of interfaces that are up, running, not loopback, and have an address; sorted.
std::vector<std::string> ConnectedInterfaces();

/// An identity for an interface of this name: the same on every call and every machine, never a standard network's.
Guid InterfaceGuid(std::string_view name);

}  // namespace rlx
