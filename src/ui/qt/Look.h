// How everything that Qt draws looks: lengths, fonts and colours, all of them made
// from the desktop's font and palette, light or dark.
// Threads: main thread.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "ui/Element.h"
#include "ui/Size.h"

namespace vantrel::qt {

class Look {
  public:
    Look(const QPalette& palette, const QFont& font);

    // The one of the application's palette and font as they are now.
    static const Look& current();

    // A point is a pixel of the desktop's own scale, more when its font is large.
    int pixels(double points) const;
    ui::Size points(double widthInPixels, double heightInPixels) const;

    QFont font(ui::Font kind) const;
    // The side of the square that a symbol beside text of this font fills.
    int symbolSide(ui::Font kind) const;
    QColor tone(ui::Tone tone) const;

    // What lies behind everything, and the panel around what belongs together.
    QColor window, card, cardBorder, separator;
    QColor text, secondaryText, warningText;
    // What is on or done; what is written on, chosen or the thing to press; its ink.
    QColor accent, plate, onPlate;
    QColor control, hoveredControl, pressedControl, controlBorder;
    QColor field, track, knob, knobBorder;
    QColor warningBackground;
    bool isDark = false;

  private:
    QFont font_;
    double scale_ = 1;
};

// Of two opaque colours, from 1 to 21 (Web Content Accessibility Guidelines 2.1).
double contrast(const QColor& one, const QColor& other);
// What a translucent colour looks like on an opaque one.
QColor blend(const QColor& over, const QColor& under);

// Lengths in points; layout::metrics has those around what lies in containers.
namespace metrics {
inline constexpr int controlHeight = 24;
inline constexpr int smallControlHeight = 22;
inline constexpr int controlPadding = 11;
inline constexpr int buttonWidthKept = 120;
inline constexpr int controlRadius = 6;
inline constexpr int borderlessPadding = 6;
inline constexpr int symbolButtonSide = 24;
inline constexpr int symbolGap = 6;
inline constexpr int fieldHeight = 26;
inline constexpr int fieldMinimumWidth = 80;
inline constexpr int pickerMinimumWidth = 84;
inline constexpr int chevronSide = 12;
inline constexpr int switchWidth = 32;
inline constexpr int switchHeight = 18;
inline constexpr int sliderHeight = 20;
inline constexpr int sliderKnob = 16;
inline constexpr int sliderTrack = 4;
inline constexpr int sliderMinimumWidth = 60;
inline constexpr int progressSide = 16;
inline constexpr int scrollBarWidth = 6;
inline constexpr int popoverRadius = 12;
inline constexpr int popoverGap = 6;
// For the title bar, which the available part of a screen doesn't leave out.
inline constexpr int roomForFrame = 60;
inline constexpr int sectionRadius = 10;
}  // namespace metrics

}  // namespace vantrel::qt
