// What a compositor was asked for, until it has answered: it may do it yet, long after
// nobody waits for it any more.
//
// Threads: main thread.
#pragma once

#include <algorithm>
#include <list>
#include <optional>
#include <string>
#include <utility>

#include "platform/linux/wayland/OutputManagement.h"
#include "platform/linux/wayland/Proxy.h"

namespace vantrel::wayland {

template <class Configuration>
class Questions {
  public:
    struct Question {
        Proxy<Configuration> configuration;
        std::string head;
        bool turnsOff = false;
        std::optional<OutputManagement::Answer> answer;
    };

    // Stays where it is until it is settled. A question after those that were never answered
    // takes their place once it is.
    Question& add(Configuration* configuration, const std::string& head, bool turnsOff) {
        return questions_.emplace_back(
            Question{Proxy<Configuration>(configuration), head, turnsOff, std::nullopt});
    }
    OutputManagement::Answer settle(const Question& question) {
        if (!question.answer) return OutputManagement::Answer::none;
        const auto answer = *question.answer;
        questions_.remove_if([head = question.head](const Question& other) { return other.head == head; });
        return answer;
    }
    bool mayDarken(const std::string& head) const {
        return std::any_of(questions_.begin(), questions_.end(), [&](const Question& question) {
            return question.head == head && question.turnsOff && !question.answer;
        });
    }

  private:
    std::list<Question> questions_;
};

}  // namespace vantrel::wayland
