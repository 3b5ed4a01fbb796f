// What the protocols of the mock compositor share. On the compositor's thread.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <wayland-server.h>

#include "wayland/MockMonitor.h"

namespace vantrel::wayland {

struct MockDesk {
    // What becomes of a configuration; `keep` for later, when release() is called.
    enum class Answer { succeed, fail, cancel, keep };

    struct Configuration {
        std::function<void()> apply;
        std::function<void(Answer)> tell;
    };

    MockMonitor& monitor(const std::string& name) {
        for (const auto& monitor : monitors) {
            if (monitor->name == name && monitor->isPlugged) return *monitor;
        }
        return *monitors.front();
    }

    void receive(Configuration configuration) {
        ++configurations;
        Answer answer = Answer::succeed;
        if (!answers.empty()) {
            answer = answers.front();
            answers.pop_front();
        }
        if (answer == Answer::keep) {
            kept.push_back(std::move(configuration));
        } else {
            finish(configuration, answer);
        }
    }
    void release(Answer answer) {
        for (const Configuration& configuration : kept) finish(configuration, answer);
        kept.clear();
    }

    wl_display* display = nullptr;
    // Never taken away: a client may still ask for one that has been unplugged.
    std::vector<std::unique_ptr<MockMonitor>> monitors;
    // For the next configurations, one by one; then all succeed.
    std::deque<Answer> answers;
    std::vector<Configuration> kept;
    int configurations = 0;
    // Tells all clients what there is now.
    std::function<void()> publish;

  private:
    void finish(const Configuration& configuration, Answer answer) const {
        if (answer == Answer::succeed) {
            configuration.apply();
            configuration.tell(answer);
            publish();
        } else {
            configuration.tell(answer);
            // What made the client's knowledge old.
            if (answer == Answer::cancel) publish();
        }
    }
};

}  // namespace vantrel::wayland
