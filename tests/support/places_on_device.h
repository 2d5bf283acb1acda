#pragma once

#include "places/city_database.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_object_store.h"
#include "platform/fake/memory_registry.h"
#include "platform/fake/scripted_message_boxes.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "shell/setting_names.h"

namespace rlx::test {

/// A device in memory with five cities, whose clock stands at 22 November 2026, 21:10:05 in Amsterdam.
struct PlacesOnDevice {
    PlacesOnDevice() {
        files.files["/app/cities.lst"] =
            "5\n"
            "z;Amsterdam;Netherlands;4.9;52.4;1;1;88;2;298;3\n"
            "z;London;United Kingdom;-0.1;51.5;0;1;88;1;298;2\n"
            "z;New York;United States;-74;40.7;-5;1;67;2;305;2\n"
            "z;Sydney;Australia;151.2;-33.9;10;1;277;2;95;3\n"
            "z;Tokyo;Japan;139.7;35.7;9;0;0;0;0;0\n";
        cities.EnsureCreated();
        const std::uint32_t chosen[] = {1, 2, 3, 4};
        Write(names::kHomeClock, 0);
        for (std::size_t i = 0; i < 4; ++i)
            Write(names::kClocks[i], chosen[i]);
        settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kClocksTip, 1);
    }

    void Write(std::u16string_view name, std::uint32_t value) {
        settings.WriteDword(RootOf(keys::kWorldClock), keys::kWorldClock, name, value);
    }

    CMemoryFileSystem files;
    CMemoryObjectStore store;
    CMemoryRegistry registry;
    CScriptedMessageBoxes boxes;
    CResources resources;
    CFixedClock clock{{{2026, 11, 22}, 21, 10, 5, 0}};
    CRegistryStore settings{registry};
    CCityDatabase cities{store, files, boxes, resources, "/app/cities.lst"};
};

}  // namespace rlx::test
