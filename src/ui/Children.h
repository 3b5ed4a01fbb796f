// The components that a component shows in its body, each kept, with its state, for
// as long as every new body shows it again.
//
//     const auto pass = cards_.pass();
//     for (const auto& display : displays) {
//         nodes.push_back(pass.at(display->id(), [&] { return make(display); }).body());
//     }
#pragma once

#include <map>
#include <memory>
#include <set>
#include <utility>

namespace vantrel::ui {

template <class Key, class T>
class Children {
  public:
    // One making of a body. What it was not asked for is gone when it ends.
    class Pass {
      public:
        explicit Pass(Children& children) : children_(children) {}
        Pass(const Pass&) = delete;
        Pass& operator=(const Pass&) = delete;
        ~Pass() {
            std::erase_if(children_.all_, [this](const auto& item) { return !shown_.contains(item.first); });
        }

        template <class Make>
        T& at(const Key& key, Make&& make) const {
            shown_.insert(key);
            auto& child = children_.all_[key];
            if (!child) child = std::forward<Make>(make)();
            return *child;
        }

      private:
        Children& children_;
        mutable std::set<Key> shown_;
    };

    Pass pass() { return Pass(*this); }

  private:
    std::map<Key, std::unique_ptr<T>> all_;
};

}  // namespace vantrel::ui
