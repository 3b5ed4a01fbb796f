// Menus made of texts. Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::appkit {

// Each item calls `choose` with its position, as long as the menu lives.
NSMenu* _Nonnull menuOf(const std::vector<std::string>& items, std::function<void(std::size_t)> choose);
// A mark at the chosen item, if any.
void mark(NSMenu* _Nonnull menu, std::optional<std::size_t> chosen);
// An explanation below the items, over as many lines as it needs; in place of an
// older one.
void setNote(NSMenu* _Nonnull menu, const std::string& note);

}  // namespace vantrel::appkit
