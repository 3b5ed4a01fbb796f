#include "ui/appkit/Menus.h"

#include <utility>

#include "ui/appkit/Action.h"
#include "ui/appkit/AppKitControl.h"
#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

// Of the items that belong to an explanation; the others have their position.
constexpr NSInteger noteTag = -1;
// A menu is as wide as its widest item: an explanation has to wrap.
constexpr CGFloat noteWidth = 240;
constexpr CGFloat noteIndent = 14;
constexpr CGFloat noteMargin = 4;

NSMenuItem* itemOf(const std::string& title, std::function<void()> choose) {
    VantrelAction* const action = [[VantrelAction alloc] initWithFunction:std::move(choose)];
    NSMenuItem* const item = [[NSMenuItem alloc] initWithTitle:textOf(title)
                                                        action:@selector(perform:)
                                                 keyEquivalent:@""];
    item.target = action;
    // The target is not owned by the item; this is.
    item.representedObject = action;
    return item;
}

NSView* noteView(const std::string& note) {
    NSTextField* const label = [NSTextField wrappingLabelWithString:textOf(note)];
    label.font = Look::font(ui::Font::caption);
    label.textColor = NSColor.secondaryLabelColor;
    label.selectable = NO;
    const NSSize size = textSize(label, noteWidth);
    label.frame = NSMakeRect(noteIndent, noteMargin, noteWidth, size.height);
    NSView* const view = [[NSView alloc]
        initWithFrame:NSMakeRect(0, 0, noteWidth + 2 * noteIndent, size.height + 2 * noteMargin)];
    [view addSubview:label];
    return view;
}

}  // namespace

NSMenu* menuOf(const std::vector<std::string>& items, std::function<void(std::size_t)> choose) {
    NSMenu* const menu = [[NSMenu alloc] initWithTitle:@""];
    menu.autoenablesItems = NO;
    for (std::size_t position = 0; position < items.size(); ++position) {
        NSMenuItem* const item = itemOf(items[position], [choose, position] { choose(position); });
        item.tag = static_cast<NSInteger>(position);
        [menu addItem:item];
    }
    return menu;
}

void mark(NSMenu* menu, std::optional<std::size_t> chosen) {
    for (NSMenuItem* const item in menu.itemArray) {
        const bool isChosen = chosen && item.tag == static_cast<NSInteger>(*chosen);
        item.state = isChosen ? NSControlStateValueOn : NSControlStateValueOff;
    }
}

void setNote(NSMenu* menu, const std::string& note) {
    for (NSMenuItem* const item in [menu.itemArray copy]) {
        if (item.tag == noteTag) [menu removeItem:item];
    }
    if (note.empty()) return;
    NSMenuItem* const line = [NSMenuItem separatorItem];
    line.tag = noteTag;
    [menu addItem:line];
    NSMenuItem* const item = [[NSMenuItem alloc] initWithTitle:textOf(note) action:nil keyEquivalent:@""];
    item.tag = noteTag;
    item.enabled = NO;
    item.view = noteView(note);
    [menu addItem:item];
}

}  // namespace vantrel::appkit
