// A second process that runs a piece of the test and reports bytes to it.
//
// The child has no test framework around it: it reports what is wrong as text.
// Errors: a process that can't be made stops the program.
#pragma once

#include <array>
#include <cerrno>
#include <cstdio>
#include <signal.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::test {

class ChildProcess {
  public:
    // Gives bytes to the parent.
    class Report {
      public:
        explicit Report(int pipe) : pipe_(pipe) {}
        void operator()(std::string_view bytes) const {
            while (!bytes.empty()) {
                const ssize_t size = ::write(pipe_, bytes.data(), bytes.size());
                if (size < 0 && errno != EINTR) ::_exit(1);
                if (size > 0) bytes.remove_prefix(static_cast<std::size_t>(size));
            }
        }
        // For what reports by itself that way; the parent hears of its end.
        void becomeStandardOutput() const {
            ::dup2(pipe_, STDOUT_FILENO);
            ::close(pipe_);
        }

      private:
        int pipe_;
    };

    // Calls `body` with a Report in a process of its own.
    template <class Body>
    explicit ChildProcess(Body body) {
        std::array<int, 2> pipe{};
        runtime::require(::pipe(pipe.data()) == 0, "no pipe can be made");
        // What is still to be printed is the parent's to print.
        std::fflush(nullptr);
        process_ = ::fork();
        runtime::require(process_ >= 0, "no process can be made");
        if (process_ == 0) {
            ::close(pipe[0]);
            body(Report(pipe[1]));
            ::_exit(0);
        }
        ::close(pipe[1]);
        pipe_ = pipe[0];
    }
    ~ChildProcess() {
        if (process_ > 0) kill();
        ::close(pipe_);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Waits for one byte; false when the child has ended.
    bool readByte(char& byte) {
        ssize_t size = ::read(pipe_, &byte, 1);
        while (size < 0 && errno == EINTR) size = ::read(pipe_, &byte, 1);
        return size == 1;
    }
    // All the rest, until the child has ended.
    std::string rest() {
        std::string bytes;
        for (char byte = 0; readByte(byte);) bytes += byte;
        return bytes;
    }
    // Ends it at once, wherever it is.
    void kill() {
        ::kill(process_, SIGKILL);
        wait();
    }
    // How it ended: its signal, or 0 when it came to its end.
    int wait() {
        int status = 0;
        while (::waitpid(process_, &status, 0) < 0 && errno == EINTR) {
        }
        process_ = -1;
        if (WIFSIGNALED(status)) return WTERMSIG(status);
        return WEXITSTATUS(status) == 0 ? 0 : -1;
    }

  private:
    pid_t process_ = -1;
    int pipe_ = -1;
};

}  // namespace vantrel::test
