// Whether somebody asked a task to stop, shared by everything that the task
// awaits. Main thread.
#pragma once

namespace vantrel::runtime {

// Something that a task is waiting for and that can end the wait early.
class CancellableWait {
  public:
    virtual void cancelled() = 0;

  protected:
    ~CancellableWait() = default;
};

class Cancellation {
  public:
    bool isRequested() const { return isRequested_; }

    void request() {
        if (isRequested_) return;
        isRequested_ = true;
        if (wait_ != nullptr) wait_->cancelled();
    }

    void setWait(CancellableWait* wait) { wait_ = wait; }

  private:
    bool isRequested_ = false;
    CancellableWait* wait_ = nullptr;
};

}  // namespace vantrel::runtime
