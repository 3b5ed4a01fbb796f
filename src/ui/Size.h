// In points; a renderer scales them.
#pragma once

namespace vantrel::ui {

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

}  // namespace vantrel::ui
