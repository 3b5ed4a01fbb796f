#include "platform/linux/KernelNodes.h"

#include <array>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/KernelI2C.h"

namespace vantrel::linux {

DeviceNodes::Access KernelNodes::access(I2CDevices::Bus bus) {
    const std::string path = KernelI2C::path(bus);
    if (::access(path.c_str(), F_OK) != 0) return Access::missing;
    return ::access(path.c_str(), R_OK | W_OK) == 0 ? Access::allowed : Access::forbidden;
}

std::optional<std::string> KernelNodes::group(I2CDevices::Bus bus) {
    struct stat status {};
    if (::stat(KernelI2C::path(bus).c_str(), &status) != 0 || status.st_gid == 0) return std::nullopt;
    if ((status.st_mode & (S_IRGRP | S_IWGRP)) != (S_IRGRP | S_IWGRP)) return std::nullopt;
    struct group entry {};
    struct group* found = nullptr;
    std::array<char, 4096> names{};
    if (::getgrgid_r(status.st_gid, &entry, names.data(), names.size(), &found) != 0 || found == nullptr) {
        return std::nullopt;
    }
    return std::string(found->gr_name);
}

}  // namespace vantrel::linux
