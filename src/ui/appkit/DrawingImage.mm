#include "ui/appkit/DrawingImage.h"

#include <type_traits>
#include <variant>
#include <vector>

namespace vantrel::appkit {
namespace {

NSPoint pointOf(const ui::Point& point) { return NSMakePoint(point.x, point.y); }

void add(NSBezierPath* path, const ui::PathStep& step) {
    std::visit(
        [path]<class Step>(const Step& taken) {
            if constexpr (std::is_same_v<Step, ui::MoveTo>) {
                [path moveToPoint:pointOf(taken.to)];
            } else if constexpr (std::is_same_v<Step, ui::LineTo>) {
                [path lineToPoint:pointOf(taken.to)];
            } else if constexpr (std::is_same_v<Step, ui::CurveTo>) {
                [path curveToPoint:pointOf(taken.to)
                     controlPoint1:pointOf(taken.control1)
                     controlPoint2:pointOf(taken.control2)];
            } else {
                [path closePath];
            }
        },
        step);
}

NSBezierPath* pathOf(const ui::Shape& shape) {
    if (const auto* rectangle = std::get_if<ui::RoundedRectangle>(&shape.outline)) {
        const NSRect place = NSMakeRect(rectangle->origin.x, rectangle->origin.y, rectangle->size.width,
                                        rectangle->size.height);
        return [NSBezierPath bezierPathWithRoundedRect:place
                                               xRadius:rectangle->cornerRadius
                                               yRadius:rectangle->cornerRadius];
    }
    NSBezierPath* const path = [NSBezierPath bezierPath];
    for (const ui::PathStep& step : std::get<std::vector<ui::PathStep>>(shape.outline)) add(path, step);
    return path;
}

void draw(const ui::Drawing& drawing) {
    // Of a template only the opacity matters.
    [NSColor.blackColor set];
    for (const ui::Shape& shape : drawing.shapes) {
        NSBezierPath* const path = pathOf(shape);
        if (shape.stroke) {
            path.lineWidth = shape.stroke->width;
            path.lineCapStyle = shape.stroke->hasRoundCaps ? NSLineCapStyleRound : NSLineCapStyleButt;
            [path stroke];
        } else {
            [path fill];
        }
    }
}

}  // namespace

NSImage* templateImage(const ui::Drawing& drawing) {
    const ui::Drawing kept = drawing;
    NSImage* const image = [NSImage imageWithSize:NSMakeSize(drawing.size.width, drawing.size.height)
                                          flipped:YES
                                   drawingHandler:^BOOL(NSRect) {
                                     draw(kept);
                                     return YES;
                                   }];
    [image setTemplate:YES];
    return image;
}

}  // namespace vantrel::appkit
