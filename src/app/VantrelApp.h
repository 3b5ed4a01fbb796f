// The program: arguments in, exit status out. Everything it touches is given, so
// that tests run the whole of it.
#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/simulated/Desk.h"

namespace vantrel::app {

struct CommandLine;

class VantrelApp {
  public:
    // The streams must outlive the app.
    VantrelApp(std::istream& input, std::ostream& output, std::ostream& errors)
        : input_(input), output_(output), errors_(errors) {}

    // Arguments without the program's name. Blocks until the program ends.
    int run(const std::vector<std::string>& arguments);

  private:
    int run(const CommandLine& line);
    int runInterface(const CommandLine& line);
    int runProbe(const CommandLine& line);
    int recordProbe(const CommandLine& line, std::optional<simulated::Desk> desk);
    int runStory(const CommandLine& line);
    int parseCapabilities(const std::string& path);
    // One line for the user.
    int fail(const std::string& reason);

    std::istream& input_;
    std::ostream& output_;
    std::ostream& errors_;
};

}  // namespace vantrel::app
