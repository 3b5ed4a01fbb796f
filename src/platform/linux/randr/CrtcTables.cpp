#include "platform/linux/randr/CrtcTables.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iterator>

#include "platform/linux/randr/Owned.h"

namespace vantrel::randr {

using platform::TransferTable;

namespace {

constexpr float full = 65535;
// A driver may keep 8 bits of each sample.
constexpr int rounding = 257;

std::uint16_t sampleOf(float value) {
    // Not a number is none of the two.
    if (!(value > 0)) return 0;
    return static_cast<std::uint16_t>(std::lround(std::min(value, 1.0F) * full));
}

std::vector<float> channel(const std::vector<std::uint16_t>& samples, std::size_t number) {
    const std::size_t size = samples.size() / 3;
    std::vector<float> values;
    values.reserve(size);
    for (std::size_t index = number * size; index < (number + 1) * size; ++index) {
        values.push_back(static_cast<float>(samples[index]) / full);
    }
    return values;
}

bool areAlike(const std::vector<std::uint16_t>& one, const std::vector<std::uint16_t>& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](int left, int right) { return std::abs(left - right) <= rounding; });
}

}  // namespace

std::uint32_t CrtcTables::capacity(xcb_randr_crtc_t crtc) const {
    const auto asked = xcb_randr_get_crtc_gamma_size(connection_.get(), crtc);
    const Owned<xcb_randr_get_crtc_gamma_size_reply_t> reply(
        xcb_randr_get_crtc_gamma_size_reply(connection_.get(), asked, nullptr));
    return reply ? reply->size : 0;
}

std::optional<CrtcTables::Samples> CrtcTables::held(xcb_randr_crtc_t crtc) const {
    const auto asked = xcb_randr_get_crtc_gamma(connection_.get(), crtc);
    const Owned<xcb_randr_get_crtc_gamma_reply_t> reply(
        xcb_randr_get_crtc_gamma_reply(connection_.get(), asked, nullptr));
    if (!reply || reply->size == 0) return std::nullopt;
    Samples samples;
    for (const auto* const values :
         {xcb_randr_get_crtc_gamma_red(reply.get()), xcb_randr_get_crtc_gamma_green(reply.get()),
          xcb_randr_get_crtc_gamma_blue(reply.get())}) {
        samples.insert(samples.end(), values, values + reply->size);
    }
    return samples;
}

std::optional<TransferTable> CrtcTables::read(xcb_randr_crtc_t crtc) const {
    const auto samples = held(crtc);
    if (!samples) return std::nullopt;
    const auto written = written_.find(crtc);
    if (written != written_.end() && written->second.held == *samples) return written->second.table;
    return TransferTable{channel(*samples, 0), channel(*samples, 1), channel(*samples, 2)};
}

bool CrtcTables::write(xcb_randr_crtc_t crtc, const TransferTable& table) {
    const std::size_t size = capacity(crtc);
    if (size == 0 || table.red.size() != size || table.green.size() != size || table.blue.size() != size) {
        return false;
    }
    Samples samples;
    for (const auto* const values : {&table.red, &table.green, &table.blue}) {
        std::transform(values->begin(), values->end(), std::back_inserter(samples), sampleOf);
    }
    const std::uint16_t* const first = samples.data();
    const auto asked = xcb_randr_set_crtc_gamma_checked(
        connection_.get(), crtc, static_cast<std::uint16_t>(size), first, first + size, first + 2 * size);
    if (!connection_.succeeds(asked)) return false;
    auto became = held(crtc);
    if (!became || !areAlike(*became, samples)) return false;
    written_[crtc] = {table, std::move(*became)};
    return true;
}

void CrtcTables::writeLinear(xcb_randr_crtc_t crtc) {
    const std::uint32_t size = capacity(crtc);
    if (size < 2) return;
    std::vector<float> values;
    for (std::uint32_t index = 0; index < size; ++index) {
        values.push_back(static_cast<float>(index) / static_cast<float>(size - 1));
    }
    write(crtc, {values, values, values});
}

}  // namespace vantrel::randr
