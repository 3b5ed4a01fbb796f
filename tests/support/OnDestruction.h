// Something to capture or to keep as a local that shows when its last copy is
// destroyed.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace vantrel::test {

inline std::shared_ptr<void> onDestruction(std::function<void()> destroyed) {
    return std::shared_ptr<void>(nullptr, [destroyed = std::move(destroyed)](void*) { destroyed(); });
}

}  // namespace vantrel::test
