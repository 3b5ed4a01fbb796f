// A head of the wlr protocol for managing outputs.
//
// Threads: main thread.
#pragma once

#include "platform/linux/wayland/Head.h"
#include "platform/linux/wayland/ModeList.h"
#include "platform/linux/wayland/Proxy.h"

namespace vantrel::wayland {

class WlrHead {
  public:
    explicit WlrHead(Proxy<zwlr_output_head_v1> head);
    WlrHead(const WlrHead&) = delete;
    WlrHead& operator=(const WlrHead&) = delete;

    zwlr_output_head_v1* object() const { return object_.get(); }
    bool isGone() const { return isGone_; }
    // What was told before the last commit().
    const Head& head() const { return told_; }
    void commit();
    const ModeList<zwlr_output_mode_v1>& modes() const { return modes_; }

  private:
    struct Events;

    Proxy<zwlr_output_head_v1> object_;
    ModeList<zwlr_output_mode_v1> modes_;
    bool isGone_ = false;
    Head next_;
    Head told_;
};

}  // namespace vantrel::wayland
