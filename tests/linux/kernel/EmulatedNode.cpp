#include "linux/kernel/EmulatedNode.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <linux/i2c-dev.h>
#include <linux/i2c.h>
#include <optional>

#include "runtime/Fatal.h"

namespace vantrel::test {
namespace {

using Message = EmulatedBus::Message;

// What the kernel takes at most.
constexpr std::size_t longestMessage = 8192;

void complete(UMockdevIoctlClient* client, long result) {
    if (result < 0) {
        umockdev_ioctl_client_complete(client, -1, static_cast<gint>(-result));
    } else {
        umockdev_ioctl_client_complete(client, result, 0);
    }
}

// Completes on this thread, later.
void completeAfter(UMockdevIoctlClient* client, long result, runtime::MonotonicClock::duration delay) {
    struct Completion {
        GObjectHandle<UMockdevIoctlClient> client;
        long result;
    };
    const auto run = [](gpointer data) -> gboolean {
        const auto* completion = static_cast<Completion*>(data);
        complete(completion->client.get(), completion->result);
        return G_SOURCE_REMOVE;
    };
    const auto destroy = [](gpointer data) { delete static_cast<Completion*>(data); };
    GSource* source = g_timeout_source_new(0);
    const auto microseconds = std::chrono::ceil<std::chrono::microseconds>(delay).count();
    g_source_set_ready_time(source, g_get_monotonic_time() + microseconds);
    g_source_set_callback(source, run, new Completion{share(client), result}, destroy);
    g_source_attach(source, g_main_context_get_thread_default());
    g_source_unref(source);
}

// What a pointer in a system call's argument leads to; null when it leads nowhere.
GObjectHandle<UMockdevIoctlData> resolve(UMockdevIoctlData* data, std::size_t offset, std::size_t size) {
    GError* error = nullptr;
    GObjectHandle<UMockdevIoctlData> resolved(umockdev_ioctl_data_resolve(data, offset, size, &error));
    g_clear_error(&error);
    return resolved;
}

std::span<std::uint8_t> bytesOf(UMockdevIoctlData* data) {
    return {data->data, static_cast<std::size_t>(data->data_len)};
}

template <class Value>
Value valueAt(std::span<const std::uint8_t> bytes, std::size_t offset = 0) {
    Value value{};
    runtime::require(offset <= bytes.size(), "a system call's argument is shorter than it says");
    std::memcpy(&value, bytes.data() + offset, std::min(sizeof value, bytes.size() - offset));
    return value;
}

// Lets a bus read into the memory of the node's user.
void readInto(UMockdevIoctlData* data, std::span<std::uint8_t> bytes) {
    if (!bytes.empty()) umockdev_ioctl_data_update(data, 0, bytes.data(), static_cast<gint>(bytes.size()));
}

// The messages of an I2C_RDWR, held until the bus has had them.
class Exchange {
  public:
    // Nothing when the kernel would refuse it.
    static std::optional<Exchange> of(UMockdevIoctlData* argument) {
        const auto header = resolve(argument, 0, sizeof(i2c_rdwr_ioctl_data));
        if (!header) return std::nullopt;
        const auto count = valueAt<i2c_rdwr_ioctl_data>(bytesOf(header.get())).nmsgs;
        if (count == 0 || count > I2C_RDWR_IOCTL_MAX_MSGS) return std::nullopt;
        const auto list = resolve(header.get(), offsetof(i2c_rdwr_ioctl_data, msgs), count * sizeof(i2c_msg));
        if (!list) return std::nullopt;
        Exchange exchange;
        for (std::size_t index = 0; index < count; ++index) {
            const std::size_t place = index * sizeof(i2c_msg);
            const auto message = valueAt<i2c_msg>(bytesOf(list.get()), place);
            auto bytes = resolve(list.get(), place + offsetof(i2c_msg, buf), message.len);
            if (!bytes || message.len > longestMessage) return std::nullopt;
            exchange.messages_.push_back({message.addr, directionOf(message), std::move(bytes)});
        }
        return exchange;
    }

    long perform(EmulatedBus& bus) const {
        std::vector<std::vector<std::uint8_t>> copies;
        std::vector<Message> messages;
        for (const Part& part : messages_) {
            const auto bytes = bytesOf(part.bytes.get());
            copies.emplace_back(bytes.begin(), bytes.end());
            messages.push_back({part.address, part.direction, copies.back()});
        }
        const int result = bus.transfer(messages);
        for (std::size_t index = 0; result >= 0 && index < messages.size(); ++index) {
            if (messages[index].direction == Message::Direction::read)
                readInto(messages_[index].bytes.get(), messages[index].bytes);
        }
        return result;
    }

  private:
    struct Part {
        std::uint16_t address;
        Message::Direction direction;
        GObjectHandle<UMockdevIoctlData> bytes;
    };

    static Message::Direction directionOf(const i2c_msg& message) {
        return (message.flags & I2C_M_RD) != 0 ? Message::Direction::read : Message::Direction::write;
    }

    std::vector<Part> messages_;
};

}  // namespace

// The system calls as umockdev reports them.
class EmulatedNode::Calls {
  public:
    static void connect(EmulatedNode& node) {
        UMockdevIoctlBase* handler = node.handler_.get();
        g_signal_connect(handler, "client-connected", G_CALLBACK(opened), &node);
        g_signal_connect(handler, "client-vanished", G_CALLBACK(closed), &node);
        g_signal_connect(handler, "handle-ioctl", G_CALLBACK(ioctl), &node);
        g_signal_connect(handler, "handle-read", G_CALLBACK(read), &node);
        g_signal_connect(handler, "handle-write", G_CALLBACK(write), &node);
    }

  private:
    static void opened(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer node) {
        static_cast<EmulatedNode*>(node)->opened(client);
    }
    static void closed(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer node) {
        static_cast<EmulatedNode*>(node)->closed(client);
    }

    static gboolean ioctl(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer data) {
        auto& node = *static_cast<EmulatedNode*>(data);
        node.count(&Counters::ioctls);
        UMockdevIoctlData* argument = umockdev_ioctl_client_get_arg(client);
        const auto bus = node.busOf(client);
        if (!bus) {
            complete(client, -ENODEV);
        } else if (umockdev_ioctl_client_get_request(client) == I2C_RDWR) {
            exchange(node, client, argument);
        } else {
            complete(client, control(node.users_.at(client), *bus, client, argument));
        }
        return TRUE;
    }

    static long control(User& user, const EmulatedBus& bus, UMockdevIoctlClient* client,
                        UMockdevIoctlData* argument) {
        const gulong request = umockdev_ioctl_client_get_request(client);
        switch (request) {
            case I2C_SLAVE:
            case I2C_SLAVE_FORCE: {
                const auto address = valueAt<gulong>(bytesOf(argument));
                if (address > EmulatedBus::lastAddress) return -EINVAL;
                const auto chip = static_cast<std::uint16_t>(address);
                if (request == I2C_SLAVE && bus.isClaimed(chip)) return -EBUSY;
                user.address = chip;
                return 0;
            }
            case I2C_FUNCS: {
                const auto result = resolve(argument, 0, sizeof(gulong));
                if (!result) return -EFAULT;
                gulong functions = bus.functions();
                umockdev_ioctl_data_update(result.get(), 0, reinterpret_cast<guint8*>(&functions),
                                           sizeof functions);
                return 0;
            }
            case I2C_TIMEOUT:
            case I2C_RETRIES:
                return 0;
            default:
                return -ENOTTY;
        }
    }

    static void exchange(EmulatedNode& node, UMockdevIoctlClient* client, UMockdevIoctlData* argument) {
        auto exchange = Exchange::of(argument);
        if (!exchange) return complete(client, -EINVAL);
        // A function's closure is copied, which data that is owned once can't be.
        auto shared = std::make_shared<Exchange>(*std::move(exchange));
        node.start(client, [shared](EmulatedBus& bus) { return shared->perform(bus); });
    }

    static gboolean read(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer data) {
        auto& node = *static_cast<EmulatedNode*>(data);
        node.count(&Counters::reads);
        transferOne(node, client, Message::Direction::read);
        return TRUE;
    }
    static gboolean write(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer data) {
        auto& node = *static_cast<EmulatedNode*>(data);
        node.count(&Counters::writes);
        transferOne(node, client, Message::Direction::write);
        return TRUE;
    }

    static void transferOne(EmulatedNode& node, UMockdevIoctlClient* client, Message::Direction direction) {
        // The argument is replaced by the user's next call, but not before this one has its answer.
        UMockdevIoctlData* argument = umockdev_ioctl_client_get_arg(client);
        const std::uint16_t address = node.users_.at(client).address;
        node.start(client, [argument, address, direction](EmulatedBus& bus) -> long {
            auto bytes = bytesOf(argument);
            bytes = bytes.first(std::min(bytes.size(), longestMessage));
            std::vector<std::uint8_t> copy(bytes.begin(), bytes.end());
            const Message message{address, direction, copy};
            const int result = bus.transfer({&message, 1});
            if (result < 0) return result;
            if (direction == Message::Direction::read) readInto(argument, copy);
            return static_cast<long>(copy.size());
        });
    }
};

EmulatedNode::EmulatedNode(int number, const runtime::Clock& clock)
    : number_(number), clock_(clock), handler_(umockdev_ioctl_base_new()) {
    Calls::connect(*this);
}

EmulatedNode::~EmulatedNode() = default;

void EmulatedNode::attach(UMockdevTestbed* testbed) {
    const bool isAttached =
        umockdev_testbed_attach_ioctl(testbed, path(number_).c_str(), handler_.get(), nullptr) == TRUE;
    runtime::require(isAttached, "umockdev takes no more device nodes");
}

void EmulatedNode::connect(std::shared_ptr<EmulatedBus> bus) {
    const std::lock_guard lock(mutex_);
    ++generation_;
    bus_ = std::move(bus);
}

void EmulatedNode::disconnect() { connect(nullptr); }

void EmulatedNode::hang(std::function<void()> stuck) {
    const std::lock_guard lock(mutex_);
    isHanging_ = true;
    stuck_ = std::move(stuck);
}

void EmulatedNode::resume() {
    GMainContext* context = nullptr;
    {
        const std::lock_guard lock(mutex_);
        context = context_;
        // Nobody has been here.
        if (context == nullptr) isHanging_ = false;
    }
    if (context == nullptr) return;
    const auto run = [](gpointer node) -> gboolean {
        static_cast<EmulatedNode*>(node)->performStuck();
        return G_SOURCE_REMOVE;
    };
    g_main_context_invoke(context, run, this);
}

EmulatedNode::Counters EmulatedNode::counters() const {
    const std::lock_guard lock(mutex_);
    return counters_;
}

void EmulatedNode::count(std::uint64_t Counters::*counter) {
    const std::lock_guard lock(mutex_);
    ++(counters_.*counter);
}

void EmulatedNode::opened(UMockdevIoctlClient* client) {
    const std::lock_guard lock(mutex_);
    ++counters_.opens;
    context_ = g_main_context_get_thread_default();
    users_[client] = {bus_, generation_, 0};
}

void EmulatedNode::closed(UMockdevIoctlClient* client) {
    users_.erase(client);
    std::erase_if(stuckTransfers_, [client](const auto& stuck) { return stuck.client.get() == client; });
}

std::shared_ptr<EmulatedBus> EmulatedNode::busOf(UMockdevIoctlClient* client) const {
    const User& user = users_.at(client);
    const std::lock_guard lock(mutex_);
    return user.generation == generation_ ? user.bus : nullptr;
}

void EmulatedNode::start(UMockdevIoctlClient* client, Transfer transfer) {
    std::unique_lock lock(mutex_);
    if (!isHanging_) {
        lock.unlock();
        return perform(client, transfer);
    }
    stuckTransfers_.push_back({share(client), std::move(transfer)});
    const auto stuck = stuck_;
    lock.unlock();
    stuck();
}

void EmulatedNode::perform(UMockdevIoctlClient* client, const Transfer& transfer) {
    const auto bus = busOf(client);
    if (!bus) return complete(client, -ENODEV);
    const long result = transfer(*bus);
    const auto delay = bus->clock().busyUntil() - clock_.now();
    if (delay > decltype(delay)::zero()) {
        completeAfter(client, result, delay);
    } else {
        complete(client, result);
    }
}

void EmulatedNode::performStuck() {
    {
        const std::lock_guard lock(mutex_);
        isHanging_ = false;
    }
    for (const StuckTransfer& stuck : std::exchange(stuckTransfers_, {})) {
        perform(stuck.client.get(), stuck.transfer);
    }
}

}  // namespace vantrel::test
