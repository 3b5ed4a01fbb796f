#include "ui/appkit/TextFieldControl.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

@interface VantrelFieldDelegate : NSObject <NSTextFieldDelegate>
- (instancetype)initWithEdited:(std::function<void()>)edited ended:(std::function<void()>)ended;
- (void)forget;
@end

@implementation VantrelFieldDelegate {
    std::function<void()> _edited;
    std::function<void()> _ended;
}

- (instancetype)initWithEdited:(std::function<void()>)edited ended:(std::function<void()>)ended {
    self = [super init];
    if (self != nil) {
        _edited = std::move(edited);
        _ended = std::move(ended);
    }
    return self;
}

- (void)controlTextDidChange:(NSNotification*)notification {
    (void)notification;
    if (_edited) _edited();
}

- (void)controlTextDidEndEditing:(NSNotification*)notification {
    (void)notification;
    if (_ended) _ended();
}

- (void)forget {
    _edited = nullptr;
    _ended = nullptr;
}

@end

namespace vantrel::appkit {
namespace {

constexpr int leastWidth = 80;

}  // namespace

TextFieldControl::TextFieldControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [NSTextField textFieldWithString:@""]),
      delegate_([[VantrelFieldDelegate alloc]
          initWithEdited:[this] { send(ui::Edited{utf8Of(field().stringValue)}); }
          // A text that was not taken over is not kept either.
          ended:[this] { showText(); }]) {
    field().bezelStyle = NSTextFieldRoundedBezel;
    field().font = Look::font(ui::Font::body);
    field().usesSingleLineMode = YES;
    field().cell.scrollable = YES;
    field().delegate = delegate_;
}

TextFieldControl::~TextFieldControl() {
    [delegate_ forget];
    field().delegate = nil;
}

void TextFieldControl::show(const ui::Node& node) {
    field().placeholderString = textOf(std::get<ui::TextField>(node.element).placeholder);
    showText();
}

void TextFieldControl::showText() {
    NSString* const wanted = textOf(std::get<ui::TextField>(node().element).text);
    if ([field().stringValue isEqualToString:wanted]) return;
    const NSUInteger cursor = field().currentEditor.selectedRange.location;
    field().stringValue = wanted;
    field().currentEditor.selectedRange = NSMakeRange(std::min(cursor, wanted.length), 0);
}

layout::WidthRange TextFieldControl::widths() const { return {leastWidth, leastWidth}; }

}  // namespace vantrel::appkit
