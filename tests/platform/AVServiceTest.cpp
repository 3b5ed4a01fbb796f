#include <gtest/gtest.h>
#include <optional>

#include "platform/AVService.h"
#include "support/EmptyRegistry.h"

namespace vantrel::platform {
namespace {

constexpr int link = 0;

TEST(AVService, IsGivenBackWithItsLastCopy) {
    test::EmptyRegistry registry;
    std::optional<AVService> service(std::in_place, registry, &link);
    {
        const AVService copy = *service;
        service.reset();
        EXPECT_EQ(copy.get(), &link);
        EXPECT_TRUE(registry.released().empty());
    }
    EXPECT_EQ(registry.released(), std::vector<const void*>{&link});
}

}  // namespace
}  // namespace vantrel::platform
