// A desktop in memory, which does what it is told, or doesn't.
// Threads: main thread.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "linux/SysfsTree.h"
#include "platform/linux/Desktop.h"

namespace vantrel::linux {

class FakeDesktop : public Desktop {
  public:
    // What it does to an output, it does to the connector in the tree too, if there is one.
    explicit FakeDesktop(SysfsTree* tree = nullptr) : tree_(tree) {}

    // A straight line in every channel, as an output has it from the start.
    static platform::TransferTable straightTable(std::size_t samples) {
        std::vector<float> channel(samples);
        for (std::size_t index = 0; index < samples; ++index) {
            channel[index] =
                static_cast<float>(index) / static_cast<float>(std::max<std::size_t>(samples - 1, 1));
        }
        return {channel, channel, channel};
    }
    static Output outputOf(const std::string& name, std::vector<std::uint8_t> edid) {
        return {.name = name,
                .edid = std::move(edid),
                .monitor = {},
                .isConnected = true,
                .isLit = true,
                .tableCapacity = 256,
                .place = "1920x1080+0+0"};
    }

    // `connector` ("card0-DP-1") is the one in the tree.
    void add(const Output& output, const std::string& connector = {}) {
        outputs_.push_back(output);
        tables_[output.name] = straightTable(output.tableCapacity);
        if (!connector.empty()) connectors_[output.name] = connector;
        enable(output.name);
        changed();
    }
    // To be looked at and, followed by changed(), changed.
    Output& output(const std::string& name) { return *find(name); }
    void remove(const std::string& name) {
        outputs_.erase(find(name));
        changed();
    }
    // A monitor is plugged in or out, and the desktop lights or darkens its output, unless it
    // remembers that the output was dark.
    void plug(const std::string& name, std::vector<std::uint8_t> edid, bool isLit = true) {
        output(name).edid = std::move(edid);
        output(name).isConnected = true;
        set(name, isLit);
    }
    void unplug(const std::string& name) {
        output(name).edid.clear();
        output(name).isConnected = false;
        set(name, false);
    }
    // Tells the listener.
    void changed() const {
        if (listener_) listener_();
    }

    // From now on it has gone.
    void vanish() {
        isGone_ = true;
        changed();
    }
    // Whether it takes no darken and light from now on, though it offers them.
    bool refuses = false;
    // Whether it takes them, but doesn't do them.
    bool takesOnly = false;
    // Whether no table can be read, or set, from now on.
    bool hidesTables = false;
    bool refusesTables = false;
    // Whether an output without a picture has no table, as on X11.
    bool darkHaveNoTables = false;
    bool keeps = true;
    bool switches = true;
    // Happens once, in the middle of the next darken that is taken.
    std::function<void()> meanwhile;
    std::string identityText = "fake-:0";
    // Every call that changes something: "darken DP-1", "light DP-1 1920x1080+0+0", "table DP-1".
    std::vector<std::string> calls;

    std::string name() const override { return "Fake"; }
    std::string identity() const override { return identityText; }
    bool isThere() override { return !isGone_; }
    std::vector<Output> outputs() override { return isGone_ ? std::vector<Output>() : outputs_; }

    std::optional<platform::TransferTable> table(const std::string& output) override {
        const auto found = tables_.find(output);
        if (isGone_ || hidesTables || found == tables_.end() || found->second.red.empty())
            return std::nullopt;
        return found->second;
    }
    bool setTable(const std::string& output, const platform::TransferTable& table) override {
        calls.push_back("table " + output);
        const auto found = tables_.find(output);
        if (isGone_ || refusesTables || found == tables_.end()) return false;
        if (darkHaveNoTables && !isLit(output)) return false;
        if (found->second.red.size() != table.red.size()) return false;
        found->second = table;
        return true;
    }
    bool keepsTables() const override { return keeps; }

    bool canSwitch() const override { return switches; }
    std::optional<Arrangement> arrangement(const std::string& output) override {
        const auto found = find(output);
        if (isGone_ || found == outputs_.end() || !found->isLit) return std::nullopt;
        return found->place;
    }
    bool darken(const std::string& output) override {
        calls.push_back("darken " + output);
        if (isGone_ || refuses || !switches || find(output) == outputs_.end()) return false;
        if (takesOnly) return true;
        find(output)->place.clear();
        if (const auto event = std::exchange(meanwhile, nullptr)) event();
        set(output, false);
        return true;
    }
    bool light(const std::string& output, const std::optional<Arrangement>& arrangement) override {
        calls.push_back("light " + output + (arrangement ? " " + *arrangement : ""));
        const auto found = find(output);
        if (isGone_ || refuses || !switches || found == outputs_.end() || !found->isConnected) return false;
        if (takesOnly) return true;
        found->place = arrangement.value_or("preferred");
        set(output, true);
        return true;
    }
    void onChange(std::function<void()> changed) override { listener_ = std::move(changed); }

  private:
    std::vector<Output>::iterator find(const std::string& name) {
        return std::find_if(outputs_.begin(), outputs_.end(),
                            [&name](const Output& output) { return output.name == name; });
    }
    bool isLit(const std::string& output) {
        const auto found = find(output);
        return found != outputs_.end() && found->isLit;
    }
    void set(const std::string& output, bool isLit) {
        find(output)->isLit = isLit;
        enable(output);
        changed();
    }
    void enable(const std::string& output) {
        const auto connector = connectors_.find(output);
        if (tree_ == nullptr || connector == connectors_.end()) return;
        if (find(output)->isLit) {
            tree_->enable(connector->second);
        } else {
            tree_->disable(connector->second);
        }
    }

    SysfsTree* tree_;
    bool isGone_ = false;
    std::vector<Output> outputs_;
    std::map<std::string, std::string> connectors_;
    std::map<std::string, platform::TransferTable> tables_;
    std::function<void()> listener_;
};

}  // namespace vantrel::linux
