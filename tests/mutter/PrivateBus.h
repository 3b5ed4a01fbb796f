// A D-Bus daemon for this test program alone, in the place of the session's one.
#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <signal.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrel::mutter {

class PrivateBus : public testing::Environment {
  public:
    // What ctest takes for "skipped".
    static constexpr int skipped = 77;

    void SetUp() override {
        std::array<int, 2> pipe{};
        if (::pipe(pipe.data()) != 0) std::abort();
        daemon_ = ::fork();
        if (daemon_ == 0) {
            // It doesn't outlive the tests, however they end.
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            ::dup2(pipe[1], STDOUT_FILENO);
            ::execlp("dbus-daemon", "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address",
                     nullptr);
            ::_exit(skipped);
        }
        ::close(pipe[1]);
        std::string address;
        for (char byte = 0; ::read(pipe[0], &byte, 1) == 1 && byte != '\n';) address += byte;
        ::close(pipe[0]);
        if (address.empty()) {
            std::puts("skipped: there is no dbus-daemon (Debian: dbus-daemon)");
            std::exit(skipped);
        }
        ::setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
    }
    void TearDown() override {
        ::kill(daemon_, SIGTERM);
        ::waitpid(daemon_, nullptr, 0);
    }

  private:
    pid_t daemon_ = -1;
};

}  // namespace vantrel::mutter
