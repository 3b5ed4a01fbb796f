#include "ui/qt/ItemFactory.h"

#include "ui/qt/ButtonItem.h"
#include "ui/qt/DisclosureItem.h"
#include "ui/qt/DividerItem.h"
#include "ui/qt/ImageItem.h"
#include "ui/qt/MenuItem.h"
#include "ui/qt/PanelItem.h"
#include "ui/qt/PickerItem.h"
#include "ui/qt/ProgressItem.h"
#include "ui/qt/ScrollItem.h"
#include "ui/qt/SectionItem.h"
#include "ui/qt/SelectableTextItem.h"
#include "ui/qt/SliderItem.h"
#include "ui/qt/SpacerItem.h"
#include "ui/qt/SwitchItem.h"
#include "ui/qt/SymbolPickerItem.h"
#include "ui/qt/TextFieldItem.h"
#include "ui/qt/TextItem.h"
#include "ui/qt/TileItem.h"

namespace vantrel::qt {
namespace {

struct Maker {
    const Item::Making& making;

    template <class Kind>
    std::unique_ptr<Item> make() const {
        return std::make_unique<Kind>(making);
    }

    std::unique_ptr<Item> operator()(const ui::Stack&) const { return make<PanelItem>(); }
    std::unique_ptr<Item> operator()(const ui::Grid&) const { return make<PanelItem>(); }
    std::unique_ptr<Item> operator()(const ui::Scroll&) const { return make<ScrollItem>(); }
    std::unique_ptr<Item> operator()(const ui::Disclosure&) const { return make<DisclosureItem>(); }
    std::unique_ptr<Item> operator()(const ui::Form&) const { return make<ScrollItem>(); }
    std::unique_ptr<Item> operator()(const ui::Section&) const { return make<SectionItem>(); }
    std::unique_ptr<Item> operator()(const ui::Text& text) const {
        return text.isSelectable ? make<SelectableTextItem>() : make<TextItem>();
    }
    std::unique_ptr<Item> operator()(const ui::Image&) const { return make<ImageItem>(); }
    std::unique_ptr<Item> operator()(const ui::Spacer&) const { return make<SpacerItem>(); }
    std::unique_ptr<Item> operator()(const ui::Divider&) const { return make<DividerItem>(); }
    std::unique_ptr<Item> operator()(const ui::Progress&) const { return make<ProgressItem>(); }
    std::unique_ptr<Item> operator()(const ui::Button&) const { return make<ButtonItem>(); }
    std::unique_ptr<Item> operator()(const ui::Tile&) const { return make<TileItem>(); }
    std::unique_ptr<Item> operator()(const ui::Switch&) const { return make<SwitchItem>(); }
    std::unique_ptr<Item> operator()(const ui::Slider&) const { return make<SliderItem>(); }
    std::unique_ptr<Item> operator()(const ui::Picker& picker) const {
        return picker.symbol.empty() ? make<PickerItem>() : make<SymbolPickerItem>();
    }
    std::unique_ptr<Item> operator()(const ui::Menu&) const { return make<MenuItem>(); }
    std::unique_ptr<Item> operator()(const ui::TextField&) const { return make<TextFieldItem>(); }
};

}  // namespace

std::unique_ptr<Item> makeItem(const Item::Making& making, const ui::Node& node) {
    return std::visit(Maker{making}, node.element);
}

}  // namespace vantrel::qt
