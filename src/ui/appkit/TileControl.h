// A button with a picture and a title that may be the chosen one of several.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class TileControl : public AppKitControl {
  public:
    TileControl(layout::Stage& stage, ui::ElementID element);
    ~TileControl() override;

    layout::WidthRange widths() const override;
    int height(int width) const override;
    void setFrame(const layout::Rect& frame) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    const ui::Tile& tile() const { return std::get<ui::Tile>(node().element); }
    // What is not title.
    int around() const;
    NSColor* _Nonnull ink() const;

    NSImageView* _Nonnull symbol_;
    NSTextField* _Nonnull title_;
    NSImageView* _Nonnull badge_;
    Action* _Nonnull action_;
};

}  // namespace vantrel::appkit
