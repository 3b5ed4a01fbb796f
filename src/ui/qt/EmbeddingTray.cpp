#include "ui/qt/EmbeddingTray.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace vantrel::qt {
namespace {

// The owner of this selection is the first screen's tray.
constexpr std::string_view selection = "_NET_SYSTEM_TRAY_S0";

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

}  // namespace

bool EmbeddingTray::exists() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) return false;
    xcb_connection_t* const connection = x11->connection();
    const auto asked =
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(selection.size()), selection.data());
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection, asked, nullptr), &std::free);
    if (!atom || atom->atom == XCB_ATOM_NONE) return false;
    const auto wanted = xcb_get_selection_owner(connection, atom->atom);
    const Owned<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, wanted, nullptr), &std::free);
    return owner && owner->owner != XCB_WINDOW_NONE;
}

}  // namespace vantrel::qt
