// A desktop with several outputs, the program that turns them off and on, and its guard:
// each in a process of its own, which may crash at any point. What both know of one another
// is what the desktop shows and the memory keeps.
//
// It knows by itself which outputs are dark because of the program, and says what is wrong.
// Threads: main thread, in virtual time.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "linux/FakeDesktop.h"
#include "linux/FakeDeviceEvents.h"
#include "linux/FakeDeviceNodes.h"
#include "linux/FakeI2C.h"
#include "linux/SharedDefaults.h"
#include "linux/SysfsTree.h"
#include "platform/DisplayToggler.h"
#include "platform/EnglishLocalizer.h"
#include "platform/MemoryDefaults.h"
#include "platform/linux/Connector.h"
#include "platform/linux/GuardDuty.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"

namespace vantrel::linux {

class DarkWorld {
  public:
    // What differs between desktops.
    struct Habits {
        // Whether an output that was turned off is lit when a monitor is plugged in there.
        bool lightsPlugged = true;
        // Whether an output without a monitor is not an output.
        bool dropsUnplugged = false;
        // Whether an output keeps its picture when its monitor is unplugged.
        bool keepsPicture = false;
        // Whether the guard hears of everything before the program does.
        bool isGuardFirst = false;
        // Whether the guard looks at the desktop before the program goes on.
        bool isGuardQuick = true;
    };
    enum class Victim { program, guard };

    // Connectors as the kernel has them. They never change: the desktop's word counts. Where
    // the kernel knows none of them, the program asks its OutputSwitch itself, which takes
    // much less time.
    class Kernel {
      public:
        enum class Knows { outputs, nothing };

        explicit Kernel(std::vector<std::string> connectors, Knows knows = Knows::outputs)
            : connectors_(std::move(connectors)) {
            if (knows == Knows::nothing) return;
            for (const std::string& name : connectors_) {
                tree_.addConnector("card0-" + name);
                tree_.plug("card0-" + name, {});
            }
            simulated::VirtualTime time;
            FakeI2C devices(time);
            BoundedI2C buses(devices, time);
            Inventory inventory(sysfs, buses);
            inventory.look();
            const auto displays = inventory.displays();
            for (const Inventory::Display& display : *displays) ids_[display.connector.name] = display.id;
        }
        const std::vector<std::string>& connectors() const { return connectors_; }
        bool knowsOutputs() const { return !ids_.empty(); }
        platform::DisplayID id(const std::string& connector) const { return ids_.at(connector); }

      private:
        SysfsTree tree_;
        const std::vector<std::string> connectors_;
        std::map<std::string, platform::DisplayID> ids_;

      public:
        const Sysfs sysfs = tree_.sysfs();
    };

    // The kernel outlives it.
    DarkWorld(const Kernel& kernel, Habits habits)
        : kernel_(kernel), habits_(habits), devices_(time_), names_(kernel.connectors()) {
        for (const std::string& name : names_) {
            Desktop::Output output = FakeDesktop::outputOf(name, {});
            output.place = "place of " + name;
            desktop_.add(output);
        }
        desktop_.onChange([this] { tell(&Process::desktopChanged); });
        startProgram();
    }
    DarkWorld(const DarkWorld&) = delete;
    DarkWorld& operator=(const DarkWorld&) = delete;
    ~DarkWorld() {
        program_.reset();
        guard_.reset();
        time_.finishThreads();
    }

    // What the user does with the program. Nothing happens while it doesn't run.
    void darken(std::size_t output) { toggle(output, platform::DisplayToggler::Output::off); }
    void light(std::size_t output) { toggle(output, platform::DisplayToggler::Output::on); }
    void startProgram() {
        if (program_) return;
        const bool wasUnguarded = std::exchange(wasGuardKilled_, false);
        within(program_, [this] {
            program_ = std::make_unique<Program>(*this);
            program_->start();
        });
        // It crashed before it could do anything about that.
        if (!program_ && !guard_) wasGuardKilled_ = wasGuardKilled_ || wasUnguarded;
    }
    void endProgram() { program_.reset(); }
    void killGuard() {
        guard_.reset();
        wasGuardKilled_ = true;
    }

    // What happens around it.
    void plug(std::size_t output) {
        if (desktopOutput(output) != nullptr && desktopOutput(output)->isConnected) return;
        if (desktopOutput(output) == nullptr) {
            Desktop::Output back = std::exchange(dropped_[names_.at(output)], {});
            back.isConnected = true;
            show(back, back.isLit || habits_.lightsPlugged);
            desktop_.add(back);
            return;
        }
        Desktop::Output& found = *desktopOutput(output);
        found.isConnected = true;
        show(found, found.isLit || habits_.lightsPlugged);
        desktop_.changed();
    }
    void unplug(std::size_t output) {
        if (desktopOutput(output) == nullptr || !desktopOutput(output)->isConnected) return;
        Desktop::Output& found = *desktopOutput(output);
        found.isConnected = false;
        found.isLit = found.isLit && habits_.keepsPicture;
        if (!habits_.dropsUnplugged) return desktop_.changed();
        dropped_[found.name] = found;
        desktop_.remove(found.name);
    }
    void moveLid() {
        isLidClosed_ = !isLidClosed_;
        tell(&Process::lidMoved);
    }
    // By another program.
    void turn(std::size_t output, bool isLit) {
        Desktop::Output* found = desktopOutput(output);
        if (found == nullptr || !found->isConnected) return;
        show(*found, isLit);
        desktop_.changed();
    }
    // The desktop refuses so many of the next darkens and lights.
    void refuse(unsigned times) { refusals_ = times; }
    // The process ends at this point of what it does next: before or after one of its words to
    // desktop, memory or guard. Counted from 1.
    void crashAt(Victim victim, unsigned point) {
        victim_ = victim;
        point_ = point;
    }
    bool isCrashComing() const { return point_ > 0; }
    void crashNoMore() { point_ = 0; }
    // Something has changed that makes no difference.
    void changeNothing() { desktop_.changed(); }
    // Until everybody has heard of everything and done what it led to.
    void settle() {
        for (bool isMoving = true; isMoving;) {
            isMoving = false;
            for (const bool isGuard : {habits_.isGuardFirst, !habits_.isGuardFirst}) {
                if (isGuard) {
                    isMoving = runGuard() || isMoving;
                } else {
                    isMoving = runProgram() || isMoving;
                }
            }
        }
        note();
    }

    bool hasProgram() const { return program_ != nullptr; }
    bool isLit(std::size_t output) {
        const Desktop::Output* found = desktopOutput(output);
        return found != nullptr && found->isLit;
    }
    std::string place(std::size_t output) { return desktopOutput(output)->place; }
    std::size_t darkBecauseOfProgram() {
        note();
        return dark_.size();
    }
    bool isGuarded() const { return guard_ != nullptr; }

    // What a user must never meet; empty when all is well. To be asked when settled.
    std::string wrong() {
        note();
        if (!complaint_.empty()) return complaint_;
        const auto noted = memory(Victim::program, nullptr).darkened();
        for (const std::string& name : dark_) {
            if (!noted.contains(name)) return name + " is dark because of the program, but that isn't noted";
        }
        if (!dark_.empty() && !guard_ && !wasGuardKilled_)
            return "an output is turned off, but nobody is on guard";
        if (!program_ && !guard_) return {};
        if (canAnyBeSeen()) return {};
        for (const std::string& name : dark_) {
            const Desktop::Output* output = find(name);
            if (output != nullptr && output->isConnected && !isHidden(name))
                return name + " is dark, and nothing can be seen";
        }
        return {};
    }

  private:
    // Thrown where a process ends.
    struct Crash {};

    class Process {
      public:
        virtual ~Process() = default;
        // Heard of by its loop.
        std::function<void()> desktopChanged;
        std::function<void()> lidMoved;
        // Nothing of it runs any more.
        bool isDead = false;
    };

    // Each word of a process to the world outside of it.
    class Teller {
      public:
        Teller(DarkWorld& world, Victim self, Process& process)
            : world_(world), self_(self), process_(process) {}
        // What it gives once the process has ended doesn't matter.
        template <class Word>
        auto operator()(const Word& word) -> decltype(word()) {
            if (process_.isDead) return {};
            step();
            const auto answer = word();
            step();
            return answer;
        }
        bool isDead() const { return process_.isDead; }

      private:
        void step() {
            if (world_.victim_ != self_ || world_.point_ == 0 || --world_.point_ > 0) return;
            process_.isDead = true;
            throw Crash();
        }

        DarkWorld& world_;
        const Victim self_;
        Process& process_;
    };

    class Client : public Desktop {
      public:
        Client(DarkWorld& world, Victim self, Process& process, runtime::MainLoop& loop)
            : world_(world), process_(process), loop_(loop), tell_(world, self, process) {}

        std::string name() const override { return "Fake"; }
        std::string identity() const override { return "fake-:0"; }
        bool isThere() override { return true; }
        std::vector<Output> outputs() override { return world_.desktop_.outputs(); }
        std::optional<platform::TransferTable> table(const std::string&) override { return std::nullopt; }
        bool setTable(const std::string&, const platform::TransferTable&) override { return false; }
        bool keepsTables() const override { return true; }
        bool canSwitch() const override { return true; }
        std::optional<Arrangement> arrangement(const std::string& output) override {
            return world_.desktop_.arrangement(output);
        }
        bool darken(const std::string& output) override {
            return tell_([&] { return world_.darkened(output); });
        }
        bool light(const std::string& output, const std::optional<Arrangement>& arrangement) override {
            return tell_([&] { return world_.lit(output, arrangement); });
        }
        void onChange(std::function<void()> changed) override {
            process_.desktopChanged = [&loop = loop_, changed] { loop.post(changed); };
            if (!changed) process_.desktopChanged = nullptr;
        }

      private:
        DarkWorld& world_;
        Process& process_;
        runtime::MainLoop& loop_;
        Teller tell_;
    };

    class Login : public Session {
      public:
        Login(DarkWorld& world, Process& process, runtime::MainLoop& loop)
            : world_(world), process_(process), loop_(loop) {}
        void onWake(std::function<void()>) override {}
        bool isLidClosed() override { return world_.isLidClosed_; }
        void onLid(std::function<void()> moved) override {
            process_.lidMoved = [&loop = loop_, moved] { loop.post(moved); };
            if (!moved) process_.lidMoved = nullptr;
        }
        bool setBacklight(const std::string&, std::uint32_t) override { return false; }

      private:
        DarkWorld& world_;
        Process& process_;
        runtime::MainLoop& loop_;
    };

    class Opened : public platform::Defaults {
      public:
        Opened(platform::Defaults& kept, Teller tell) : kept_(kept), tell_(tell) {}
        std::optional<platform::DefaultsValue> value(const std::string& key) override {
            return kept_.value(key);
        }
        void set(const std::string& key, platform::DefaultsValue value) override {
            tell_([&] {
                kept_.set(key, std::move(value));
                return true;
            });
        }
        void remove(const std::string& key) override {
            tell_([&] {
                kept_.remove(key);
                return true;
            });
        }

      private:
        platform::Defaults& kept_;
        Teller tell_;
    };

    class Post : public OutputGuard {
      public:
        Post(DarkWorld& world, Process& process) : world_(world), tell_(world, Victim::program, process) {}
        bool post() override {
            return tell_([&] { return world_.startGuard(); });
        }

      private:
        DarkWorld& world_;
        Teller tell_;
    };

    class Program : public Process {
      public:
        explicit Program(DarkWorld& world) : world_(world) {}
        ~Program() override { isDead = true; }
        void start() {
            linux_.emplace(
                LinuxPlatform::Parts{world_.kernel_.sysfs, world_.devices_, nodes_, events_, session_,
                                     desktop_, memory_, guard_, defaults_, localizer_, loginItem_},
                sink_, world_.time_, loop);
            platform_.emplace(linux_->platform());
            platform_->displays.onReconfiguration([](platform::DisplayID, std::uint32_t) {});
        }
        void toggle(const std::string& output, platform::DisplayToggler::Output wanted) {
            using platform::DisplayToggler::Output;
            if (!world_.kernel_.knowsOutputs()) {
                (wanted == Output::on) ? outputs_.light(output) : outputs_.darken(output);
                return;
            }
            platform::DisplayToggler::setEnabled(platform_->displays, platform_->functions,
                                                 world_.kernel_.id(output), wanted);
        }

      private:
        DarkWorld& world_;

      public:
        runtime::MainLoop loop{world_.time_};

      private:
        test::RecordingLogSink sink_;
        Client desktop_{world_, Victim::program, *this, loop};
        Login session_{world_, *this, loop};
        SessionMemory memory_ = world_.memory(Victim::program, this);
        Post guard_{world_, *this};
        OutputSwitch outputs_{desktop_, session_, memory_, &guard_, platform::Log(sink_)};
        FakeDeviceNodes nodes_;
        FakeDeviceEvents events_;
        platform::MemoryDefaults defaults_;
        platform::EnglishLocalizer localizer_;
        simulated::SimulatedLoginItem loginItem_;
        std::optional<LinuxPlatform> linux_;
        std::optional<platform::Platform> platform_;
    };

    class Guard : public Process {
      public:
        explicit Guard(DarkWorld& world) : world_(world) {}
        ~Guard() override { isDead = true; }
        bool isNeeded() { return duty_.isNeeded(); }
        bool hasWork() const { return !hasBegun_ || loop_.nextDue(); }
        void run() {
            if (std::exchange(hasBegun_, true)) {
                loop_.run();
            } else {
                duty_.run();
            }
        }

      private:
        DarkWorld& world_;
        bool hasBegun_ = false;
        test::RecordingLogSink sink_;
        runtime::MainLoop loop_{world_.time_};
        Client desktop_{world_, Victim::guard, *this, loop_};
        Login session_{world_, *this, loop_};
        SessionMemory memory_ = world_.memory(Victim::guard, this);
        OutputSwitch outputs_{desktop_, session_, memory_, nullptr, platform::Log(sink_)};
        GuardDuty duty_{desktop_, session_, outputs_, loop_};
    };

    // Without a process that can crash: a look from outside.
    SessionMemory memory(Victim self, Process* process) {
        if (process == nullptr) return SessionMemory(file_.open(), "fake-:0");
        return SessionMemory(
            [this, tell = Teller(*this, self, *process)] {
                return std::make_unique<Opened>(file_.kept(), tell);
            },
            "fake-:0");
    }

    template <class One, class Work>
    void within(std::unique_ptr<One>& process, const Work& work) {
        try {
            work();
        } catch (const Crash&) {
            process.reset();
        }
    }
    void toggle(std::size_t output, platform::DisplayToggler::Output wanted) {
        if (!program_) return;
        within(program_, [&] { program_->toggle(names_.at(output), wanted); });
    }
    bool startGuard() {
        if (!guard_) {
            auto guard = std::make_unique<Guard>(*this);
            if (!guard->isNeeded()) return false;
            guard_ = std::move(guard);
            wasGuardKilled_ = false;
            if (habits_.isGuardQuick) runGuard();
        }
        return true;
    }
    bool runProgram() {
        if (!program_ || !program_->loop.nextDue()) return false;
        within(program_, [this] { program_->loop.run(); });
        return true;
    }
    bool runGuard() {
        if (!guard_ || !guard_->hasWork()) return false;
        wasGuardKilled_ = true;
        within(guard_, [this] { guard_->run(); });
        if (guard_ == nullptr) return true;
        wasGuardKilled_ = false;
        // Who leaves the post looks once more after that.
        if (!guard_->isNeeded()) guard_.reset();
        return true;
    }
    void tell(std::function<void()> Process::*event) {
        note();
        for (Process* process :
             {static_cast<Process*>(program_.get()), static_cast<Process*>(guard_.get())}) {
            if (process != nullptr && process->*event) (process->*event)();
        }
    }

    // Without a word of the program.
    static void show(Desktop::Output& output, bool isLit) {
        if (isLit && !output.isLit) output.place = "where the desktop put it";
        output.isLit = isLit;
    }
    bool refuses() { return refusals_ > 0 && refusals_-- > 0; }
    bool darkened(const std::string& output) {
        if (refuses() || find(output) == nullptr) return false;
        const bool wasLit = find(output)->isLit;
        const std::string place = find(output)->place;
        if (!desktop_.darken(output)) return false;
        if (!wasLit) return true;
        dark_.push_back(output);
        places_[output] = place;
        return true;
    }
    bool lit(const std::string& output, const std::optional<Desktop::Arrangement>& arrangement) {
        if (refuses()) return false;
        const bool wasOurs = std::ranges::count(dark_, output) > 0;
        if (!desktop_.light(output, arrangement)) return false;
        if (wasOurs && find(output)->place != places_[output]) {
            complaint_ = output + " is not arranged as it was, but: " + find(output)->place;
        }
        return true;
    }
    // What was lit by anybody isn't dark because of the program any more.
    void note() {
        std::erase_if(dark_, [this](const std::string& name) {
            const Desktop::Output* output = find(name);
            return output != nullptr && output->isLit;
        });
    }

    bool isHidden(const std::string& name) const { return isLidClosed_ && Connector::isBuiltIn(name); }
    bool canAnyBeSeen() {
        const auto outputs = desktop_.outputs();
        return std::any_of(outputs.begin(), outputs.end(), [this](const Desktop::Output& output) {
            return output.isConnected && output.isLit && !isHidden(output.name);
        });
    }
    Desktop::Output* find(const std::string& name) {
        const auto outputs = desktop_.outputs();
        const bool isThere =
            std::any_of(outputs.begin(), outputs.end(),
                        [&name](const Desktop::Output& output) { return output.name == name; });
        return isThere ? &desktop_.output(name) : nullptr;
    }
    Desktop::Output* desktopOutput(std::size_t output) { return find(names_.at(output)); }

    const Kernel& kernel_;
    const Habits habits_;
    simulated::VirtualTime time_;
    FakeI2C devices_;
    const std::vector<std::string> names_;
    FakeDesktop desktop_;
    SharedDefaults file_;
    bool isLidClosed_ = false;
    unsigned refusals_ = 0;
    Victim victim_ = Victim::program;
    unsigned point_ = 0;
    bool wasGuardKilled_ = false;
    std::map<std::string, Desktop::Output> dropped_;
    // Outputs that the program turned off and nobody has lit since, and where they were.
    std::vector<std::string> dark_;
    std::map<std::string, std::string> places_;
    std::string complaint_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<Guard> guard_;
};

}  // namespace vantrel::linux
