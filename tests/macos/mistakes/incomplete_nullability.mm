// type check: missing a nullability type specifier
#import "half_annotated.h"

void hide(NSView* view) { view.hidden = YES; }
