#include "ui/qt/Look.h"

#include <QApplication>
#include <QFontInfo>
#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

#include "runtime/Fatal.h"

namespace vantrel::qt {
namespace {

// What running text needs against its background, level AA.
constexpr double readable = 4.5;
// A font of this size, in pixels, is what the lengths are made for.
constexpr double ordinaryFontSize = 13.4;

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// `color`, moved towards `strong` until it can be read on each of the backgrounds.
QColor readableOn(std::initializer_list<QColor> backgrounds, QColor color, const QColor& strong) {
    for (int step = 0; step < 20; ++step) {
        const bool isReadable = std::ranges::all_of(
            backgrounds, [&](const QColor& background) { return contrast(color, background) >= readable; });
        if (isReadable) return color;
        color = blend(withOpacity(strong, 0.12), color);
    }
    return strong;
}

// The accent with what the palette writes on it, a little darker or lighter if that
// makes it readable; with another ink if it doesn't.
std::pair<QColor, QColor> plateOf(const QColor& accent, const QColor& ink) {
    const QColor away = luminance(ink) > luminance(accent) ? Qt::black : Qt::white;
    for (const double share : {0.0, 0.06, 0.12, 0.18, 0.24, 0.3}) {
        const QColor plate = blend(withOpacity(away, share), accent);
        if (contrast(plate, ink) >= readable) return {plate, ink};
    }
    return {accent, contrast(accent, Qt::white) >= contrast(accent, Qt::black) ? Qt::white : Qt::black};
}

double sizeFactor(ui::Font kind) {
    switch (kind) {
        case ui::Font::headline:
            return 1.12;
        case ui::Font::title:
        case ui::Font::body:
            return 1;
        case ui::Font::callout:
            return 0.93;
        case ui::Font::caption:
            return 0.86;
    }
    runtime::fatal("no such font");
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor blend(const QColor& over, const QColor& under) {
    const double share = over.alphaF();
    const auto mix = [share](int top, int bottom) {
        return static_cast<int>(std::lround(top * share + bottom * (1 - share)));
    };
    return {mix(over.red(), under.red()), mix(over.green(), under.green()), mix(over.blue(), under.blue())};
}

Look::Look(const QPalette& palette, const QFont& base) : font_(base) {
    scale_ = std::max(1.0, QFontInfo(base).pixelSize() / ordinaryFontSize);
    window = palette.color(QPalette::Active, QPalette::Window);
    text = palette.color(QPalette::Active, QPalette::WindowText);
    accent = palette.color(QPalette::Active, QPalette::Highlight);
    std::tie(plate, onPlate) = plateOf(accent, palette.color(QPalette::Active, QPalette::HighlightedText));
    isDark = luminance(window) < luminance(text);

    card = blend(withOpacity(Qt::white, isDark ? 0.06 : 0.72), window);
    cardBorder = withOpacity(text, isDark ? 0.09 : 0.10);
    separator = withOpacity(text, 0.13);
    const QColor orange = isDark ? QColor(0xff, 0xae, 0x45) : QColor(0xc2, 0x5e, 0x00);
    warningBackground = withOpacity(QColor(0xff, 0x95, 0x00), 0.12);
    secondaryText = readableOn({window, card, blend(warningBackground, card)},
                               blend(withOpacity(text, 0.64), window), text);
    warningText = readableOn({window, card, blend(warningBackground, card)}, orange, text);

    control = withOpacity(text, isDark ? 0.11 : 0.06);
    hoveredControl = withOpacity(text, isDark ? 0.17 : 0.10);
    pressedControl = withOpacity(text, isDark ? 0.24 : 0.17);
    controlBorder = withOpacity(text, isDark ? 0.10 : 0.16);
    field =
        isDark ? blend(withOpacity(Qt::black, 0.22), card) : palette.color(QPalette::Active, QPalette::Base);
    track = withOpacity(text, isDark ? 0.24 : 0.17);
    knob = isDark ? QColor(0xf2, 0xf2, 0xf2) : QColor(Qt::white);
    knobBorder = withOpacity(Qt::black, isDark ? 0.45 : 0.28);
}

const Look& Look::current() {
    struct Made {
        qint64 palette;
        QFont font;
        Look look;
    };
    static std::optional<Made> made;
    const QPalette palette = QApplication::palette();
    const QFont font = QApplication::font();
    if (!made || made->palette != palette.cacheKey() || made->font != font) {
        made.emplace(Made{palette.cacheKey(), font, Look(palette, font)});
    }
    return made->look;
}

int Look::pixels(double points) const { return static_cast<int>(std::lround(points * scale_)); }

ui::Size Look::points(double widthInPixels, double heightInPixels) const {
    return {widthInPixels / scale_, heightInPixels / scale_};
}

QFont Look::font(ui::Font kind) const {
    QFont made = font_;
    const int pixelSize = QFontInfo(font_).pixelSize();
    made.setPixelSize(std::max(9, static_cast<int>(std::lround(pixelSize * sizeFactor(kind)))));
    if (kind == ui::Font::headline) made.setWeight(QFont::DemiBold);
    if (kind == ui::Font::title) made.setWeight(QFont::Medium);
    return made;
}

int Look::symbolSide(ui::Font kind) const {
    const double side = kind == ui::Font::headline || kind == ui::Font::title ? 20
                        : kind == ui::Font::caption                           ? 13
                                                                              : 16;
    return pixels(side);
}

QColor Look::tone(ui::Tone tone) const {
    switch (tone) {
        case ui::Tone::primary:
            return text;
        case ui::Tone::secondary:
            return secondaryText;
        case ui::Tone::warning:
            return warningText;
    }
    runtime::fatal("no such tone");
}

}  // namespace vantrel::qt
