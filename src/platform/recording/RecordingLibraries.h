// The private functions of another platform, with a record of what goes through those
// that open links and transfer bytes.
//
// C functions carry no context, so they serve the one RecordingLibraries alive; a second
// one stops the program.
// Threads: made and destroyed on the main thread, while nobody calls the functions;
// looking up and calling from any thread. Lifetime: what it stands on outlives it.
#pragma once

#include "platform/PrivateFunctions.h"
#include "platform/SymbolLoader.h"
#include "platform/recording/Recording.h"

namespace vantrel::recording {

class RecordingLibraries : public platform::SymbolLoader {
  public:
    RecordingLibraries(platform::PrivateFunctions& real, Recording& recording);
    RecordingLibraries(const RecordingLibraries&) = delete;
    RecordingLibraries& operator=(const RecordingLibraries&) = delete;
    ~RecordingLibraries() override;

    // Every library is there, and the same: what is missing is the functions.
    void* open(const std::string&) override { return this; }
    void* lookUp(void* library, const std::string& symbol) override;

    // For the functions themselves.
    platform::PrivateFunctions& real() { return real_; }
    Recording& recording() { return recording_; }

  private:
    platform::PrivateFunctions& real_;
    Recording& recording_;
};

}  // namespace vantrel::recording
