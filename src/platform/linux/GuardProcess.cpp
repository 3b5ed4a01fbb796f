#include "platform/linux/GuardProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vantrel::linux {
namespace {

class Pipe {
  public:
    Pipe() {
        if (::pipe2(ends_.data(), O_CLOEXEC) != 0) ends_ = {-1, -1};
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        close(0);
        close(1);
    }
    bool isOpen() const { return ends_[0] >= 0; }
    int reader() const { return ends_[0]; }
    int writer() const { return ends_[1]; }
    void closeWriter() { close(1); }

  private:
    void close(std::size_t end) {
        if (ends_.at(end) >= 0) ::close(ends_.at(end));
        ends_.at(end) = -1;
    }
    std::array<int, 2> ends_{-1, -1};
};

pid_t start(std::vector<std::string> command, int output) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (std::string& word : command) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t process = -1;
    const int error =
        ::posix_spawn(&process, command.front().c_str(), &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : -1;
}

// What comes until the end of `expected`, of the pipe, or of patience.
std::string read(int descriptor, std::string_view expected, std::chrono::milliseconds patience) {
    std::string text;
    while (text.size() < expected.size()) {
        pollfd waiting{descriptor, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(patience.count()));
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) break;
        std::array<char, 64> bytes{};
        const ssize_t count = ::read(descriptor, bytes.data(), bytes.size());
        if (count <= 0) break;
        text.append(bytes.data(), static_cast<std::size_t>(count));
    }
    return text;
}

}  // namespace

bool GuardProcess::post() {
    Pipe pipe;
    if (!pipe.isOpen()) return false;
    const pid_t process = start(command_, pipe.writer());
    pipe.closeWriter();
    if (process < 0) return false;
    const bool isOnGuard = read(pipe.reader(), onGuard, patience_) == onGuard;
    // The process that was started ends as soon as it has left its own in its place, or failed.
    if (!isOnGuard) ::kill(process, SIGKILL);
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
    return isOnGuard;
}

}  // namespace vantrel::linux
