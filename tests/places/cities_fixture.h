#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "places/city_times.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_object_store.h"
#include "platform/fake/scripted_message_boxes.h"
#include "shell/resources.h"

namespace rlx::test {

/// A cities database in memory, built from the text of a city file.
class CitiesFixture : public testing::Test {
protected:
    static constexpr const char* kFile = "/app/cities.lst";

    CityListState Build(std::string file) {
        files.files[kFile] = std::move(file);
        return cities.EnsureCreated();
    }
    CCityDatabase Another() { return CCityDatabase(store, files, boxes, texts, kFile); }
    CCityTimes Times(const ClockSettings& settings) { return CCityTimes(cities, clock, texts, settings); }

    CMemoryObjectStore store;
    CMemoryFileSystem files;
    CScriptedMessageBoxes boxes;
    CFixedClock clock;
    const CResources texts;
    CCityDatabase cities{store, files, boxes, texts, kFile};
};

/// "2026-03-29 01:30:00".
inline DateTime At(std::string_view text) {
    const auto number = [&](std::size_t from, std::size_t size) {
        return std::stoi(std::string(text.substr(from, size)));
    };
    return {{number(0, 4), number(5, 2), number(8, 2)}, number(11, 2), number(14, 2), number(17, 2), 0};
}

}  // namespace rlx::test
