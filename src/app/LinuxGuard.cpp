#include "app/LinuxGuard.h"

#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <unistd.h>

#include "app/ExitStatus.h"
#include "app/LinuxDesk.h"
#include "platform/linux/GuardDuty.h"
#include "platform/linux/GuardProcess.h"
#include "platform/linux/JournalLog.h"
#include "platform/linux/OutputSwitch.h"
#include "runtime/RealScheduler.h"

namespace vantrel::app {
namespace {

// Held by whoever is on guard; the kernel lets go of it when that process ends.
class Post {
  public:
    explicit Post(const std::string& path)
        : descriptor_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR)) {}
    Post(const Post&) = delete;
    Post& operator=(const Post&) = delete;
    ~Post() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    bool take() const { return ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0; }
    bool isTaken() const { return descriptor_ >= 0 && !take(); }
    void leave() const { ::flock(descriptor_, LOCK_UN); }

  private:
    const int descriptor_;
};

// The reader hears of it, and then of the end.
void say(std::string_view text) {
    [[maybe_unused]] const auto written = ::write(STDOUT_FILENO, text.data(), text.size());
    const int nowhere = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) ::dup2(nowhere, stream);
    if (nowhere > STDERR_FILENO) ::close(nowhere);
}

}  // namespace

int LinuxGuard::run() {
    const pid_t child = ::fork();
    if (child < 0) return ExitStatus::mistake;
    if (child > 0) ::_exit(ExitStatus::success);
    ::setsid();

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    linux::JournalLog journal;
    LinuxDesk desk(scheduler, loop, false);
    linux::SessionMemory memory = desk.memory(journal);
    linux::OutputSwitch outputs(desk.desktop(), desk.session(), memory, nullptr, platform::Log(journal));
    linux::GuardDuty duty(desk.desktop(), desk.session(), outputs, loop);
    const Post post(desk.guardFile());
    bool hasSaid = false;
    // Who is just leaving the post looks once more after that: an output may have been
    // turned off in the meantime, by somebody who found the post taken.
    while (duty.isNeeded() && post.take()) {
        if (!std::exchange(hasSaid, true)) say(linux::GuardProcess::onGuard);
        duty.run();
        post.leave();
    }
    if (!hasSaid && post.isTaken()) say(linux::GuardProcess::onGuard);
    return ExitStatus::success;
}

}  // namespace vantrel::app
