// The I/O registry of the desk.
#include <IOKit/IOKitLib.h>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>

#include "macos/fake/DeskObjects.h"
#include "macos/fake/FakeMac.h"
#include "macos/fake/Objects.h"
#include "platform/macos/CFText.h"
#include "runtime/Fatal.h"

namespace vantrel::macos::fake {
namespace {

struct RegistryObject {
    std::unique_ptr<platform::RegistryIterator> iterator;
    std::unique_ptr<platform::RegistryEntry> entry;
};

// Names are never used again, so that a late use is always seen.
std::mutex mutex;
std::map<io_object_t, std::shared_ptr<RegistryObject>> held;
io_object_t nextName = 0x1000;

io_object_t hold(RegistryObject object) {
    const std::lock_guard lock(mutex);
    held.emplace(++nextName, std::make_shared<RegistryObject>(std::move(object)));
    return nextName;
}

std::shared_ptr<RegistryObject> find(io_object_t name) {
    const std::lock_guard lock(mutex);
    const auto found = held.find(name);
    runtime::require(found != held.end(), "an object of the I/O registry that nobody holds");
    return found->second;
}

platform::RegistryEntry& entry(io_object_t name) {
    const auto object = find(name);
    runtime::require(object->entry != nullptr, "an iterator where an entry is needed");
    return *object->entry;
}

bool fails(const char* function) { return FakeMac::current().calls().fails(function); }

CFTypeRef makeObject(const platform::PropertyValue& value);

struct Maker {
    CFTypeRef operator()(std::monostate) const { return kCFBooleanTrue; }
    CFTypeRef operator()(const std::string& text) const { return born(new String(utf16(text))); }
    CFTypeRef operator()(std::int64_t number) const { return born(new Number(number)); }
    CFTypeRef operator()(const platform::PropertyDictionary& dictionary) const {
        Dictionary::Entries entries;
        for (const auto& [key, value] : dictionary) {
            entries.emplace_back(born(new String(utf16(key))), makeObject(value));
        }
        return born(new Dictionary(std::move(entries)));
    }
};

CFTypeRef makeObject(const platform::PropertyValue& value) { return std::visit(Maker{}, value); }

}  // namespace

std::size_t liveRegistryObjects() {
    const std::lock_guard lock(mutex);
    return held.size();
}

std::uint32_t deskEntry(io_object_t name) { return entry(name).object(); }

}  // namespace vantrel::macos::fake

using namespace vantrel::macos::fake;

extern "C" {

const mach_port_t kIOMainPortDefault = 0;

kern_return_t IOObjectRelease(io_object_t object) {
    find(object);
    const std::lock_guard lock(mutex);
    held.erase(object);
    return KERN_SUCCESS;
}

kern_return_t IORegistryCreateIterator(mach_port_t port, const io_name_t plane, IOOptionBits options,
                                       io_iterator_t* iterator) {
    vantrel::runtime::require(port == kIOMainPortDefault && std::strcmp(plane, "IOService") == 0 &&
                                  options == kIORegistryIterateRecursively,
                              "another walk than the one over all services");
    // What a failure leaves behind means nothing.
    *iterator = 7;
    if (fails("IORegistryCreateIterator")) return kIOReturnError;
    auto walk = FakeMac::current().desk().registry.iterateServicePlane();
    if (!walk) return kIOReturnError;
    *iterator = hold({std::move(walk), nullptr});
    return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t name) {
    const auto object = find(name);
    vantrel::runtime::require(object->iterator != nullptr, "an entry where an iterator is needed");
    if (fails("IOIteratorNext")) return IO_OBJECT_NULL;
    auto next = object->iterator->next();
    return next ? hold({nullptr, std::move(next)}) : IO_OBJECT_NULL;
}

kern_return_t IORegistryEntryGetName(io_registry_entry_t object, io_name_t buffer) {
    const std::string name = entry(object).name();
    // All of the buffer may be written.
    std::memset(buffer, 'x', sizeof(io_name_t));
    if (fails("IORegistryEntryGetName")) return kIOReturnError;
    std::memcpy(buffer, name.c_str(), name.size() + 1);
    return KERN_SUCCESS;
}

CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t object, CFStringRef key, CFAllocatorRef,
                                          IOOptionBits options) {
    vantrel::runtime::require(options == 0, "options that a property does not have");
    const std::string name = vantrel::macos::CFText::read(key);
    if (fails("IORegistryEntryCreateCFProperty")) return nullptr;
    const auto& replaced = FakeMac::current().properties();
    if (const auto found = replaced.find(name); found != replaced.end()) {
        return CFRetain(found->second.get());
    }
    const auto value = entry(object).property(name);
    return value ? makeObject(*value) : nullptr;
}

}  // extern "C"
