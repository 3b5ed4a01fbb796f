// Whatever the settings file holds: nothing crashes, a damaged file is kept aside as
// it was, a good one keeps its other members, and the next change is kept.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/FileDefaults.h"
#include "platform/posix/StateDocument.h"
#include "runtime/Fatal.h"
#include "support/FakeDisk.h"

namespace {

using vantrel::platform::DefaultsData;
using vantrel::platform::DefaultsValue;
using vantrel::posix::FileDefaults;
using vantrel::posix::StateDocument;
using vantrel::runtime::require;
using vantrel::test::FakeDisk;

class LineCounter : public vantrel::platform::LogSink {
  public:
    void write(std::string_view, std::string_view, vantrel::platform::LogLevel, std::string_view) override {
        ++lines;
    }
    int lines = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    FakeDisk disk("/state");
    disk.put("/state/settings.json", bytes);
    LineCounter log;

    const auto document = StateDocument::parse(bytes);
    require(!document || StateDocument::parse(document->text()) == document, "writing changes the document");
    FileDefaults defaults(disk, "/state", log);
    const auto aside = disk.bytes("/state/settings.json.damaged-1");
    require(document ? !aside : aside == bytes, "a damaged file is not kept aside, or a good one is");
    require(log.lines == (document ? 0 : 1), "a damaged file is not said once");

    // The bytes also as data: JSON or not, they come back.
    defaults.set("a", DefaultsData{bytes});
    FileDefaults read(disk, "/state", log);
    require(read.value("a") == DefaultsValue(DefaultsData{bytes}), "data has changed");
    if (document) {
        StateDocument expected = *document;
        expected.set("a", DefaultsData{bytes});
        require(disk.bytes("/state/settings.json") == expected.text(), "another member has changed");
    }
    return 0;
}
