// What a video link answers: first what was scripted, transfer by transfer, then
// the same for ever. Unless told otherwise, writes succeed and reads fail.
#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

#include "runtime/Time.h"

namespace vantrel::test {

class ScriptedService {
  public:
    using Bytes = std::vector<std::uint8_t>;

    // A status other than 0 fails the read; missing bytes read as 0.
    struct Reply {
        std::int32_t status = 0;
        Bytes bytes;
    };

    static constexpr std::int32_t readFailure = 0x2ED;

    ScriptedService() = default;
    ScriptedService(const ScriptedService&) = delete;
    ScriptedService& operator=(const ScriptedService&) = delete;

    void nextWrites(std::initializer_list<std::int32_t> statuses) { writes_.insert(writes_.end(), statuses); }
    void nextReply(Bytes bytes) { replies_.push_back({0, std::move(bytes)}); }
    void nextReadFails(std::int32_t status = readFailure) { replies_.push_back({status, {}}); }

    void everyOtherWrite(std::int32_t status) {
        everyOtherWrite([status] { return status; });
    }
    void everyOtherWrite(std::function<std::int32_t()> status) { otherWrites_ = std::move(status); }
    void everyOtherReply(Bytes bytes) {
        everyOtherReply([bytes = std::move(bytes)] { return Reply{0, bytes}; });
    }
    void everyOtherReply(std::function<Reply()> reply) { otherReplies_ = std::move(reply); }

    // How long each transfer keeps the bus busy.
    void takesPerTransfer(runtime::MonotonicClock::duration duration) { transferTime_ = duration; }

  private:
    friend class ScriptedBus;

    template <class Answer>
    static std::optional<Answer> takeFirst(std::deque<Answer>& answers) {
        if (answers.empty()) return std::nullopt;
        std::optional<Answer> first = std::move(answers.front());
        answers.pop_front();
        return first;
    }
    std::int32_t write() {
        const std::optional<std::int32_t> scripted = takeFirst(writes_);
        return scripted ? *scripted : otherWrites_();
    }
    Reply read() {
        std::optional<Reply> scripted = takeFirst(replies_);
        return scripted ? *std::move(scripted) : otherReplies_();
    }

    std::deque<std::int32_t> writes_;
    std::deque<Reply> replies_;
    std::function<std::int32_t()> otherWrites_ = [] { return 0; };
    std::function<Reply()> otherReplies_ = [] { return Reply{readFailure, {}}; };
    runtime::MonotonicClock::duration transferTime_{};
    std::atomic_flag isBusy_;
};

}  // namespace vantrel::test
