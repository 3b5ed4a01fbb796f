// An output of KDE's protocols.
//
// Threads: main thread.
#pragma once

#include <cstdint>

#include "platform/linux/wayland/Head.h"
#include "platform/linux/wayland/ModeList.h"
#include "platform/linux/wayland/Proxy.h"

namespace vantrel::wayland {

class KDEDevice {
  public:
    // The first version whose devices have names.
    static constexpr std::uint32_t neededVersion = 2;

    explicit KDEDevice(Proxy<kde_output_device_v2> device);
    KDEDevice(const KDEDevice&) = delete;
    KDEDevice& operator=(const KDEDevice&) = delete;

    kde_output_device_v2* object() const { return object_.get(); }
    // What the compositor has told together; without a name until it has.
    const Head& head() const { return told_; }
    const ModeList<kde_output_device_mode_v2>& modes() const { return modes_; }

  private:
    struct Events;

    void commit();

    Proxy<kde_output_device_v2> object_;
    ModeList<kde_output_device_mode_v2> modes_;
    Head next_;
    Head told_;
};

}  // namespace vantrel::wayland
