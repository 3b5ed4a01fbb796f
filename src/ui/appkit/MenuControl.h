// A button that opens a menu: with a title, of things to do; with a symbol, of options
// one of which is chosen.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class MenuControl : public AppKitControl {
  public:
    MenuControl(layout::Stage& stage, ui::ElementID element);

    layout::WidthRange widths() const override;
    int height(int) const override { return naturalHeight(view()); }

  protected:
    void show(const ui::Node& node) override;

  private:
    void showPicker(const ui::Picker& picker);
    void showMenu(const ui::Menu& menu);
    void setOptions(const std::vector<std::string>& options);
    void setFace(const std::string& title, NSImage* _Nullable image);
    void choose(std::size_t option);

    NSPopUpButton* _Nonnull button() const { return static_cast<NSPopUpButton*>(view()); }

    NSMenu* _Nonnull menu_;
    std::vector<std::string> options_;
    std::string note_;
};

}  // namespace vantrel::appkit
