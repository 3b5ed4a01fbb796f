// The transfer tables that the displays had before the program changed any: read
// once per display, then kept for the life of the platform and never replaced,
// so that a dimmed table is never taken for the display's own. Main thread.
#pragma once

#include <map>

#include "platform/DisplayServices.h"

namespace vantrel::platform {

class BaseTables {
  public:
    explicit BaseTables(DisplayServices& displays) : displays_(displays) {}

    bool holds(DisplayID display) const { return tables_.contains(display); }
    // Null when the display has no table that can be read; asks again next time.
    const TransferTable* table(DisplayID display);

  private:
    DisplayServices& displays_;
    std::map<DisplayID, TransferTable> tables_;
};

}  // namespace vantrel::platform
