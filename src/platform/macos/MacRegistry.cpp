#include "platform/macos/MacRegistry.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <utility>

#include "platform/macos/CFProperty.h"
#include "platform/macos/CFText.h"
#include "platform/macos/IOHandle.h"

namespace vantrel::macos {
namespace {

class MacRegistryEntry : public platform::RegistryEntry {
  public:
    explicit MacRegistryEntry(IOHandle entry) : entry_(std::move(entry)) {}

    std::string name() override {
        io_name_t name = {};
        if (IORegistryEntryGetName(entry_.get(), name) != KERN_SUCCESS) return {};
        const std::string_view buffer(name, sizeof name);
        return std::string(buffer.substr(0, buffer.find('\0')));
    }

    std::optional<platform::PropertyValue> property(std::string_view key) override {
        const auto name = CFText::make(key);
        if (!name) return std::nullopt;
        constexpr IOOptionBits noOptions = 0;
        const CFHandle object(
            IORegistryEntryCreateCFProperty(entry_.get(), name.get(), kCFAllocatorDefault, noOptions));
        if (!object) return std::nullopt;
        return CFProperty::value(object.get());
    }

    std::uint32_t object() const override { return entry_.get(); }

  private:
    IOHandle entry_;
};

class MacRegistryIterator : public platform::RegistryIterator {
  public:
    explicit MacRegistryIterator(IOHandle iterator) : iterator_(std::move(iterator)) {}

    std::unique_ptr<platform::RegistryEntry> next() override {
        IOHandle entry(IOIteratorNext(iterator_.get()));
        if (entry.get() == IO_OBJECT_NULL) return nullptr;
        return std::make_unique<MacRegistryEntry>(std::move(entry));
    }

  private:
    IOHandle iterator_;
};

}  // namespace

std::unique_ptr<platform::RegistryIterator> MacRegistry::iterateServicePlane() {
    io_iterator_t iterator = IO_OBJECT_NULL;
    const kern_return_t status = IORegistryCreateIterator(kIOMainPortDefault, kIOServicePlane,
                                                          kIORegistryIterateRecursively, &iterator);
    if (status != KERN_SUCCESS || iterator == IO_OBJECT_NULL) return nullptr;
    return std::make_unique<MacRegistryIterator>(IOHandle(iterator));
}

void MacRegistry::releaseService(const void* service) { CFRelease(service); }

}  // namespace vantrel::macos
