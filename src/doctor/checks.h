#pragma once

#include "doctor/doctor_report.h"
#include "platform/image_codec.h"
#include "platform/time_zones.h"
#include "shell/registry_store.h"

/// The checks of the self-check, one for each kind of file, each in a source of its own. They only read, and they find
/// every fault of a file, not just the first; nothing that they meet stops them.
namespace rlx {

/// "cities.lst": its number of entries and every field of every line, as the editor of the list checks them.
void CheckCities(const DoctorPorts& ports, ITimeZones& zones, CDoctorReport& report);

/// "cities.date": that the daylight-saving rules are those of this year. A missing file is no fault.
void CheckRulesDate(const DoctorPorts& ports, CDoctorReport& report);

/// "currs.lst" and "currs.date".
void CheckRates(const DoctorPorts& ports, CDoctorReport& report);

/// "cities.wet", and that its cities are those of "cities.lst".
void CheckWeatherPlaces(const DoctorPorts& ports, CDoctorReport& report);

/// "adrs.cfg": the form of the address; nothing is sent.
void CheckFeedAddress(const DoctorPorts& ports, CDoctorReport& report);

/// "langs.dat", the modules that it names, and the language chosen. A missing file is no fault.
void CheckLanguages(const DoctorPorts& ports, CRegistryStore& settings, CDoctorReport& report);

/// The default skin, the chosen one, and all in the folder "skins".
void CheckSkins(const DoctorPorts& ports, CRegistryStore& settings, CDoctorReport& report);

/// That every picture of the application folder can be shown.
void CheckPictures(const DoctorPorts& ports, const IImageCodec& codec, CDoctorReport& report);

/// "pack.dat". A missing file is no fault.
void CheckPackingList(const DoctorPorts& ports, CDoctorReport& report);

}  // namespace rlx
