#include "ui/appkit/ControlFactory.h"

#include <variant>

#include "ui/appkit/ButtonControl.h"
#include "ui/appkit/DisclosureControl.h"
#include "ui/appkit/DividerControl.h"
#include "ui/appkit/ImageControl.h"
#include "ui/appkit/MenuControl.h"
#include "ui/appkit/PickerControl.h"
#include "ui/appkit/PlainControl.h"
#include "ui/appkit/ProgressControl.h"
#include "ui/appkit/ScrollControl.h"
#include "ui/appkit/SectionControl.h"
#include "ui/appkit/SliderControl.h"
#include "ui/appkit/StackControl.h"
#include "ui/appkit/SwitchControl.h"
#include "ui/appkit/TextControl.h"
#include "ui/appkit/TextFieldControl.h"
#include "ui/appkit/TileControl.h"

namespace vantrel::appkit {
namespace {

struct Maker {
    layout::Stage& stage;
    ui::ElementID element;

    template <class Kind>
    std::unique_ptr<AppKitControl> make() const {
        return std::make_unique<Kind>(stage, element);
    }

    std::unique_ptr<AppKitControl> operator()(const ui::Stack&) const { return make<StackControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Grid&) const { return make<PlainControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Scroll&) const { return make<ScrollControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Disclosure&) const {
        return make<DisclosureControl>();
    }
    std::unique_ptr<AppKitControl> operator()(const ui::Form&) const { return make<ScrollControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Section&) const { return make<SectionControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Text&) const { return make<TextControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Image&) const { return make<ImageControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Spacer&) const { return make<PlainControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Divider&) const { return make<DividerControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Progress&) const { return make<ProgressControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Button&) const { return make<ButtonControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Tile&) const { return make<TileControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Switch&) const { return make<SwitchControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Slider&) const { return make<SliderControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::Picker& picker) const {
        return picker.symbol.empty() ? make<PickerControl>() : make<MenuControl>();
    }
    std::unique_ptr<AppKitControl> operator()(const ui::Menu&) const { return make<MenuControl>(); }
    std::unique_ptr<AppKitControl> operator()(const ui::TextField&) const { return make<TextFieldControl>(); }
};

}  // namespace

std::unique_ptr<AppKitControl> makeControl(layout::Stage& stage, ui::ElementID element,
                                           const ui::Node& node) {
    return std::visit(Maker{stage, element}, node.element);
}

}  // namespace vantrel::appkit
