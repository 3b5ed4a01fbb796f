// One program of a kind for each user: the first one listens, each later one calls
// it and ends.
// Threads: main thread. Needs a QtApplication. Errors: where no socket can be made,
// each program is its own first one.
#pragma once

#include <functional>
#include <memory>
#include <string>

class QLocalServer;

namespace vantrel::qt {

class SingleInstance {
  public:
    // Programs with other names don't know of each other.
    explicit SingleInstance(const std::string& name);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    // False when there was one already; it has been called then.
    bool isFirst() const { return server_ != nullptr; }
    // Another one was started.
    void onCall(std::function<void()> action) { called_ = std::move(action); }

  private:
    std::unique_ptr<QLocalServer> server_;
    std::function<void()> called_;
};

}  // namespace vantrel::qt
