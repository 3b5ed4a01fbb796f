#include "platform/linux/wayland/Proxy.h"

#include <wayland-client.h>
#include <wayland-protocols/kde-output-device-v2.h>
#include <wayland-protocols/kde-output-management-v2.h>
#include <wayland-protocols/wlr-gamma-control-unstable-v1.h>
#include <wayland-protocols/wlr-output-management-unstable-v1.h>

namespace vantrel::wayland {

void ProxyEnd::operator()(kde_output_configuration_v2* object) const {
    kde_output_configuration_v2_destroy(object);
}
void ProxyEnd::operator()(kde_output_device_mode_v2* object) const {
    kde_output_device_mode_v2_destroy(object);
}
void ProxyEnd::operator()(kde_output_device_v2* object) const { kde_output_device_v2_destroy(object); }
void ProxyEnd::operator()(kde_output_management_v2* object) const {
    kde_output_management_v2_destroy(object);
}
void ProxyEnd::operator()(wl_callback* object) const { wl_callback_destroy(object); }
void ProxyEnd::operator()(wl_output* object) const { wl_output_release(object); }
void ProxyEnd::operator()(wl_registry* object) const { wl_registry_destroy(object); }
void ProxyEnd::operator()(zwlr_gamma_control_manager_v1* object) const {
    zwlr_gamma_control_manager_v1_destroy(object);
}
void ProxyEnd::operator()(zwlr_gamma_control_v1* object) const { zwlr_gamma_control_v1_destroy(object); }
void ProxyEnd::operator()(zwlr_output_configuration_head_v1* object) const {
    zwlr_output_configuration_head_v1_destroy(object);
}
void ProxyEnd::operator()(zwlr_output_configuration_v1* object) const {
    zwlr_output_configuration_v1_destroy(object);
}
void ProxyEnd::operator()(zwlr_output_head_v1* object) const { zwlr_output_head_v1_destroy(object); }
void ProxyEnd::operator()(zwlr_output_manager_v1* object) const { zwlr_output_manager_v1_destroy(object); }
void ProxyEnd::operator()(zwlr_output_mode_v1* object) const { zwlr_output_mode_v1_destroy(object); }

}  // namespace vantrel::wayland
