#include "platform/linux/randr/RandRDesktop.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/linux/randr/OutputSwitch.h"
#include "platform/linux/randr/Owned.h"

namespace vantrel::randr {

using linux::Desktop;

namespace {

// In words of four bytes: more blocks than a monitor can have.
constexpr std::uint32_t longestEDID = 256 * 128 / 4;

// ":0" and ":0.0" name one screen.
std::string identityOf(const std::string& display) {
    char* parsed = nullptr;
    int number = 0;
    int screen = 0;
    if (xcb_parse_display(display.c_str(), &parsed, &number, &screen) == 0) return "x11-";
    const Owned<char> host(parsed);
    std::string identity = host.get();
    std::replace_if(
        identity.begin(), identity.end(),
        [](unsigned char character) { return std::isalnum(character) == 0 && character != '.'; }, '-');
    identity = "x11-" + identity + ":" + std::to_string(number);
    return screen == 0 ? identity : identity + "." + std::to_string(screen);
}

}  // namespace

std::unique_ptr<RandRDesktop> RandRDesktop::open(const std::string& display, linux::Descriptors& descriptors,
                                                 runtime::MainLoop& mainLoop) {
    auto connection = Connection::open(display);
    if (!connection) return nullptr;
    return std::unique_ptr<RandRDesktop>(
        new RandRDesktop(identityOf(display), std::move(connection), descriptors, mainLoop));
}

RandRDesktop::RandRDesktop(std::string identity, std::unique_ptr<Connection> connection,
                           linux::Descriptors& descriptors, runtime::MainLoop& mainLoop)
    : identity_(std::move(identity)),
      connection_(std::move(connection)),
      tables_(*connection_),
      poster_(mainLoop.poster()) {
    watch_ = descriptors.watch(xcb_get_file_descriptor(connection_->get()), [this] { takeEvents(); });
}

std::vector<Desktop::Output> RandRDesktop::outputs() {
    auto found = look();
    takeEvents();
    return found;
}

std::vector<Desktop::Output> RandRDesktop::look() {
    const auto layout = Layout::read(*connection_);
    if (!layout) return {};
    xcb_connection_t* const server = connection_->get();
    std::vector<xcb_randr_get_output_property_cookie_t> asked;
    for (const Layout::Output& output : layout->outputs) {
        asked.push_back(xcb_randr_get_output_property(server, output.id, connection_->edid(), XCB_ATOM_ANY, 0,
                                                      longestEDID, 0, 0));
    }
    std::vector<Output> found;
    for (std::size_t index = 0; index < asked.size(); ++index) {
        const Layout::Output& there = layout->outputs[index];
        const Owned<xcb_randr_get_output_property_reply_t> edid(
            xcb_randr_get_output_property_reply(server, asked[index], nullptr));
        Output output;
        output.name = there.name;
        if (edid && edid->format == 8) {
            const std::uint8_t* const bytes = xcb_randr_get_output_property_data(edid.get());
            output.edid.assign(bytes, bytes + xcb_randr_get_output_property_data_length(edid.get()));
        }
        output.isConnected = there.isConnected;
        if (const Layout::Crtc* const crtc = layout->crtcOf(there)) {
            output.isLit = true;
            output.tableCapacity = tables_.capacity(crtc->id);
            output.place =
                crtc->picture.toJSON().dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
        }
        found.push_back(std::move(output));
    }
    if (!connection_->isAlive()) found.clear();
    return found;
}

xcb_randr_crtc_t RandRDesktop::crtcOf(const std::string& name) {
    const auto layout = Layout::read(*connection_);
    const Layout::Output* const output = layout ? layout->output(name) : nullptr;
    const Layout::Crtc* const crtc = output != nullptr ? layout->crtcOf(*output) : nullptr;
    return crtc != nullptr ? crtc->id : XCB_NONE;
}

std::optional<platform::TransferTable> RandRDesktop::table(const std::string& output) {
    const xcb_randr_crtc_t crtc = crtcOf(output);
    auto found = crtc != XCB_NONE ? tables_.read(crtc) : std::nullopt;
    takeEvents();
    return found;
}

bool RandRDesktop::setTable(const std::string& output, const platform::TransferTable& table) {
    const xcb_randr_crtc_t crtc = crtcOf(output);
    const bool isSet = crtc != XCB_NONE && tables_.write(crtc, table);
    takeEvents();
    return isSet;
}

std::optional<Desktop::Arrangement> RandRDesktop::arrangement(const std::string& name) {
    const auto layout = Layout::read(*connection_);
    takeEvents();
    const Layout::Output* const output = layout ? layout->output(name) : nullptr;
    const auto placement = output != nullptr ? layout->placement(*output) : std::nullopt;
    if (!placement) return std::nullopt;
    return placement->text();
}

bool RandRDesktop::darken(const std::string& output) {
    const bool isDone = OutputSwitch(*connection_, tables_).darken(output);
    takeEvents();
    return isDone;
}

bool RandRDesktop::light(const std::string& output, const std::optional<Arrangement>& arrangement) {
    const auto before = arrangement ? Placement::parse(*arrangement) : std::nullopt;
    const bool isDone = OutputSwitch(*connection_, tables_).light(output, before);
    takeEvents();
    return isDone;
}

void RandRDesktop::onChange(std::function<void()> changed) {
    changed_ = std::move(changed);
    told_.clear();
    if (changed_) told_ = outputs();
}

// What the server told while an answer was waited for is in memory by now, where no file
// descriptor shows it: so it is taken after every call too.
void RandRDesktop::takeEvents() {
    bool isNews = connection_->takeEvents();
    if (!connection_->isAlive() && watch_) {
        watch_.reset();
        isNews = true;
    }
    if (!isNews || !changed_ || isTellingPosted_) return;
    isTellingPosted_ = true;
    poster_.post([this, isThere = std::weak_ptr<bool>(isThere_)] {
        if (!isThere.expired()) tell();
    });
}

void RandRDesktop::tell() {
    isTellingPosted_ = false;
    auto now = outputs();
    if (!changed_ || now == told_) return;
    told_ = std::move(now);
    // It may take itself back, or end all of this.
    const auto changed = changed_;
    changed();
}

}  // namespace vantrel::randr
