#include "platform/posix/network_table.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

#include <charconv>
#include <cstdint>
#include <limits>
#include <memory>
#include <set>

namespace rlx {

namespace {

std::vector<std::string_view> Words(std::string_view line) {
    std::vector<std::string_view> words;
    while (true) {
        const std::size_t begin = line.find_first_not_of(" \t");
        if (begin == std::string_view::npos) return words;
        line.remove_prefix(begin);
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        words.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

std::uint64_t NumberOr(std::string_view word, int base, std::uint64_t otherwise) {
    std::uint64_t value = 0;
    const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), value, base);
    return error == std::errc{} && stop == word.data() + word.size() ? value : otherwise;
}

/// Where the columns of a route table stand.
struct RouteColumns {
    std::size_t count;
    std::size_t interface;
    std::size_t destination;
    std::size_t mask;
    std::size_t metric;
    std::size_t flags;
    int metricBase;
};

bool IsDefault(const std::vector<std::string_view>& words, const RouteColumns& columns) {
    constexpr std::uint64_t kRouteUp = 0x1;
    constexpr std::uint64_t kRouteReject = 0x200;
    const std::uint64_t flags = NumberOr(words[columns.flags], 16, 0);
    return words[columns.destination].find_first_not_of('0') == std::string_view::npos &&
           words[columns.mask].find_first_not_of('0') == std::string_view::npos && (flags & kRouteUp) != 0 &&
           (flags & kRouteReject) == 0 && words[columns.interface] != "lo";
}

std::string BestDefault(std::string_view table, const RouteColumns& columns) {
    std::string best;
    std::uint64_t least = std::numeric_limits<std::uint64_t>::max();
    while (!table.empty()) {
        const std::size_t end = std::min(table.find('\n'), table.size());
        const std::vector<std::string_view> words = Words(table.substr(0, end));
        table.remove_prefix(std::min(end + 1, table.size()));
        if (words.size() < columns.count || !IsDefault(words, columns)) continue;
        const std::uint64_t metric = NumberOr(words[columns.metric], columns.metricBase, least);
        if (metric < least) {
            least = metric;
            best = words[columns.interface];
        }
    }
    return best;
}

/// FNV-1a over the name, from a start of its own.
std::uint64_t Hash(std::string_view name, std::uint64_t start) {
    std::uint64_t hash = start;
    for (const char byte : name)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;
    return hash;
}

}  // namespace

std::string DefaultRouteInterface(std::string_view procNetRoute) {
    return BestDefault(procNetRoute, {8, 0, 1, 7, 6, 3, 10});
}

std::string DefaultRouteInterface6(std::string_view procNetIpv6Route) {
    return BestDefault(procNetIpv6Route, {10, 9, 0, 1, 5, 8, 16});
}

std::vector<std::string> ConnectedInterfaces() {
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) return {};
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> owner(list, freeifaddrs);
    std::set<std::string> names;
    for (const ifaddrs* each = list; each != nullptr; each = each->ifa_next) {
        const bool up = (each->ifa_flags & IFF_UP) != 0 && (each->ifa_flags & IFF_RUNNING) != 0;
        const bool outside = (each->ifa_flags & IFF_LOOPBACK) == 0;
        const int family = each->ifa_addr == nullptr ? AF_UNSPEC : each->ifa_addr->sa_family;
        if (up && outside && (family == AF_INET || family == AF_INET6)) names.insert(each->ifa_name);
    }
    return {names.begin(), names.end()};
}

Guid InterfaceGuid(std::string_view name) {
    const std::uint64_t high = Hash(name, 0xCBF29CE484222325ULL);
    const std::uint64_t low = Hash(name, 0x9AE16A3B2F90404FULL);
    Guid guid;
    guid.data1 = static_cast<std::uint32_t>(high >> 32);
    guid.data2 = static_cast<std::uint16_t>(high >> 16);
    // Version 8, "custom": no standard network carries it.
    guid.data3 = static_cast<std::uint16_t>((high & 0x0FFF) | 0x8000);
    for (std::size_t i = 0; i < guid.data4.size(); ++i)
        guid.data4[i] = static_cast<std::uint8_t>(low >> (56 - 8 * i));
    guid.data4[0] = static_cast<std::uint8_t>((guid.data4[0] & 0x3F) | 0x80);
    return guid;
}

}  // namespace rlx
