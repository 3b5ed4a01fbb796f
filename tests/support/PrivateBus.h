// A D-Bus daemon of the test's own, and everything on it: a Bus finds it where it looks for
// the system's and the session's. Without dbus-daemon the test fails.
// Threads: main thread.
#pragma once

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "support/TemporaryFolder.h"

extern char** environ;

namespace vantrel::test {

class PrivateBus {
  public:
    PrivateBus() {
        folder_.put("bus.conf", "<busconfig><type>session</type><listen>unix:path=" + folder_.path("socket") +
                                    "</listen><policy context='default'><allow send_destination='*'/>"
                                    "<allow receive_sender='*'/><allow own='*'/></policy></busconfig>");
        start();
        for (const char* variable : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"}) {
            ::setenv(variable, ("unix:path=" + folder_.path("socket")).c_str(), 1);
        }
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus() {
        stop();
        ::unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
    }

    // It goes without a word to those who are connected.
    void stop() {
        if (daemon_ < 0) return;
        ::kill(daemon_, SIGKILL);
        ::waitpid(daemon_, nullptr, 0);
        daemon_ = -1;
    }

  private:
    void start() {
        const std::string configuration = "--config-file=" + folder_.path("bus.conf");
        std::array<int, 2> ends{-1, -1};
        ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        const std::string address = "--print-address=3";
        // It doesn't outlive the test, however that ends.
        std::array<const char*, 8> arguments{
            "setpriv",  "--pdeathsig",   "KILL", "dbus-daemon", configuration.c_str(),
            "--nofork", address.c_str(), nullptr};
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, ends[1], 3);
        // It complains where it may not raise its limits.
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        const int error = ::posix_spawnp(&daemon_, arguments[0], &actions, nullptr,
                                         const_cast<char**>(arguments.data()), environ);
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        if (error != 0) daemon_ = -1;
        // It listens once it says where.
        std::array<char, 1> byte{};
        const bool hasSaid = ::read(ends[0], byte.data(), byte.size()) == 1;
        ::close(ends[0]);
        ASSERT_TRUE(error == 0 && hasSaid) << "dbus-daemon can't be started";
    }

    const TemporaryFolder folder_;
    pid_t daemon_ = -1;
};

}  // namespace vantrel::test
