// One reading or one setting of the first monitor of this computer, for measuring what
// the program needs for it: --probe always does more.
//
//     ddc_client read CODE
//     ddc_client write CODE VALUE      (numbers as C has them)
//
// Ends with 1 when the monitor didn't answer or there is none.

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "app/NoLog.h"
#include "app/ThisComputer.h"
#include "ddc/AVServiceLocator.h"
#include "ddc/DDCChannel.h"
#include "runtime/RealScheduler.h"

namespace {

using vantrel::ddc::DDCChannel;

// As the model does it when it loads a display.
constexpr int attempts = 4;

bool talk(DDCChannel& channel, const std::vector<unsigned long>& numbers) {
    const auto code = static_cast<std::uint8_t>(numbers.front());
    if (numbers.size() > 1) return channel.write(code, static_cast<std::uint16_t>(numbers[1]));
    const auto result = channel.read(code, attempts);
    std::cout << describe(result) << '\n';
    return result.kind == DDCChannel::ReadResult::Kind::value;
}

}  // namespace

int main(int count, char** values) {
    const std::vector<std::string> words(values + 1, values + count);
    const std::size_t wanted = !words.empty() && words.front() == "write" ? 3 : 2;
    if (words.size() != wanted || (words.front() != "read" && words.front() != "write")) {
        std::cerr << "usage: ddc_client read CODE | write CODE VALUE\n";
        return 2;
    }
    std::vector<unsigned long> numbers;
    for (std::size_t index = 1; index < words.size(); ++index)
        numbers.push_back(std::strtoul(words[index].c_str(), nullptr, 0));

    vantrel::runtime::RealScheduler scheduler;
    vantrel::runtime::MainLoop loop(scheduler);
    vantrel::app::NoLog log;
    const auto computer = vantrel::app::ThisComputer::make(scheduler, loop);
    vantrel::platform::Platform platform = computer->platform(log);
    const auto entries =
        vantrel::ddc::AVServiceLocator::externalServices(platform.registry, platform.functions);
    if (entries.empty()) return 1;
    DDCChannel channel(vantrel::ddc::Transport(platform), entries.front(), "monitor");
    return talk(channel, numbers) ? 0 : 1;
}
