#include "linux/kernel/Command.h"

#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "runtime/Fatal.h"

namespace vantrel::test {

Command::Command(std::vector<std::string> words, runtime::MainLoop& mainLoop,
                 linux::Descriptors& descriptors) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    // Ctrl-C is for the program; this one has to clean up after it.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGQUIT, SIG_IGN);
    sigset_t usual;
    sigemptyset(&usual);
    sigaddset(&usual, SIGINT);
    sigaddset(&usual, SIGQUIT);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &usual);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    const int error =
        ::posix_spawnp(&process_, arguments.front(), nullptr, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    if (error != 0) {
        process_ = -1;
        errno = error;
        return;
    }
    descriptor_ = static_cast<int>(::syscall(SYS_pidfd_open, process_, 0));
    runtime::require(descriptor_ >= 0, "a program's end can't be waited for");
    watch_ = descriptors.watch(descriptor_, [this, &mainLoop] {
        watch_.reset();
        mainLoop.quit();
    });
}

Command::~Command() {
    watch_.reset();
    if (descriptor_ >= 0) ::close(descriptor_);
}

int Command::status() const {
    int status = 0;
    while (::waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace vantrel::test
