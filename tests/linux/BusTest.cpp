#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "linux/BusService.h"
#include "platform/linux/Bus.h"
#include "platform/linux/DescriptorThread.h"
#include "runtime/RealScheduler.h"
#include "support/PrivateBus.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;

const Bus::Address clerk{"org.vantrel.Clerk", "/clerk", "org.vantrel.Clerk"};

// A real bus in real time; nothing depends on how long anything takes.
class BusTest : public testing::Test {
  protected:
    ~BusTest() override {
        bus.reset();
        service.reset();
        scheduler.finishThreads();
    }

    std::string text(const Bus::Message& message) {
        const char* text = nullptr;
        if (message == nullptr || sd_bus_message_read(message.get(), "s", &text) <= 0) return "nothing";
        return text;
    }
    std::string ask(const char* method) { return text(bus->call(bus->makeCall(clerk, method))); }
    void say(const std::string& word) {
        service->signal("/clerk", "org.vantrel.Clerk", "Word",
                        [&](sd_bus_message* signal) { sd_bus_message_append(signal, "s", word.c_str()); });
    }
    void disconnectNow() {
        daemon.stop();
        const std::function<void()> look = [&] {
            if (!bus->isConnected()) return loop.quit();
            loop.post(look);
        };
        loop.post(look);
        loop.run();
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    test::PrivateBus daemon;
    DescriptorThread descriptors{loop};
    std::unique_ptr<BusService> service = std::make_unique<BusService>(scheduler, "org.vantrel.Clerk");
    std::unique_ptr<Bus> bus = std::make_unique<Bus>(Bus::Kind::system, descriptors, loop);
};

TEST_F(BusTest, ConnectsToEitherBus) {
    EXPECT_TRUE(bus->isConnected());
    EXPECT_TRUE(Bus(Bus::Kind::session, descriptors, loop).isConnected());
}

TEST_F(BusTest, GivesTheAnswerToACall) {
    service->answer("Greet", [](sd_bus_message* call, sd_bus_message* answer) {
        const char* name = nullptr;
        sd_bus_message_read(call, "s", &name);
        sd_bus_message_append(answer, "s", ("hello " + std::string(name)).c_str());
    });
    const Bus::Message call = bus->makeCall(clerk, "Greet");
    ASSERT_NE(call, nullptr);
    sd_bus_message_append(call.get(), "s", "Ann");
    EXPECT_EQ(text(bus->call(call)), "hello Ann");
}

TEST_F(BusTest, GivesNothingForAnError) {
    EXPECT_EQ(bus->call(bus->makeCall(clerk, "Unknown")), nullptr);
    EXPECT_EQ(service->calls(), std::vector<std::string>{"Unknown"});
}

TEST_F(BusTest, GivesNothingWhereNobodyIs) {
    EXPECT_EQ(bus->call(bus->makeCall({"org.vantrel.Nobody", "/a", "a.b"}, "Greet")), nullptr);
    EXPECT_EQ(bus->property({"org.vantrel.Nobody", "/a", "a.b"}, "Size", "u"), nullptr);
}

TEST_F(BusTest, MakesNoCallOfWhatIsNoAddress) {
    EXPECT_EQ(bus->makeCall({"no service", "/a", "a.b"}, "Greet"), nullptr);
    EXPECT_EQ(bus->makeCall({"a.b", "no path", "a.b"}, "Greet"), nullptr);
    EXPECT_EQ(bus->call(nullptr), nullptr);
}

TEST_F(BusTest, WaitsForNoAnswerForLong) {
    service->keepSilent("Greet");
    EXPECT_EQ(bus->call(bus->makeCall(clerk, "Greet")), nullptr);
    // And goes on with others.
    service->answer(
        "Speak", [](sd_bus_message*, sd_bus_message* answer) { sd_bus_message_append(answer, "s", "word"); });
    EXPECT_EQ(ask("Speak"), "word");
}

TEST_F(BusTest, ReadsAPropertyOfTheRightType) {
    service->answer("Size", [](sd_bus_message*, sd_bus_message* answer) {
        sd_bus_message_append(answer, "v", "u", 42U);
    });
    const Bus::Message message = bus->property(clerk, "Size", "u");
    ASSERT_NE(message, nullptr);
    std::uint32_t size = 0;
    EXPECT_GT(sd_bus_message_read(message.get(), "u", &size), 0);
    EXPECT_EQ(size, 42U);
    EXPECT_EQ(bus->property(clerk, "Size", "s"), nullptr);
    EXPECT_EQ(bus->property(clerk, "Colour", "s"), nullptr);
}

TEST_F(BusTest, HearsASignalOnTheMainThread) {
    std::vector<std::string> heard;
    bus->onSignal(clerk, "Word", [&](sd_bus_message* signal) {
        const char* word = nullptr;
        sd_bus_message_read(signal, "s", &word);
        heard.emplace_back(word);
        if (heard.size() == 2) loop.quit();
    });
    // The bus has it by then.
    EXPECT_EQ(ask("Unknown"), "nothing");
    say("one");
    say("two");
    loop.run();
    EXPECT_EQ(heard, (std::vector<std::string>{"one", "two"}));
}

// The bus's word that it will tell of them has come, but waits just as long to be read.
TEST_F(BusTest, HearsSignalsHoweverLateTheMainLoopRuns) {
    bool hasHeard = false;
    bus->onSignal(clerk, "Word", [&](sd_bus_message*) {
        hasHeard = true;
        loop.quit();
    });
    service->keepSilent("Greet");
    EXPECT_EQ(ask("Greet"), "nothing");
    loop.runFor(1ms);
    ASSERT_TRUE(bus->isConnected());
    say("word");
    loop.run();
    EXPECT_TRUE(hasHeard);
}

TEST_F(BusTest, HearsNoOtherSignal) {
    std::vector<std::string> heard;
    bus->onSignal(clerk, "Word", [&](sd_bus_message*) { heard.emplace_back("word"); });
    bus->onSignal({clerk.service, "/other", clerk.interface}, "Word",
                  [&](sd_bus_message*) { heard.emplace_back("other path"); });
    bus->onSignal({clerk.service, "/clerk", "org.vantrel.Other"}, "Word",
                  [&](sd_bus_message*) { heard.emplace_back("other interface"); });
    bus->onSignal(clerk, "End", [&](sd_bus_message*) { loop.quit(); });
    EXPECT_EQ(ask("Unknown"), "nothing");
    say("one");
    service->signal("/clerk", "org.vantrel.Clerk", "End", [](sd_bus_message*) {});
    loop.run();
    EXPECT_EQ(heard, std::vector<std::string>{"word"});
}

// What came together with an answer is in the connection's own queue; nothing more arrives.
TEST_F(BusTest, HearsASignalThatCameTogetherWithAnAnswer) {
    std::string heard;
    bus->onSignal(clerk, "Word", [&](sd_bus_message*) {
        heard = "word";
        loop.quit();
    });
    EXPECT_EQ(ask("Unknown"), "nothing");
    service->answer("Speak", [](sd_bus_message* call, sd_bus_message*) {
        sd_bus_message* signal = nullptr;
        sd_bus_message_new_signal(sd_bus_message_get_bus(call), &signal, "/clerk", "org.vantrel.Clerk",
                                  "Word");
        sd_bus_send(nullptr, signal, nullptr);
        sd_bus_message_unref(signal);
    });
    EXPECT_NE(bus->call(bus->makeCall(clerk, "Speak")), nullptr);
    EXPECT_EQ(heard, "");
    loop.run();
    EXPECT_EQ(heard, "word");
}

// A handler may call somebody itself.
TEST_F(BusTest, AsksWhileItHears) {
    service->answer(
        "Speak", [](sd_bus_message*, sd_bus_message* answer) { sd_bus_message_append(answer, "s", "word"); });
    std::string answer;
    bus->onSignal(clerk, "Word", [&](sd_bus_message*) {
        answer = ask("Speak");
        loop.quit();
    });
    EXPECT_EQ(ask("Unknown"), "nothing");
    say("one");
    loop.run();
    EXPECT_EQ(answer, "word");
}

TEST_F(BusTest, AnswersNothingOnceTheBusHasGone) {
    bool wasHeard = false;
    bus->onSignal(clerk, "Word", [&](sd_bus_message*) { wasHeard = true; });
    const Bus::Message call = bus->makeCall(clerk, "Greet");
    disconnectNow();
    EXPECT_FALSE(bus->isConnected());
    EXPECT_EQ(bus->call(call), nullptr);
    EXPECT_EQ(bus->makeCall(clerk, "Greet"), nullptr);
    EXPECT_EQ(bus->property(clerk, "Size", "u"), nullptr);
    bus->onSignal(clerk, "Word", [](sd_bus_message*) {});
    EXPECT_FALSE(wasHeard);
}

TEST_F(BusTest, AnswersNothingWhereNoBusIs) {
    daemon.stop();
    Bus none(Bus::Kind::system, descriptors, loop);
    EXPECT_FALSE(none.isConnected());
    EXPECT_EQ(none.makeCall(clerk, "Greet"), nullptr);
    EXPECT_EQ(none.property(clerk, "Size", "u"), nullptr);
    none.onSignal(clerk, "Word", [](sd_bus_message*) {});
    loop.runDue();
}

}  // namespace
}  // namespace vantrel::linux
