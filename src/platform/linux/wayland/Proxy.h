// Owns the client's side of an object of the compositor, and lets go of it in the way
// that its interface asks for.
#pragma once

#include <memory>

struct kde_output_configuration_v2;
struct kde_output_device_mode_v2;
struct kde_output_device_v2;
struct kde_output_management_v2;
struct wl_callback;
struct wl_output;
struct wl_registry;
struct zwlr_gamma_control_manager_v1;
struct zwlr_gamma_control_v1;
struct zwlr_output_configuration_head_v1;
struct zwlr_output_configuration_v1;
struct zwlr_output_head_v1;
struct zwlr_output_manager_v1;
struct zwlr_output_mode_v1;

namespace vantrel::wayland {

struct ProxyEnd {
    void operator()(kde_output_configuration_v2*) const;
    void operator()(kde_output_device_mode_v2*) const;
    void operator()(kde_output_device_v2*) const;
    void operator()(kde_output_management_v2*) const;
    void operator()(wl_callback*) const;
    void operator()(wl_output*) const;
    void operator()(wl_registry*) const;
    void operator()(zwlr_gamma_control_manager_v1*) const;
    void operator()(zwlr_gamma_control_v1*) const;
    void operator()(zwlr_output_configuration_head_v1*) const;
    void operator()(zwlr_output_configuration_v1*) const;
    void operator()(zwlr_output_head_v1*) const;
    void operator()(zwlr_output_manager_v1*) const;
    void operator()(zwlr_output_mode_v1*) const;
};

template <class Object>
using Proxy = std::unique_ptr<Object, ProxyEnd>;

}  // namespace vantrel::wayland
