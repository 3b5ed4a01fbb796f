// The platform below a DDC channel, made for tests: a registry of entries, the
// private I2C functions of the video links behind them, and a clock. Everything
// that comes through is noted in one journal, in order.
//
// Threads: set up and read back on one thread; the platform's side from any.
// Errors: what the real system would not survive stops the program: a handle
// used or released after its release, two transfers on one link at a time.
// Lifetime: one bus at a time (the private functions know no other way back).
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/AVService.h"
#include "platform/PrivateFunctions.h"
#include "platform/Registry.h"
#include "platform/SymbolLoader.h"
#include "runtime/Clock.h"
#include "runtime/Fatal.h"
#include "support/BusJournal.h"
#include "support/ScriptedService.h"

namespace vantrel::test {

class ScriptedBus final : public platform::Registry, public platform::SymbolLoader, public runtime::Clock {
  public:
    struct Entry {
        std::string name;
        platform::PropertyDictionary properties;
        // Whom a handle made from this entry talks to; null: none can be made.
        ScriptedService* service = nullptr;
    };

    // The bus's own clock notes the sleeps and passes them on to `clock`.
    explicit ScriptedBus(runtime::Clock& clock) : clock_(clock) {
        runtime::require(current_.exchange(this) == nullptr, "there is a second bus");
    }
    ~ScriptedBus() override { current_ = nullptr; }

    BusJournal journal;
    // In the order of the walk.
    std::vector<Entry> entries;
    bool canIterate = true;
    // Private functions that this system does not have.
    std::set<std::string> missingSymbols;

    // Adds a link's framebuffer and proxy to the entries.
    void connect(ScriptedService& service, const std::optional<std::string>& edidUUID = std::nullopt,
                 std::optional<std::uint32_t> serial = std::nullopt) {
        platform::PropertyDictionary product;
        if (serial) product["SerialNumber"] = std::int64_t{*serial};
        platform::PropertyDictionary attributes;
        attributes["ProductAttributes"] = std::move(product);
        Entry framebuffer{"AppleCLCD2", {{"DisplayAttributes", std::move(attributes)}}, nullptr};
        if (edidUUID) framebuffer.properties["EDID UUID"] = *edidUUID;
        entries.push_back(std::move(framebuffer));
        entries.push_back({"DCPAVServiceProxy", {{"Location", std::string("External")}}, &service});
    }
    platform::AVService open(ScriptedService& service) { return {*this, newHandle(service)}; }
    platform::PrivateFunctions& functions() { return functions_; }

    int liveHandles() const {
        const std::lock_guard lock(mutex_);
        return static_cast<int>(std::ranges::count(handles_, false, &Handle::isReleased));
    }
    bool isReleased(int handle) const {
        const std::lock_guard lock(mutex_);
        return handles_.at(static_cast<std::size_t>(handle - 1))->isReleased;
    }
    // Registry objects of the walks: entries given out, entries and iterators not
    // yet given back, and the most entries that were out at one time.
    int visitedEntries() const { return visitedEntries_; }
    int liveEntries() const { return liveEntries_; }
    int mostLiveEntries() const { return mostLiveEntries_; }
    int liveIterators() const { return liveIterators_; }

    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override {
        journal.note({.kind = BusEvent::Kind::walk, .at = now()});
        if (!canIterate) return nullptr;
        return std::make_unique<Walk>(*this);
    }
    void releaseService(const void* service) override {
        Handle& handle = handleOf(service);
        const std::lock_guard lock(mutex_);
        handle.isReleased = true;
    }

    void* open(const std::string&) override { return this; }
    void* lookUp(void*, const std::string& symbol) override {
        if (missingSymbols.contains(symbol)) return nullptr;
        if (symbol == "IOAVServiceCreateWithService") return reinterpret_cast<void*>(&create);
        if (symbol == "IOAVServiceWriteI2C") return reinterpret_cast<void*>(&writeI2C);
        if (symbol == "IOAVServiceReadI2C") return reinterpret_cast<void*>(&readI2C);
        return nullptr;
    }

    runtime::MonotonicTime now() const override { return clock_.now(); }
    runtime::WallTime wallNow() const override { return clock_.wallNow(); }
    void sleepFor(runtime::MonotonicClock::duration duration) override {
        journal.note({.kind = BusEvent::Kind::pause, .at = now(), .length = duration});
        clock_.sleepFor(duration);
    }

  private:
    struct Handle {
        ScriptedBus& bus;
        ScriptedService& service;
        int number;
        bool isReleased = false;
    };

    // One at a time on its link.
    class Transfer {
      public:
        explicit Transfer(const Handle& handle) : service_(handle.service) {
            runtime::require(!service_.isBusy_.test_and_set(), "two transfers on one link at a time");
            const auto duration = service_.transferTime_;
            if (duration != duration.zero()) handle.bus.clock_.sleepFor(duration);
        }
        Transfer(const Transfer&) = delete;
        Transfer& operator=(const Transfer&) = delete;
        ~Transfer() { service_.isBusy_.clear(); }

      private:
        ScriptedService& service_;
    };

    class Visit final : public platform::RegistryEntry {
      public:
        Visit(ScriptedBus& bus, std::size_t index) : bus_(bus), index_(index) {
            ++bus_.visitedEntries_;
            bus_.mostLiveEntries_ = std::max(bus_.mostLiveEntries_.load(), ++bus_.liveEntries_);
        }
        ~Visit() override { --bus_.liveEntries_; }
        std::string name() override { return entry().name; }
        std::optional<platform::PropertyValue> property(std::string_view key) override {
            const auto found = entry().properties.find(std::string(key));
            if (found == entry().properties.end()) return std::nullopt;
            return found->second;
        }
        std::uint32_t object() const override { return firstObject + static_cast<std::uint32_t>(index_); }

      private:
        const Entry& entry() const { return bus_.entries[index_]; }

        ScriptedBus& bus_;
        std::size_t index_;
    };

    class Walk final : public platform::RegistryIterator {
      public:
        explicit Walk(ScriptedBus& bus) : bus_(bus) { ++bus_.liveIterators_; }
        ~Walk() override { --bus_.liveIterators_; }
        std::unique_ptr<platform::RegistryEntry> next() override {
            if (next_ == bus_.entries.size()) return nullptr;
            return std::make_unique<Visit>(bus_, next_++);
        }

      private:
        ScriptedBus& bus_;
        std::size_t next_ = 0;
    };

    // Nobody should take an index for an object.
    static constexpr std::uint32_t firstObject = 0x1000;

    static const void* create(const void* allocator, std::uint32_t object) {
        ScriptedBus* const bus = current_;
        runtime::require(allocator == nullptr, "not the default allocator");
        runtime::require(bus->liveEntries_ > 0, "the registry entry was released");
        ScriptedService* const service = bus->entries.at(object - firstObject).service;
        return service ? bus->newHandle(*service) : nullptr;
    }

    static std::int32_t writeI2C(const void* service, std::uint32_t chip, std::uint32_t address,
                                 const void* bytes, std::uint32_t size) {
        Handle& handle = handleOf(service);
        const auto* const first = static_cast<const std::uint8_t*>(bytes);
        handle.bus.journal.note({.kind = BusEvent::Kind::write,
                                 .at = handle.bus.now(),
                                 .handle = handle.number,
                                 .chip = chip,
                                 .address = address,
                                 .size = size,
                                 .bytes = {first, first + size}});
        const Transfer transfer(handle);
        return handle.service.write();
    }

    static std::int32_t readI2C(const void* service, std::uint32_t chip, std::uint32_t address, void* bytes,
                                std::uint32_t size) {
        Handle& handle = handleOf(service);
        const runtime::MonotonicTime began = handle.bus.now();
        const Transfer transfer(handle);
        ScriptedService::Reply reply = handle.service.read();
        if (reply.status == 0) {
            reply.bytes.resize(size);
            std::copy(reply.bytes.begin(), reply.bytes.end(), static_cast<std::uint8_t*>(bytes));
        }
        handle.bus.journal.note({.kind = BusEvent::Kind::read,
                                 .at = began,
                                 .handle = handle.number,
                                 .chip = chip,
                                 .address = address,
                                 .size = size,
                                 .bytes = reply.bytes});
        return reply.status;
    }

    const void* newHandle(ScriptedService& service) {
        const std::lock_guard lock(mutex_);
        const int number = static_cast<int>(handles_.size()) + 1;
        return handles_.emplace_back(new Handle{*this, service, number}).get();
    }

    static Handle& handleOf(const void* service) {
        auto& handle = *static_cast<Handle*>(const_cast<void*>(service));
        const std::lock_guard lock(handle.bus.mutex_);
        runtime::require(!handle.isReleased, "a handle is used after its release");
        return handle;
    }

    static inline std::atomic<ScriptedBus*> current_ = nullptr;

    runtime::Clock& clock_;
    platform::PrivateFunctions functions_{*this};
    mutable std::mutex mutex_;
    // Kept after their release, so that a use after it is noticed.
    std::vector<std::unique_ptr<Handle>> handles_;
    std::atomic<int> visitedEntries_ = 0;
    std::atomic<int> liveEntries_ = 0;
    std::atomic<int> mostLiveEntries_ = 0;
    std::atomic<int> liveIterators_ = 0;
};

}  // namespace vantrel::test
