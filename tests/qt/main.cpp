// The sample trees on a real desktop, to be tried by hand: the icon in the tray opens
// the popover. With --window it is
// a window, beside that of the form.
#include <cstring>
#include <utility>

#include "qt/SampleTrees.h"
#include "runtime/RealScheduler.h"
#include "ui/Component.h"
#include "ui/Host.h"
#include "ui/qt/QtApplication.h"
#include "ui/qt/QtLoop.h"
#include "ui/qt/QtScheduler.h"
#include "ui/qt/QtToolkit.h"

namespace {

using namespace vantrel;

class Shown : public ui::Component {
  public:
    explicit Shown(ui::Node tree) : tree_(std::move(tree)) {}

    ui::Node body() override { return tree_; }

  private:
    ui::Node tree_;
};

ui::Drawing icon() {
    const ui::Shape screen{.outline = ui::RoundedRectangle{{1.5, 2.5}, {14, 9.5}, 2},
                           .stroke = ui::Stroke{1.5}};
    const std::vector<ui::PathStep> foot{ui::MoveTo{{5.5, 14.5}}, ui::LineTo{{11.5, 14.5}}};
    return {{20, 16}, {screen, {.outline = foot, .stroke = ui::Stroke{1.5, true}}}};
}

}  // namespace

int main(int argc, char** argv) {
    qt::QtApplication application(argc, argv);
    runtime::RealScheduler real;
    qt::QtScheduler scheduler(real);
    runtime::MainLoop main(scheduler);
    qt::QtToolkit toolkit(main);
    const auto item = toolkit.makeStatusItem();
    const auto popover = toolkit.makePopover(*item);
    const auto window = toolkit.makeWindow("Vantrel Settings");
    const bool isWindow = argc > 1 && std::strcmp(argv[1], "--window") == 0;
    item->setImage(icon());
    item->setToolTip("Vantrel");
    Shown cards(qt::samplePopover());
    Shown form(qt::sampleForm());
    ui::Host popoverHost(main, cards, popover->content().renderer());
    ui::Host windowHost(main, form, window->content().renderer());
    popover->content().onEvent(
        [&](ui::ElementID element, const ui::Event& event) { popoverHost.deliver(element, event); });
    popover->setContentSize(popover->content().fittingSize());
    item->onClick([&] {
        if (popover->isShown()) {
            popover->close();
        } else {
            popover->show();
        }
    });
    if (isWindow) {
        toolkit.setMode(*popover, qt::PopoverMode::window);
        popover->show();
        window->show();
    }
    qt::QtLoop(main, scheduler).run();
    return 0;
}
