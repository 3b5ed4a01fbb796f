// The modes that a protocol offers for one output, each by an object of its own.
//
// Threads: main thread.
#pragma once

#include <algorithm>
#include <list>

#include "platform/linux/wayland/Head.h"
#include "platform/linux/wayland/Mode.h"
#include "platform/linux/wayland/Proxy.h"

namespace vantrel::wayland {

template <class Object>
class ModeList {
  public:
    void add(Object* object) { modes_.push_back({Proxy<Object>(object), {}, false}); }
    // Lets go of the object.
    void remove(const Object* object) {
        if (current_ == object) current_ = nullptr;
        modes_.remove_if([object](const Offered& offered) { return offered.object.get() == object; });
    }

    void setSize(const Object* object, int width, int height) {
        offered(object)->mode.width = width;
        offered(object)->mode.height = height;
    }
    void setRefresh(const Object* object, int refresh) { offered(object)->mode.refresh = refresh; }
    void prefer(const Object* object) { offered(object)->isPreferred = true; }
    void setCurrent(const Object* object) { current_ = object; }

    // Nothing when there is no such mode any more.
    Object* object(const Mode& mode) const {
        const auto found = std::find_if(modes_.begin(), modes_.end(),
                                        [&](const Offered& offered) { return offered.mode == mode; });
        return found != modes_.end() ? found->object.get() : nullptr;
    }
    void describe(Head& head) const {
        head.modes.clear();
        head.preferred.reset();
        head.shape.mode.reset();
        for (const Offered& offered : modes_) {
            // A size that was never told is no size to ask for.
            if (offered.mode.width <= 0 || offered.mode.height <= 0) continue;
            head.modes.push_back(offered.mode);
            if (offered.isPreferred && !head.preferred) head.preferred = offered.mode;
            if (offered.object.get() == current_) head.shape.mode = offered.mode;
        }
    }

  private:
    struct Offered {
        Proxy<Object> object;
        Mode mode;
        bool isPreferred = false;
    };

    // Of an object that was added.
    Offered* offered(const Object* object) {
        return &*std::find_if(modes_.begin(), modes_.end(),
                              [object](const Offered& offered) { return offered.object.get() == object; });
    }

    std::list<Offered> modes_;
    const Object* current_ = nullptr;
};

}  // namespace vantrel::wayland
