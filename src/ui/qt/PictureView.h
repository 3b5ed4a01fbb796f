// A view that nobody sees, to be drawn into files.
// Threads: main thread. Needs a QtApplication.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/Size.h"
#include "ui/View.h"

namespace vantrel::qt {

enum class Scheme { light, dark };

class PictureView {
  public:
    // From now on everything is drawn in that scheme's colours.
    static void use(Scheme scheme);

    PictureView();
    PictureView(const PictureView&) = delete;
    PictureView& operator=(const PictureView&) = delete;
    ~PictureView();

    ui::View& view();
    // Has what was told to the renderer laid out at that size.
    void layOut(ui::Size size);
    // What is shown only in part there.
    std::vector<std::string> cutTexts() const;
    // A PNG file with `ratio` pixels for each of the desktop's. False when it can't be
    // written.
    bool save(const std::string& path, double ratio);

  private:
    struct Parts;

    std::unique_ptr<Parts> parts_;
};

}  // namespace vantrel::qt
