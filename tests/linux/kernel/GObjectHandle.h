// Owns a reference to a GObject.
#pragma once

#include <glib-object.h>
#include <memory>

namespace vantrel::test {

struct GObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <class Object>
using GObjectHandle = std::unique_ptr<Object, GObjectUnref>;

// A reference more to what somebody else owns.
template <class Object>
GObjectHandle<Object> share(Object* object) {
    return GObjectHandle<Object>(static_cast<Object*>(g_object_ref(object)));
}

}  // namespace vantrel::test
