// Another connection to an X server, for what `xrandr` can't do.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/linux/randr/Connection.h"
#include "platform/linux/randr/Layout.h"
#include "platform/linux/randr/Owned.h"

namespace vantrel::randr {

class OtherClient {
  public:
    explicit OtherClient(const std::string& display) : connection_(Connection::open(display)) {}

    Layout layout() const { return *Layout::read(*connection_); }

    void setProperty(const std::string& output, const std::string& property,
                     const std::vector<std::uint8_t>& bytes) const {
        const auto named = xcb_intern_atom(connection_->get(), 0, static_cast<std::uint16_t>(property.size()),
                                           property.data());
        const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection_->get(), named, nullptr));
        EXPECT_TRUE(connection_->succeeds(xcb_randr_change_output_property_checked(
            connection_->get(), id(output), atom->atom, XCB_ATOM_INTEGER, 8, XCB_PROP_MODE_REPLACE,
            static_cast<std::uint32_t>(bytes.size()), bytes.data())));
    }

    // The samples of red.
    std::vector<std::uint16_t> red(const std::string& output) const {
        const auto asked = xcb_randr_get_crtc_gamma(connection_->get(), crtc(output));
        const Owned<xcb_randr_get_crtc_gamma_reply_t> reply(
            xcb_randr_get_crtc_gamma_reply(connection_->get(), asked, nullptr));
        const std::uint16_t* const first = xcb_randr_get_crtc_gamma_red(reply.get());
        return {first, first + reply->size};
    }
    void setAll(const std::string& output, std::uint16_t value) const {
        const std::vector<std::uint16_t> samples(red(output).size(), value);
        EXPECT_TRUE(connection_->succeeds(xcb_randr_set_crtc_gamma_checked(
            connection_->get(), crtc(output), static_cast<std::uint16_t>(samples.size()), samples.data(),
            samples.data(), samples.data())));
    }

    xcb_randr_crtc_t crtc(const std::string& output) const { return layout().output(output)->crtc; }

  private:
    xcb_randr_output_t id(const std::string& output) const { return layout().output(output)->id; }

    const std::unique_ptr<Connection> connection_;
};

}  // namespace vantrel::randr
