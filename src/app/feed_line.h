#pragma once

#include <QSize>
#include <functional>
#include <string>

#include "feeds/feed_device.h"
#include "platform/curl/curl_http_session.h"
#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "platform/registry.h"
#include "shell/texts.h"

namespace rlx {

/// The window's way to the feed server. References must outlive it. User-interface thread.
class CFeedLine {
public:
    /// `folder`: the application folder, which holds the server's address.
    CFeedLine(IFileSystem& files, std::filesystem::path folder, IRegistry& registry, IMessageBoxes& boxes,
              const ITexts& texts);

    /// The server's reply to the weather request for a feed name, for a screen of that size; empty on any failure,
    /// which was then reported. `goOn` is called many times a second; false ends the request.
    std::u16string Weather(const std::u16string& feedName, const QSize& screen, const std::function<bool()>& goOn);

private:
    IFileSystem& m_files;
    std::filesystem::path m_folder;
    IRegistry& m_registry;
    IMessageBoxes& m_boxes;
    const ITexts& m_texts;
    CCurlHttpSession m_http;
};

}  // namespace rlx
