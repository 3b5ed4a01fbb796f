#include "ui/appkit/MenuControl.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "ui/appkit/Look.h"
#include "ui/appkit/Menus.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

// The first item of a pull-down menu is what its button shows. Options have their
// position.
constexpr NSInteger faceTag = -2;
constexpr int leastWidth = 60;
// For the arrow beside a symbol, and what is around both.
constexpr int roomBesideSymbol = 28;

}  // namespace

MenuControl::MenuControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:YES]),
      menu_([[NSMenu alloc] initWithTitle:@""]) {
    button().lineBreakMode = NSLineBreakByTruncatingTail;
}

void MenuControl::show(const ui::Node& node) {
    if (const auto* menu = std::get_if<ui::Menu>(&node.element)) {
        showMenu(*menu);
    } else {
        showPicker(std::get<ui::Picker>(node.element));
    }
}

void MenuControl::showMenu(const ui::Menu& menu) {
    setOptions(menu.options);
    setFace(menu.title, nil);
    // Things to do are done, not chosen.
    mark(menu_, std::nullopt);
}

void MenuControl::showPicker(const ui::Picker& picker) {
    button().bordered = NO;
    button().imagePosition = NSImageOnly;
    setOptions(picker.options);
    setFace({}, Look::symbol(picker.symbol, ui::Font::body));
    mark(menu_, picker.selected);
    if (note_ != picker.note) {
        note_ = picker.note;
        setNote(menu_, note_);
    }
    // The button shows a picture only.
    if (picker.selected && *picker.selected < picker.options.size()) {
        view().accessibilityValueDescription = textOf(picker.options[*picker.selected]);
    }
}

void MenuControl::setOptions(const std::vector<std::string>& options) {
    // An open menu stays open.
    if (menu_.numberOfItems > 0 && options == options_) return;
    // Open, it would offer what isn't there any more.
    [menu_ cancelTracking];
    options_ = options;
    note_.clear();
    menu_ = menuOf(options, lifeline().guard([this](std::size_t option) { choose(option); }));
    NSMenuItem* const face = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
    face.tag = faceTag;
    [menu_ insertItem:face atIndex:0];
    button().menu = menu_;
}

void MenuControl::setFace(const std::string& title, NSImage* image) {
    NSMenuItem* const face = [menu_ itemWithTag:faceTag];
    face.title = textOf(title);
    face.image = image;
    [button() synchronizeTitleAndSelectedItem];
}

void MenuControl::choose(std::size_t option) {
    const auto* picker = std::get_if<ui::Picker>(&node().element);
    if (picker != nullptr && picker->selected == option) return;
    send(ui::Chosen{option});
}

layout::WidthRange MenuControl::widths() const {
    const int natural = naturalWidths(view()).natural;
    if (!std::holds_alternative<ui::Picker>(node().element)) return {std::min(natural, leastWidth), natural};
    // However wide the options in its menu are.
    const double symbol = [menu_ itemWithTag:faceTag].image.size.width;
    const int width = std::min(natural, static_cast<int>(std::ceil(symbol)) + roomBesideSymbol);
    return {width, width};
}

}  // namespace vantrel::appkit
