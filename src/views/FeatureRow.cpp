#include "views/FeatureRow.h"

#include <algorithm>
#include <utility>

#include "runtime/Fatal.h"
#include "ui/Nodes.h"
#include "views/FeatureSlider.h"

namespace vantrel::views {

using mccs::VCPInfo;
using ui::Font;
using ui::Node;

FeatureRow::FeatureRow(const Environment& environment, Environment::Display display, Feature feature)
    : environment_(environment), display_(std::move(display)), feature_(std::move(feature)) {}

Node FeatureRow::body() {
    switch (feature_->info.kind) {
        case VCPInfo::Kind::continuous:
            return slider();
        case VCPInfo::Kind::choice:
            return choice();
        case VCPInfo::Kind::action:
            return action();
        case VCPInfo::Kind::readOnly:
            return value();
    }
    runtime::fatal("a VCP feature of no kind");
}

Node FeatureRow::slider() const {
    return ui::column(2,
                      {
                          ui::text(name(), Font::caption),
                          featureSlider(environment_, display_, feature_, "slider.horizontal.3"),
                      })
        .fillWidth();
}

Node FeatureRow::choice() const {
    const std::vector<std::uint16_t> values = feature_->options.get();
    ui::Picker picker;
    for (const std::uint16_t value : values) {
        picker.options.push_back(environment_.shown(feature_->label(value)));
    }
    const auto current = std::ranges::find(values, feature_->current.get());
    if (current != values.end()) picker.selected = static_cast<std::size_t>(current - values.begin());
    return ui::row(8,
                   {
                       ui::wrappedText(name(), Font::callout),
                       ui::spacer(),
                       Node{std::move(picker)}
                           .onChoose([display = display_, feature = feature_, values](std::size_t option) {
                               display->set(*feature, values.at(option));
                           })
                           .named(name()),
                   })
        .fillWidth();
}

Node FeatureRow::action() {
    std::vector<Node> parts{ui::wrappedText(name(), Font::callout), ui::spacer()};
    const auto add = [&](std::string title, std::string key, std::function<void()> action) {
        parts.push_back(ui::button(std::move(title), ui::Button::Style::bordered, Font::callout)
                            .described(name())
                            .onPress(std::move(action))
                            .key(std::move(key)));
    };
    if (confirming_.get()) {
        add(environment_.translated("Cancel"), "cancel", [this] { confirming_.set(false); });
        add(environment_.translated("Confirm"), "confirm", [this] {
            confirming_.set(false);
            display_->trigger(*feature_);
        });
    } else {
        add(environment_.translated("Run"), "run", [this] { confirming_.set(true); });
    }
    return ui::row(8, std::move(parts)).fillWidth();
}

Node FeatureRow::value() const {
    const auto current = feature_->current.get();
    return ui::row(8,
                   {
                       ui::wrappedText(name(), Font::callout),
                       ui::spacer(),
                       ui::text(current ? environment_.shown(feature_->label(*current)) : std::string(),
                                Font::callout, ui::Tone::secondary),
                   })
        .fillWidth();
}

}  // namespace vantrel::views
