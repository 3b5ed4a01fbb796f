#include "ui/appkit/SliderControl.h"

#include <algorithm>

#include "ui/appkit/Text.h"

namespace {

constexpr double stepsPerPage = 10;
// For a model that doesn't take over what a person did.
constexpr NSTimeInterval settlingTime = 0.25;
// In points.
constexpr int leastWidth = 60;

}  // namespace

@interface VantrelSlider : NSSlider
- (void)showNewest:(const vantrel::ui::Slider&)slider;
@end

@implementation VantrelSlider {
    vantrel::ui::Slider _newest;
    BOOL _isHeld;
}

- (void)showNewest:(const vantrel::ui::Slider&)slider {
    _newest = slider;
    if (!_isHeld) [self settle];
}

- (void)settle {
    [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(settle) object:nil];
    if (_isHeld) return;
    self.minValue = _newest.minimum;
    self.maxValue = _newest.maximum;
    self.doubleValue = _newest.value;
}

- (void)settleLater {
    [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(settle) object:nil];
    [self performSelector:@selector(settle)
               withObject:nil
               afterDelay:settlingTime
                  inModes:@[ NSRunLoopCommonModes ]];
}

- (BOOL)sendAction:(SEL)action to:(id)target {
    if (!_isHeld) [self settleLater];
    return [super sendAction:action to:target];
}

// Returns when the button is let go; the main loop goes on meanwhile, and may take
// the slider off the screen.
- (void)mouseDown:(NSEvent*)event {
    __attribute__((objc_precise_lifetime)) VantrelSlider* const kept = self;
    _isHeld = YES;
    [super mouseDown:event];
    _isHeld = NO;
    // What the last move led to may still be on its way.
    [kept settleLater];
}

- (void)moveBySteps:(double)steps {
    const double wanted = self.doubleValue + steps * _newest.step;
    const double value = std::clamp(wanted, _newest.minimum, std::max(_newest.minimum, _newest.maximum));
    if (value == self.doubleValue) return;
    self.doubleValue = value;
    [self sendAction:self.action to:self.target];
}

- (void)keyDown:(NSEvent*)event {
    NSString* const characters = event.charactersIgnoringModifiers;
    const double forward =
        self.userInterfaceLayoutDirection == NSUserInterfaceLayoutDirectionRightToLeft ? -1 : 1;
    const double all = (_newest.maximum - _newest.minimum) / std::max(_newest.step, 1e-9);
    switch (characters.length == 1 ? [characters characterAtIndex:0] : 0) {
        case NSRightArrowFunctionKey:
            return [self moveBySteps:forward];
        case NSLeftArrowFunctionKey:
            return [self moveBySteps:-forward];
        case NSUpArrowFunctionKey:
            return [self moveBySteps:1];
        case NSDownArrowFunctionKey:
            return [self moveBySteps:-1];
        case NSPageUpFunctionKey:
            return [self moveBySteps:stepsPerPage];
        case NSPageDownFunctionKey:
            return [self moveBySteps:-stepsPerPage];
        case NSHomeFunctionKey:
            return [self moveBySteps:-all];
        case NSEndFunctionKey:
            return [self moveBySteps:all];
        default:
            [super keyDown:event];
    }
}

- (BOOL)accessibilityPerformIncrement {
    [self moveBySteps:1];
    return YES;
}

- (BOOL)accessibilityPerformDecrement {
    [self moveBySteps:-1];
    return YES;
}

@end

namespace vantrel::appkit {

SliderControl::SliderControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[VantrelSlider alloc] initWithFrame:NSZeroRect]),
      action_([[VantrelAction alloc]
          initWithFunction:[this] { send(ui::Slid{static_cast<NSSlider*>(view()).doubleValue}); }]) {
    NSSlider* const slider = static_cast<NSSlider*>(view());
    slider.continuous = YES;
    slider.target = action_;
    slider.action = @selector(perform:);
}

SliderControl::~SliderControl() { [action_ forget]; }

void SliderControl::show(const ui::Node& node) {
    [static_cast<VantrelSlider*>(view()) showNewest:std::get<ui::Slider>(node.element)];
    const std::string& spoken = node.accessibility.value;
    view().accessibilityValueDescription = spoken.empty() ? nil : textOf(spoken);
}

layout::WidthRange SliderControl::widths() const { return {leastWidth, leastWidth}; }

}  // namespace vantrel::appkit
