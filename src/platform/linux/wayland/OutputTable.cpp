#include "platform/linux/wayland/OutputTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>
#include <wayland-protocols/wlr-gamma-control-unstable-v1.h>

namespace vantrel::wayland {
namespace {

// A table that a compositor can mean seriously.
constexpr std::uint32_t largestTable = 65536;

platform::TransferTable plainTable(std::uint32_t capacity) {
    std::vector<float> ramp(capacity, 1.0F);
    for (std::size_t index = 0; index + 1 < ramp.size(); ++index) {
        ramp[index] = static_cast<float>(index) / static_cast<float>(capacity - 1);
    }
    return {ramp, ramp, ramp};
}

// Red, green and blue behind one another, as the protocol wants them.
std::vector<std::uint16_t> samples(const platform::TransferTable& table) {
    std::vector<std::uint16_t> all;
    all.reserve(3 * table.red.size());
    for (const auto* const channel : {&table.red, &table.green, &table.blue}) {
        for (const float sample : *channel) {
            constexpr float most = std::numeric_limits<std::uint16_t>::max();
            const float inside = sample > 0 ? std::min(sample, 1.0F) : 0.0F;
            all.push_back(static_cast<std::uint16_t>(std::lround(inside * most)));
        }
    }
    return all;
}

// A file in memory, for the compositor to read.
class SampleFile {
  public:
    explicit SampleFile(const std::vector<std::uint16_t>& samples)
        : descriptor_(::memfd_create("vantrel-table", MFD_CLOEXEC)) {
        const std::size_t size = samples.size() * sizeof(std::uint16_t);
        // At its start, where a compositor goes on reading.
        isWhole_ =
            descriptor_ >= 0 && ::pwrite(descriptor_, samples.data(), size, 0) == static_cast<ssize_t>(size);
    }
    SampleFile(const SampleFile&) = delete;
    SampleFile& operator=(const SampleFile&) = delete;
    ~SampleFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    bool isWhole() const { return isWhole_; }
    int descriptor() const { return descriptor_; }

  private:
    const int descriptor_;
    bool isWhole_ = false;
};

}  // namespace

OutputTable::OutputTable(Connection& connection, zwlr_gamma_control_manager_v1* manager, wl_output* output)
    : connection_(connection), manager_(manager), output_(output) {
    request();
}

std::optional<platform::TransferTable> OutputTable::table() const {
    if (capacity() == 0) return std::nullopt;
    return last_ ? *last_ : plainTable(capacity_);
}

bool OutputTable::set(const platform::TransferTable& table, const Deadline& deadline) {
    const std::size_t size = capacity();
    if (size == 0 || !connection_.isAlive()) return false;
    if (table.red.size() != size || table.green.size() != size || table.blue.size() != size) return false;
    if (samples(table) == samples(plainTable(capacity_))) {
        isHeld_ = false;
        control_.reset();
        if (!connection_.roundtrip(deadline)) return false;
    } else if (!hold(deadline) || !send(table, deadline)) {
        return false;
    }
    last_ = table;
    return true;
}

void OutputTable::request() {
    control_.reset(zwlr_gamma_control_manager_v1_get_gamma_control(manager_, output_));
    static constexpr zwlr_gamma_control_v1_listener listener = {
        [](void* data, zwlr_gamma_control_v1*, std::uint32_t size) {
            static_cast<OutputTable*>(data)->learnCapacity(size);
        },
        [](void* data, zwlr_gamma_control_v1*) { static_cast<OutputTable*>(data)->refuse(); }};
    zwlr_gamma_control_v1_add_listener(control_.get(), &listener, this);
}

void OutputTable::learnCapacity(std::uint32_t capacity) {
    capacity_ = capacity <= largestTable ? capacity : 0;
    if (!isHeld_) control_.reset();
}

void OutputTable::refuse() {
    isRefused_ = true;
    control_.reset();
}

bool OutputTable::hold(const Deadline& deadline) {
    isHeld_ = true;
    if (control_) return true;
    const std::uint32_t before = capacity_;
    request();
    // Its answer comes with the control, or instead of it.
    if (connection_.roundtrip(deadline) && control_ && capacity_ == before) return true;
    isHeld_ = false;
    control_.reset();
    return false;
}

bool OutputTable::send(const platform::TransferTable& table, const Deadline& deadline) {
    const SampleFile file(samples(table));
    if (!file.isWhole()) return false;
    zwlr_gamma_control_v1_set_gamma(control_.get(), file.descriptor());
    return connection_.roundtrip(deadline) && control_;
}

}  // namespace vantrel::wayland
