// A device node of i2c-dev, /dev/i2c-N, in a umockdev test bed: what open(), ioctl(),
// read() and write() mean to the bus behind it.
//
// It stays for as long as the test bed, whether there is a bus or not: whoever has the
// node of a bus open that has gone gets ENODEV, even if another one has come since.
//
// Threads: any; the calls of its users are answered on the test bed's own thread.
// Time: a transfer's user waits until the bus's clock owes nothing. While the node hangs,
// transfers wait until that is over, in their order.
// Lifetime: to be destroyed after the test bed.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <umockdev.h>
#include <utility>
#include <vector>

#include "linux/kernel/EmulatedBus.h"
#include "linux/kernel/GObjectHandle.h"

namespace vantrel::test {

class EmulatedNode {
  public:
    // How often its users did something, whether it worked or not.
    struct Counters {
        std::uint64_t opens = 0;
        std::uint64_t ioctls = 0;
        std::uint64_t reads = 0;
        std::uint64_t writes = 0;
        bool operator==(const Counters&) const = default;
    };

    // The clock is the one that buses owe time in.
    EmulatedNode(int number, const runtime::Clock& clock);
    EmulatedNode(const EmulatedNode&) = delete;
    EmulatedNode& operator=(const EmulatedNode&) = delete;
    ~EmulatedNode();

    static std::string path(int number) { return "/dev/i2c-" + std::to_string(number); }
    // Once.
    void attach(UMockdevTestbed* testbed);

    // From now on whoever opens it talks to this bus.
    void connect(std::shared_ptr<EmulatedBus> bus);
    void disconnect();

    // `stuck` is called on the test bed's thread for each transfer that begins to wait.
    void hang(std::function<void()> stuck);
    void resume();

    Counters counters() const;

  private:
    class Calls;
    friend class Calls;

    struct User {
        // Null: there was none when the node was opened.
        std::shared_ptr<EmulatedBus> bus;
        std::uint64_t generation = 0;
        std::uint16_t address = 0;
    };
    // Asks the bus; its result is the system call's, or -errno.
    using Transfer = std::function<long(EmulatedBus&)>;
    struct StuckTransfer {
        GObjectHandle<UMockdevIoctlClient> client;
        Transfer transfer;
    };

    // All of these on the test bed's thread.
    void opened(UMockdevIoctlClient* client);
    void closed(UMockdevIoctlClient* client);
    // The bus that this user opened, unless it has gone since.
    std::shared_ptr<EmulatedBus> busOf(UMockdevIoctlClient* client) const;
    void start(UMockdevIoctlClient* client, Transfer transfer);
    void perform(UMockdevIoctlClient* client, const Transfer& transfer);
    void performStuck();
    void count(std::uint64_t Counters::*counter);

    const int number_;
    const runtime::Clock& clock_;
    GObjectHandle<UMockdevIoctlBase> handler_;
    // The test bed's thread only.
    std::map<UMockdevIoctlClient*, User> users_;
    std::vector<StuckTransfer> stuckTransfers_;

    mutable std::mutex mutex_;
    Counters counters_;
    std::shared_ptr<EmulatedBus> bus_;
    // Which bus it is, counted.
    std::uint64_t generation_ = 0;
    bool isHanging_ = false;
    std::function<void()> stuck_;
    // The test bed's thread runs it; known once somebody has opened the node.
    GMainContext* context_ = nullptr;
};

}  // namespace vantrel::test
