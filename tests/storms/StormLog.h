// Passes the program's log lines of the main thread on, and prints all of them
// when asked to.
#pragma once

#include <functional>
#include <iostream>
#include <string_view>
#include <utility>

#include "platform/Log.h"
#include "runtime/Clock.h"
#include "storms/Wire.h"

namespace vantrel::storms {

class StormLog : public platform::LogSink {
  public:
    using Listener = std::function<void(std::string_view text)>;

    explicit StormLog(const runtime::Clock& clock) : clock_(clock) {}

    void print(bool printing) { printing_ = printing; }
    // Hears the lines of the models and their manager, from inside them.
    void onDisplayLine(Listener listener) { listener_ = std::move(listener); }

    void write(std::string_view, std::string_view category, platform::LogLevel,
               std::string_view text) override {
        if (printing_) note(category, text);
        const bool isOfModels = category == platform::Log::display && Wire::running() == Wire::noWorker;
        if (isOfModels && listener_) listener_(text);
    }
    void note(std::string_view category, std::string_view text) const {
        if (!printing_) return;
        const std::chrono::duration<double> now = clock_.now().time_since_epoch();
        std::cout << now.count() << " s " << category << ": " << text << '\n';
    }

  private:
    const runtime::Clock& clock_;
    bool printing_ = false;
    Listener listener_;
};

}  // namespace vantrel::storms
