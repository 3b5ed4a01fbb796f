// What keeps the program from the monitors on this computer, as far as its system can
// tell, each with the way out: a missing permission, a module that isn't loaded.
// Threads: main thread.
#pragma once

#include <vector>

#include "text/Text.h"

namespace vantrel::platform {

class Obstacles {
  public:
    virtual ~Obstacles() = default;
    // As they stand now, for the displays that were online at the last look; none is the rule.
    virtual std::vector<text::Text> find() = 0;
};

// A system on which nothing can be in the way that a user could remove.
class NoObstacles : public Obstacles {
  public:
    std::vector<text::Text> find() override { return {}; }
};

}  // namespace vantrel::platform
