#include "ui/appkit/AppKitView.h"

#include <cmath>
#include <utility>

#include "ui/appkit/AppKitControl.h"
#include "ui/appkit/ControlFactory.h"
#include "ui/layout/Box.h"

namespace vantrel::appkit {
namespace {

AppKitControl& controlOf(const layout::Box& box) { return static_cast<AppKitControl&>(box.control()); }

// Assistive technology goes through the views in the order in which their superview
// has them. What a control has of its own comes before its children.
void orderSubviews(NSView* superview, const std::vector<NSView*>& children) {
    NSMutableArray<NSView*>* const wanted = [superview.subviews mutableCopy];
    for (NSView* const& child : children) [wanted removeObject:child];
    for (NSView* const& child : children) [wanted addObject:child];
    if (![superview.subviews isEqualToArray:wanted]) superview.subviews = wanted;
}

// Appends the views below the box that the keyboard goes to, in the order of the tree.
// Not those around them: a scroll view hands its place in the row on to its contents.
void collect(const layout::Box& box, std::vector<NSView*>& all) {
    if (controlOf(box).takesKeyboard()) all.push_back(controlOf(box).operatedView());
    std::vector<NSView*> children;
    for (const auto& child : box.children()) {
        children.push_back(controlOf(*child).view());
        collect(*child, all);
    }
    orderSubviews(controlOf(box).childrenView(), children);
}

id<NSObject> whenColorsChange(std::function<void()> action) {
    return [NSNotificationCenter.defaultCenter addObserverForName:NSSystemColorsDidChangeNotification
                                                           object:nil
                                                            queue:NSOperationQueue.mainQueue
                                                       usingBlock:^(NSNotification*) {
                                                         action();
                                                       }];
}

}  // namespace

AppKitView::AppKitView()
    : view_([[FlippedView alloc] initWithFrame:NSZeroRect]),
      renderer_(static_cast<layout::Canvas&>(*this)),
      // Of another accent, say. What draws itself has to be told.
      colorsObserver_(whenColorsChange(lifeline_.guard([this] { renderer_.refresh(); }))) {
    [view_ onResize:[this] { renderer_.layOut(); }];
}

AppKitView::~AppKitView() {
    [NSNotificationCenter.defaultCenter removeObserver:colorsObserver_];
    [view_ onResize:nullptr];
}

void AppKitView::orderKeys() {
    if (const layout::Box* const root = renderer_.root()) order(*root);
}

void AppKitView::onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) {
    renderer_.onEvent(std::move(handler));
}

ui::Size AppKitView::fittingSize() const {
    const layout::PixelSize size = renderer_.fittingSize();
    return points(size.width, size.height);
}

std::unique_ptr<layout::Control> AppKitView::make(layout::Stage& stage, ui::ElementID element,
                                                  const ui::Node& node, layout::Control* parent) {
    auto control = makeControl(stage, element, node);
    NSView* const superview = parent != nullptr ? static_cast<AppKitControl*>(parent)->childrenView() : view_;
    [superview addSubview:control->view()];
    return control;
}

int AppKitView::pixels(double points) const { return static_cast<int>(std::lround(points)); }

int AppKitView::height() const { return static_cast<int>(std::floor(view_.bounds.size.height)); }

void AppKitView::order(const layout::Box& root) {
    std::vector<NSView*> all;
    collect(root, all);
    NSView* last = view_;
    for (NSView* const& next : all) {
        last.nextKeyView = next;
        last = next;
    }
    last.nextKeyView = view_;
}

void AppKitView::later(std::function<void()> work) {
    const std::function<void()> guarded = lifeline_.guard(std::move(work));
    dispatch_async(dispatch_get_main_queue(), ^{
      guarded();
    });
}

}  // namespace vantrel::appkit
