// An object of a client in the mock compositor, with what its requests need to know.
#pragma once

#include <cstdint>
#include <functional>
#include <wayland-server.h>

namespace vantrel::wayland {

// Lives until the client's object does; then `gone` is called.
template <class Owner>
struct MockObject {
    Owner& owner;
    MockMonitor* monitor = nullptr;
    std::function<void(wl_resource*)> gone;

    static MockObject& of(wl_resource* resource) {
        return *static_cast<MockObject*>(wl_resource_get_user_data(resource));
    }
    static wl_resource* make(wl_client* client, const wl_interface& interface, std::uint32_t version,
                             std::uint32_t id, const void* requests, MockObject object) {
        wl_resource* const resource = wl_resource_create(client, &interface, static_cast<int>(version), id);
        wl_resource_set_implementation(resource, requests, new MockObject(std::move(object)),
                                       [](wl_resource* ending) {
                                           MockObject* const object = &of(ending);
                                           if (object->gone) object->gone(ending);
                                           delete object;
                                       });
        return resource;
    }
};

inline void endMockObject(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

}  // namespace vantrel::wayland
