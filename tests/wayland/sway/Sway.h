// Other programs that look at sway and change what it shows: `swaymsg` by its own
// language, and `wlr-randr` by the protocol for managing outputs. Each is ended when it
// takes too long.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <utility>

namespace vantrel::wayland {

class Sway {
  public:
    struct Output {
        std::string make;
        std::string model;
        bool isActive = false;
        // Mode, place, scale and transform of an active one.
        std::string picture;
        bool operator==(const Output&) const = default;
    };
    using Outputs = std::map<std::string, Output>;

    static Outputs outputs() {
        Outputs outputs;
        const auto told = nlohmann::json::parse(ask("-t get_outputs"));
        for (const auto& output : told) {
            Output& known = outputs[output.at("name").get<std::string>()];
            known.make = output.at("make").get<std::string>();
            known.model = output.at("model").get<std::string>();
            known.isActive = output.at("active").get<bool>();
            if (!known.isActive) continue;
            for (const char* const part : {"current_mode", "rect", "scale", "transform"}) {
                known.picture += output.at(part).dump() + " ";
            }
        }
        return outputs;
    }
    // What sway's language has for it: "output HEADLESS-1 scale 2".
    static void tell(const std::string& command) {
        const std::string answer = ask("'" + command + "'");
        EXPECT_TRUE(nlohmann::json::parse(answer).at(0).at("success").get<bool>()) << command << answer;
    }

    // Whether each output is enabled, as the protocol for managing outputs tells it.
    static std::map<std::string, bool> enabled() {
        std::map<std::string, bool> enabled;
        std::istringstream lines(run("wlr-randr"));
        std::string name;
        for (std::string line; std::getline(lines, line);) {
            if (line.front() != ' ') name = line.substr(0, line.find(' '));
            const std::string mark = "  Enabled: ";
            if (line.starts_with(mark)) enabled[name] = line.substr(mark.size()) == "yes";
        }
        return enabled;
    }
    // Whether sway took it: "--output Virtual-1 --off".
    static bool takes(const std::string& arguments) {
        return run("wlr-randr " + arguments + " 2>/dev/null && echo taken") == "taken\n";
    }

  private:
    // It has no patience with a sway that was just told of another mode, not on a computer
    // that is emulated.
    static std::string ask(const std::string& question) {
        std::string answer;
        for (int attempt = 0; attempt < 10 && answer.empty(); ++attempt) {
            answer = run("swaymsg --raw " + question + " 2>/dev/null");
        }
        return answer;
    }
    static std::string run(const std::string& command) {
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(("timeout 20 " + command).c_str(), "r"),
                                                         &::pclose);
        std::string text;
        std::array<char, 4096> bytes{};
        while (const std::size_t size = std::fread(bytes.data(), 1, bytes.size(), pipe.get())) {
            text.append(bytes.data(), size);
        }
        return text;
    }
};

}  // namespace vantrel::wayland
