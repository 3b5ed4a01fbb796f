// What is in the way on a Linux computer: I2C buses that have no device file or that the
// user may not use, monitors that don't answer, a desktop that lends no transfer table.
// Threads: main thread. Lifetime: everything given to it outlives it.
#pragma once

#include <vector>

#include "platform/Obstacles.h"
#include "platform/linux/AnswerLog.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/DeviceNodes.h"
#include "platform/linux/Inventory.h"
#include "platform/linux/LinuxDisplayServices.h"

namespace vantrel::linux {

class LinuxObstacles : public platform::Obstacles {
  public:
    LinuxObstacles(const Inventory& inventory, LinuxDisplayServices& displays, const AnswerLog& answers,
                   DeviceNodes& nodes, Desktop& desktop)
        : inventory_(inventory), displays_(displays), answers_(answers), nodes_(nodes), desktop_(desktop) {}

    std::vector<text::Text> find() override;

  private:
    // Nothing for a display that can be talked to, as far as is known.
    std::optional<text::Text> obstacle(const Inventory::Display& display);
    std::optional<text::Text> obstacle(I2CDevices::Bus bus);
    text::Text forbidden(I2CDevices::Bus bus);

    const Inventory& inventory_;
    LinuxDisplayServices& displays_;
    const AnswerLog& answers_;
    DeviceNodes& nodes_;
    Desktop& desktop_;
};

}  // namespace vantrel::linux
