#include "views/Environment.h"

#include <utility>

namespace vantrel::views {
namespace {

runtime::Task<> loadKeepingAlive(Environment::Display display, model::ExternalDisplay::Capabilities from) {
    co_await display->load(from);
}

}  // namespace

std::string Environment::translated(std::string key, std::vector<std::string> arguments) const {
    return shown(text::Text::translated(std::move(key), std::move(arguments)));
}

runtime::TaskHandle Environment::load(Display display, model::ExternalDisplay::Capabilities from) const {
    return manager.start(loadKeepingAlive(std::move(display), from));
}

}  // namespace vantrel::views
