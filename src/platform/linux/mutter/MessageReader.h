// Reads a D-Bus message from its beginning to its end, value by value. After the first
// value that isn't of the expected type everything that is read is empty.
//
// Threads: main thread. Lifetime: the message outlives it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <systemd/sd-bus.h>
#include <vector>

namespace vantrel::mutter {

class MessageReader {
  public:
    explicit MessageReader(sd_bus_message* message) : message_(message), isGood_(message != nullptr) {}

    // Whether all that was read was there.
    bool isGood() const { return isGood_; }

    std::string text();
    bool truth();
    std::int32_t integer();
    std::uint32_t number();
    double real();
    std::vector<std::uint8_t> bytes();
    std::vector<std::uint16_t> words();
    void skip(const char* types);

    // `each` reads one element.
    template <class Each>
    void array(const char* type, Each each) {
        enter(SD_BUS_TYPE_ARRAY, type);
        while (hasMore()) each();
        leave();
    }
    template <class Body>
    void structure(const char* types, Body body) {
        enter(SD_BUS_TYPE_STRUCT, types);
        body();
        leave();
    }
    // A dictionary of variants. `each` takes a name and the type of its value; it reads the
    // value and says so, or it doesn't.
    template <class Each>
    void properties(Each each) {
        array("{sv}", [&] {
            enter(SD_BUS_TYPE_DICT_ENTRY, "sv");
            const std::string name = text();
            const char* const type = enterVariant();
            if (isGood_ && !each(std::string_view(name), std::string_view(type))) skip(type);
            leave();
            leave();
        });
    }

  private:
    bool check(int result);
    void read(char type, void* value);
    void enter(char kind, const char* contents);
    // The type of what is in it.
    const char* enterVariant();
    void leave();
    bool hasMore();

    sd_bus_message* const message_;
    bool isGood_;
};

}  // namespace vantrel::mutter
