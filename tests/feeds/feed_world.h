#pragma once

#include <string>
#include <vector>

#include "base/text.h"
#include "feeds/feed_client.h"
#include "feeds/standard_networks.h"
#include "platform/curl/curl_http_session.h"
#include "platform/fake/fake_connection_manager.h"
#include "platform/fake/memory_registry.h"
#include "platform/fake/scripted_message_boxes.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "support/scripted_server.h"

namespace rlx::test {

inline HttpLimits QuickLimits() {
    HttpLimits limits;
    limits.connect = std::chrono::milliseconds(5000);
    limits.stall = std::chrono::milliseconds(300);
    limits.whole = std::chrono::milliseconds(20000);
    return limits;
}

/// A box as one line: "Error!|!|text", with "!" for an exclamation mark, "i" information, "?" question, "-" none.
inline std::string BoxLine(const MessageBox& box) {
    const char* icon = "-";
    if (box.icon == BoxIcon::kExclamation) icon = "!";
    if (box.icon == BoxIcon::kInformation) icon = "i";
    if (box.icon == BoxIcon::kQuestion) icon = "?";
    return ToUtf8(box.title) + "|" + icon + "|" + ToUtf8(box.text);
}

/// A device with one network to the Internet, and all that a request needs.
struct FeedWorld {
    FeedWorld() {
        connections.networks = {{kNetworkInternet, u"My ISP", {true}}};
        connections.probe = kNetworkInternet;
        boxes.always = BoxAnswer::kYes;
    }

    std::string Text(std::u16string_view name) {
        return registry.Query(RegistryRoot::kLocalMachine, keys::kRoamlytix, name)
                   ? Narrow(settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, name))
                   : "(none)";
    }
    int Flag(std::u16string_view name) {
        const auto number = static_cast<int>(settings.ReadDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, name));
        return settings.Status() == ReadStatus::kRead ? number : -1;
    }
    /// Every box but the confirmations.
    std::vector<std::string> Messages() const {
        std::vector<std::string> lines;
        for (const MessageBox& box : boxes.shown) {
            if (box.buttons == BoxButtons::kOk) lines.push_back(BoxLine(box));
        }
        return lines;
    }

    CMemoryRegistry registry;
    CRegistryStore settings{registry};
    CFakeConnectionManager connections;
    CScriptedMessageBoxes boxes;
    const CResources texts;
    CCurlHttpSession http{QuickLimits()};
    FeedPorts ports{http, connections, registry, boxes, texts};
    CFeedClient client{ports};
};

/// A reply in the form that the protocol asks for.
inline std::string FeedReplyBytes(const std::string& body, const std::string& code = "1005",
                                  const std::string& newsId = "7", const std::string& session = "S1",
                                  const std::string& status = "200 OK") {
    return "HTTP/1.1 " + status + "\r\nsessionId: " + session + ".\r\nServerMSG: " + code +
           "\r\nContent-Type: text/plain\r\nnewsid: " + newsId + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\n\r\n" + body;
}

}  // namespace rlx::test
