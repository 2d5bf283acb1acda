#include "feeds/connection_choice.h"

#include <algorithm>

#include "feeds/standard_networks.h"
#include "feeds/text_ids.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

constexpr std::chrono::milliseconds kEstablishTimeout{30'000};

/// A public page; only used to learn which network leads to the Internet.
constexpr std::u16string_view kProbeUrl = u"http://www.example.org/";

/// Where providers say which destinations they serve.
constexpr std::u16string_view kProviderKeys[] = {
    u"SOFTWARE\\Microsoft\\ConnMgr\\Providers\\{EF097F4C-DC4B-4c98-8FF6-AEF805DC0E8E}\\",
    u"Comm\\ConnMgr\\Providers\\{EF097F4C-DC4B-4c98-8FF6-AEF805DC0E8E}\\",
};

}  // namespace

CHeldConnections::~CHeldConnections() {
    for (const ConnectionHandle handle : m_handles)
        m_connections.Release(handle);
}

bool CHeldConnections::Establish(const Guid& destination) {
    // Asked for twice: some providers only answer the second time, and it is the second answer that counts.
    std::optional<ConnectionHandle> handle;
    for (int attempt = 0; attempt < 2; ++attempt) {
        handle = m_connections.Establish(destination, kEstablishTimeout);
        if (handle) m_handles.push_back(*handle);
    }
    return handle.has_value();
}

std::optional<Guid> CConnectionChooser::ChooseConnection(bool quiet, CHeldConnections& held) {
    const std::optional<Guid> probe = m_connections.MapUrl(kProbeUrl);
    std::u16string list = m_texts.Text(kTextSetActiveConnection);
    bool chosen = false;
    for (std::size_t index = 0;; ++index) {
        const std::optional<Destination> destination = m_connections.EnumDestinations(index);
        if (!destination) break;
        if (!held.Establish(destination->guid)) continue;
        if (destination->guid == probe) {
            if (MayUse(*destination, quiet)) chosen = true;
        } else if (!IsStandardNetwork(destination->guid)) {
            list += u"- " + DestinationName(destination->guid) + u"\n";
        }
    }
    if (chosen) return probe;
    ReportNone(probe, list);
    return std::nullopt;
}

bool CConnectionChooser::MayUse(const Destination& destination, bool quiet) {
    if (quiet) return true;
    if (m_confirmation == Confirmation::kOnce && m_agreed == destination.guid) return true;
    const std::u16string agreed =
        m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kAgreedConnections);
    const std::u16string entry = GuidText(destination.guid) + u";";
    if ((u";" + agreed).find(u";" + entry) != std::u16string::npos) return true;
    return Ask(destination);
}

bool CConnectionChooser::Ask(const Destination& destination) {
    MessageBox box;
    box.title = m_texts.Text(kTextConfirmation);
    box.text = m_texts.Text(kTextConnectionBefore) + destination.description + u": " + HttpProviderName() +
               m_texts.Text(kTextConnectionAfter);
    if (destination.guid == kNetworkInternet) box.text += m_texts.Text(kTextConfigureInternet);
    box.icon = BoxIcon::kQuestion;
    box.buttons = BoxButtons::kYesNo;
    bool never = false;
    if (m_boxes.ShowWithCheck(box, m_texts.Text(kTextDontAskForConnection), never) != BoxAnswer::kYes) return false;
    m_agreed = destination.guid;
    if (never) {
        const std::u16string agreed =
            m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kAgreedConnections);
        m_settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kAgreedConnections,
                               agreed + GuidText(destination.guid) + u";");
    }
    return true;
}

void CConnectionChooser::ReportNone(const std::optional<Guid>& probe, const std::u16string& list) {
    MessageBox box{m_texts.Text(kTextError), m_texts.Text(kTextCannotUpdate), BoxIcon::kExclamation, BoxButtons::kOk};
    if (probe == kNetworkInternet && list.find(u'-') != std::u16string::npos) {
        box.text = box.text.substr(0, box.text.find(u'.') + 1) + u"\n\n" + list;
        box.icon = BoxIcon::kNone;
    }
    m_boxes.Show(box);
}

std::u16string CConnectionChooser::DestinationName(const Guid& destination) {
    for (std::size_t index = 0;; ++index) {
        const std::optional<Destination> each = m_connections.EnumDestinations(index);
        if (!each) return {};
        if (each->guid == destination) return each->description;
    }
}

std::u16string CConnectionChooser::HttpProviderName() {
    std::u16string name;
    for (std::size_t index = 0;; ++index) {
        const std::optional<Destination> each = m_connections.EnumDestinations(index);
        if (!each) return name;
        const std::u16string entry = u"HTTP-{" + GuidText(each->guid) + u"}";
        for (const std::u16string_view keys : kProviderKeys) {
            if (m_connections.HasProviderKey(std::u16string(keys) + entry)) name = each->description;
        }
    }
}

}  // namespace rlx
