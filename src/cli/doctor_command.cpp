#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "doctor/checks.h"
#include "doctor/text_ids.h"
#include "platform/posix/time_zones_module.h"
#include "shell/program_paths.h"
#include "shell/text_ids.h"

namespace rlx::cli {

namespace {

/// The store has said what is wrong with it when it was opened, if anything.
void CheckStore(CSession& session, CDoctorReport& report) {
    const std::filesystem::path file = DeviceStoreFile(session.Options().store);
    if (const auto trouble = session.StoreTrouble())
        report.Add(file, 0, *trouble);
    else if (!session.IsStoreSound())
        report.Add(file, 0, kTextDoctorStore);
}

std::vector<DoctorFault> Examine(CSession& session) {
    const std::filesystem::path folder = session.Folder().Root();
    CDoctorReport report(folder, session.Texts());
    CheckStore(session, report);
    CTimeZonesModule zones(ProgramFolders({}).executableFolder);
    const DoctorPorts ports{session.Files(), session.Texts(), folder, session.Clock().Now().date};
    CheckCities(ports, zones, report);
    CheckRulesDate(ports, report);
    CheckRates(ports, report);
    CheckWeatherPlaces(ports, report);
    CheckFeedAddress(ports, report);
    CheckLanguages(ports, session.Settings(), report);
    CheckSkins(ports, session.Settings(), report);
    CheckPictures(ports, session.Images(), report);
    CheckPackingList(ports, report);
    return report.Faults();
}

int Run(CSession& session, CAnswer& answer) {
    const auto faults = Examine(session);
    Json list = Json::array();
    for (const DoctorFault& fault : faults) {
        list.push_back({{"file", ToJson(fault.file)}, {"line", fault.line}, {"text", ToJson(fault.text)}});
        std::u16string line = fault.file;
        if (fault.line > 0) line.append(u":").append(FormatInteger(fault.line));
        answer.Line(line.append(u": ").append(fault.text));
    }
    const std::u16string count = FormatInteger(static_cast<std::int64_t>(faults.size()));
    answer.Line(faults.empty() ? session.Text(kTextDoctorSound) : session.Text(kTextDoctorFaulty, count));
    answer.Set("faults", std::move(list));
    answer.Set("verdict", faults.empty() ? "sound" : "faulty");
    return faults.empty() ? kDone : kFailed;
}

}  // namespace

void DeclareDoctor(CLI::App& app, const SetAction& setAction) {
    app.callback([setAction] { setAction(Run); });
}

}  // namespace rlx::cli
