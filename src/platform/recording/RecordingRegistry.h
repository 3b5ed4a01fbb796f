// The registry of another platform, disguised, with a record of what was looked into.
// Threads: any, as Registry asks. Lifetime: what it stands on outlives it.
#pragma once

#include "platform/Registry.h"
#include "platform/recording/Disguise.h"
#include "platform/recording/Recording.h"

namespace vantrel::recording {

class RecordingRegistry : public platform::Registry {
  public:
    RecordingRegistry(platform::Registry& real, Disguise& disguise, Recording& recording)
        : real_(real), disguise_(disguise), recording_(recording) {}

    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override;
    void releaseService(const void* service) override { real_.releaseService(service); }

  private:
    platform::Registry& real_;
    Disguise& disguise_;
    Recording& recording_;
};

}  // namespace vantrel::recording
