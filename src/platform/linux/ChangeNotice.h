// Tells a desktop's listener that the outputs aren't any more what it knows. It is told
// later, from the main loop, and not from within a call that finds that out.
//
// Threads: main thread.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/linux/Descriptors.h"
#include "platform/linux/Desktop.h"

namespace vantrel::linux {

class ChangeNotice {
  public:
    // The outputs that there are at first, which nobody has to be told of.
    ChangeNotice(Descriptors& descriptors, std::vector<Desktop::Output> outputs);
    ChangeNotice(const ChangeNotice&) = delete;
    ChangeNotice& operator=(const ChangeNotice&) = delete;
    ~ChangeNotice();

    void listen(std::function<void()> changed) { changed_ = std::move(changed); }
    // The listener is told once of several changes that come together.
    void compare(std::vector<Desktop::Output> outputs);

  private:
    void tell();

    std::vector<Desktop::Output> known_;
    std::function<void()> changed_;
    const int bell_;
    std::unique_ptr<Descriptors::Watch> watch_;
};

}  // namespace vantrel::linux
