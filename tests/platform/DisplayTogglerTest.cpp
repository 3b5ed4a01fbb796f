#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/DisplayToggler.h"
#include "support/FakeSymbolLoader.h"
#include "support/NoDisplays.h"

namespace vantrel::platform {
namespace {

using DisplayToggler::Output;
using Calls = std::vector<std::string>;

const std::string skyLight = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
constexpr DisplayID display = 0x8000'0001;

// The private function is a C function, so it finds its answers here.
Calls calls;
std::int32_t configureStatus = 0;
int transaction = 0;

std::string name(DisplayServices::Configuration configuration) {
    return configuration == &transaction ? "the transaction" : "something else";
}

std::int32_t configure(void* configuration, std::uint32_t configured, bool enabled) {
    calls.push_back("configure " + name(configuration) + ": " + std::to_string(configured) +
                    (enabled ? " on" : " off"));
    return configureStatus;
}

class Transactions : public test::NoDisplays {
  public:
    std::optional<Configuration> beginConfiguration() override {
        calls.push_back("begin");
        if (refusesToBegin) return std::nullopt;
        return &transaction;
    }
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override {
        calls.push_back("complete " + name(configuration) + " with option " + std::to_string(option));
        return !refusesToComplete;
    }
    void cancelConfiguration(Configuration configuration) override {
        calls.push_back("cancel " + name(configuration));
    }

    bool refusesToBegin = false;
    bool refusesToComplete = false;
};

class DisplayTogglerTest : public testing::Test {
  protected:
    DisplayTogglerTest() {
        calls.clear();
        configureStatus = 0;
    }
    void addFunction() { loader.addSymbol(skyLight, "CGSConfigureDisplayEnabled", configure); }
    bool setEnabled(Output output) {
        return DisplayToggler::setEnabled(displays, functions, display, output);
    }

    Transactions displays;
    test::FakeSymbolLoader loader;
    PrivateFunctions functions{loader};
};

TEST_F(DisplayTogglerTest, TurnsAnOutputOffUntilTheUserLogsOut) {
    addFunction();
    EXPECT_TRUE(setEnabled(Output::off));
    EXPECT_EQ(calls, (Calls{"begin", "configure the transaction: 2147483649 off",
                            "complete the transaction with option 1"}));
}

TEST_F(DisplayTogglerTest, TurnsAnOutputOn) {
    addFunction();
    EXPECT_TRUE(setEnabled(Output::on));
    EXPECT_EQ(calls, (Calls{"begin", "configure the transaction: 2147483649 on",
                            "complete the transaction with option 1"}));
}

TEST_F(DisplayTogglerTest, DoesNothingMoreWhenTheTransactionIsRefused) {
    addFunction();
    displays.refusesToBegin = true;
    EXPECT_FALSE(setEnabled(Output::off));
    EXPECT_EQ(calls, Calls{"begin"});
    EXPECT_TRUE(loader.calls().empty());
}

TEST_F(DisplayTogglerTest, CancelsTheTransactionWithoutTheFunction) {
    EXPECT_FALSE(setEnabled(Output::off));
    EXPECT_EQ(calls, (Calls{"begin", "cancel the transaction"}));
}

TEST_F(DisplayTogglerTest, CancelsTheTransactionWhenTheFunctionFails) {
    addFunction();
    configureStatus = 1000;
    EXPECT_FALSE(setEnabled(Output::off));
    EXPECT_EQ(calls, (Calls{"begin", "configure the transaction: 2147483649 off", "cancel the transaction"}));
}

TEST_F(DisplayTogglerTest, FailsWhenTheSystemDoesNotTakeTheChange) {
    addFunction();
    displays.refusesToComplete = true;
    EXPECT_FALSE(setEnabled(Output::off));
    EXPECT_EQ(calls.back(), "complete the transaction with option 1");
}

}  // namespace
}  // namespace vantrel::platform
