#include "ui/layout/BoxFactory.h"

#include <utility>

#include "ui/layout/DisclosureBox.h"
#include "ui/layout/FormBox.h"
#include "ui/layout/GridBox.h"
#include "ui/layout/LeafBox.h"
#include "ui/layout/ScrollBox.h"
#include "ui/layout/SectionBox.h"
#include "ui/layout/StackBox.h"

namespace vantrel::layout {
namespace {

template <class Element>
struct BoxOf {
    using Type = LeafBox;
};
template <>
struct BoxOf<ui::Stack> {
    using Type = StackBox;
};
template <>
struct BoxOf<ui::Grid> {
    using Type = GridBox;
};
template <>
struct BoxOf<ui::Scroll> {
    using Type = ScrollBox;
};
template <>
struct BoxOf<ui::Form> {
    using Type = FormBox;
};
template <>
struct BoxOf<ui::Section> {
    using Type = SectionBox;
};
template <>
struct BoxOf<ui::Disclosure> {
    using Type = DisclosureBox;
};

}  // namespace

std::unique_ptr<Box> makeBox(Stage& stage, Canvas& canvas, ui::ElementID element, const ui::Node& node,
                             const Box* parent) {
    auto control = canvas.make(stage, element, node, parent != nullptr ? &parent->control() : nullptr);
    std::unique_ptr<Box> box = std::visit(
        [&]<class Element>(const Element&) -> std::unique_ptr<Box> {
            return std::make_unique<typename BoxOf<Element>::Type>(Box::View{stage, canvas}, element,
                                                                   std::move(control));
        },
        node.element);
    box->update(node);
    return box;
}

}  // namespace vantrel::layout
