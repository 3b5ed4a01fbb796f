#include "linux/kernel/Testbed.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include "runtime/Fatal.h"

namespace vantrel::test {
namespace {

// A node that is a file has a mode, which a terminal's end wouldn't keep.
constexpr const char* nodeContents = "00";

std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

Testbed::Testbed() {
    testbed_.reset(umockdev_testbed_new());
    gchar* root = umockdev_testbed_get_root_dir(testbed_.get());
    root_ = root;
    g_free(root);
    // Nothing that a computer has.
    const std::string sign = "/sys/vantrel-testbed";
    std::ofstream(place(sign)).flush();
    const bool isSeen = std::filesystem::exists(sign);
    std::filesystem::remove(place(sign));
    // The folder goes before the program stops.
    if (!isSeen) testbed_.reset();
    runtime::require(isSeen, "the devices of a test need umockdev-wrapper before the command");
}

void Testbed::add(const Device& device) {
    std::ostringstream text;
    text << "P: " << device.path.substr(std::string("/sys").size()) << '\n';
    if (!device.node.empty()) text << "N: " << device.node << '=' << nodeContents << '\n';
    for (const auto& [name, value] : device.properties) text << "E: " << name << '=' << value << '\n';
    for (const auto& [name, value] : device.attributes) text << "A: " << name << '=' << value << "\\n\n";
    for (const auto& [name, target] : device.links) text << "L: " << name << '=' << target << '\n';
    text << '\n';
    const bool isAdded =
        umockdev_testbed_add_from_string(testbed_.get(), text.str().c_str(), nullptr) == TRUE;
    runtime::require(isAdded, "umockdev doesn't take a device");
}

void Testbed::remove(const std::string& path) {
    event(path, "remove");
    // umockdev leaves it, and then takes no other device of that number.
    if (const std::string number = attribute(path, "dev"); !number.empty())
        removeLink("/sys/dev/char", number);
    umockdev_testbed_remove_device(testbed_.get(), path.c_str());
}

void Testbed::event(const std::string& path, const std::string& action) {
    umockdev_testbed_uevent(testbed_.get(), path.c_str(), action.c_str());
}

void Testbed::event(const std::string& path, const std::string& action, const std::string& property,
                    const std::string& value) {
    // An event has the properties that the device has at the time.
    const auto properties = place(path) / "uevent";
    const std::string usual = contents(properties);
    umockdev_testbed_set_property(testbed_.get(), path.c_str(), property.c_str(), value.c_str());
    event(path, action);
    std::ofstream(properties, std::ios::binary) << usual;
}

void Testbed::setAttribute(const std::string& path, const std::string& name, const std::string& text) {
    umockdev_testbed_set_attribute(testbed_.get(), path.c_str(), name.c_str(), (text + '\n').c_str());
}

void Testbed::setAttribute(const std::string& path, const std::string& name,
                           std::span<const std::uint8_t> bytes) {
    std::vector<guint8> copy(bytes.begin(), bytes.end());
    umockdev_testbed_set_attribute_binary(testbed_.get(), path.c_str(), name.c_str(), copy.data(),
                                          static_cast<gint>(copy.size()));
}

std::string Testbed::attribute(const std::string& path, const std::string& name) const {
    std::string text = contents(place(path) / name);
    if (text.ends_with('\n')) text.pop_back();
    return text;
}

void Testbed::addLink(const std::string& path, const std::string& name, const std::string& target) {
    umockdev_testbed_set_attribute_link(testbed_.get(), path.c_str(), name.c_str(), target.c_str());
}

void Testbed::removeLink(const std::string& path, const std::string& name) {
    std::filesystem::remove(place(path) / name);
}

std::filesystem::path Testbed::place(const std::string& path) const { return root_ / path.substr(1); }

}  // namespace vantrel::test
