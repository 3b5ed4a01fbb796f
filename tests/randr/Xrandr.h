// Another program that looks at an X server and changes what it shows: `xrandr`.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

namespace vantrel::randr {

class Xrandr {
  public:
    // What it tells of each output, by name, but for when that changed, and for the place of
    // its CRTC in a list that begins with the primary output's.
    using Report = std::map<std::string, std::string>;

    explicit Xrandr(std::string display) : display_(std::move(display)) {}

    // What it wrote; some tests ask for what can't be had.
    std::string run(const std::string& arguments) const {
        const std::string command = "DISPLAY=" + display_ + " xrandr " + arguments + " 2>&1";
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), &::pclose);
        std::string text;
        std::array<char, 4096> bytes{};
        while (const std::size_t size = std::fread(bytes.data(), 1, bytes.size(), pipe.get())) {
            text.append(bytes.data(), size);
        }
        return text;
    }
    void expect(const std::string& arguments) const { EXPECT_EQ(run(arguments), "") << arguments; }

    // The screen's own line is called "Screen".
    Report report() const {
        Report report;
        std::istringstream lines(run("--verbose --current"));
        std::string name;
        for (std::string line; std::getline(lines, line);) {
            if (line.find("Timestamp:") != std::string::npos || line.find("\tCRTC") == 0) continue;
            if (line.front() != ' ' && line.front() != '\t') name = line.substr(0, line.find(' '));
            report[name] += line + "\n";
        }
        return report;
    }
    // "1080x1920+1920+0 (0x67) left X axis", with "primary" before it; empty when dark.
    std::string shown(const std::string& output) const { return shown(output, report()); }
    static std::string shown(const std::string& output, const Report& report) {
        const std::string& text = report.at(output);
        if (!isLit(output, report)) return "";
        const std::size_t begin = text.find("connected ") + std::string("connected ").size();
        return text.substr(begin, text.find(" (normal left") - begin);
    }
    static bool isLit(const std::string& output, const Report& report) {
        const std::string& text = report.at(output);
        return text.substr(0, text.find('\n')).find(" (0x") != std::string::npos;
    }

  private:
    const std::string display_;
};

}  // namespace vantrel::randr
