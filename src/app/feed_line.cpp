#include "app/feed_line.h"

#include <QGuiApplication>
#include <QScreen>

#include "base/text.h"
#include "feeds/feed_address.h"
#include "feeds/feed_client.h"
#include "feeds/feed_parameters.h"
#include "feeds/http_url.h"
#include "platform/posix/machine_connections.h"
#include "platform/posix/machine_info.h"

namespace rlx {

namespace {

class CGoOnObserver : public IHttpObserver {
public:
    explicit CGoOnObserver(const std::function<bool()>& goOn) : m_goOn(goOn) {}

    bool GoOn(const HttpProgress& /*progress*/) override { return m_goOn(); }

private:
    const std::function<bool()>& m_goOn;
};

PixelSize SizeOf(const QSize& size) {
    return {size.width(), size.height()};
}

FeedDevice ThisDevice() {
    const MachineInfo machine = ReadMachineInfo();
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize whole = screen != nullptr ? screen->size() : QSize();
    const QSize free = screen != nullptr ? screen->availableSize() : QSize();
    return {machine.osMajor, machine.osMinor, machine.processor, Widen(RLX_VERSION), SizeOf(whole), SizeOf(free)};
}

}  // namespace

CFeedLine::CFeedLine(IFileSystem& files, std::filesystem::path folder, IRegistry& registry, IMessageBoxes& boxes,
                     const ITexts& texts)
    : m_files(files), m_folder(std::move(folder)), m_registry(registry), m_boxes(boxes), m_texts(texts) {}

std::u16string CFeedLine::Weather(const std::u16string& feedName, const QSize& screen,
                                  const std::function<bool()>& goOn) {
    const std::u16string address = FeedServerAddress(m_files, m_folder);
    const auto url = ParseHttpUrl(address);
    CMachineConnections connections(url ? url->host : std::string(), m_texts.Text(kTextLoopbackNetwork));
    CFeedClient client({m_http, connections, m_registry, m_boxes, m_texts});
    const CFeedParameters parameters(m_registry, ThisDevice());
    CGoOnObserver observer(goOn);
    return client.PostFeedRequest(address, parameters.WeatherParameters(feedName, SizeOf(screen)), false, &observer)
        .body;
}

}  // namespace rlx
