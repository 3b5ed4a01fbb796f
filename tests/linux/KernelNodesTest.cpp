#include <grp.h>
#include <unistd.h>

#include "linux/kernel/KernelBench.h"
#include "platform/linux/KernelNodes.h"
#include "runtime/Fatal.h"

namespace vantrel::linux {
namespace {

using Access = DeviceNodes::Access;

class KernelNodesTest : public test::KernelBench {
  protected:
    // One that isn't root's and has a name.
    static group someGroup() {
        const group* found = ::getegid() == 0 ? ::getgrnam("tty") : ::getgrgid(::getegid());
        runtime::require(found != nullptr, "a computer without groups");
        return *found;
    }

    static constexpr I2CDevices::Bus bus = 5;
    KernelNodes nodes;
};

TEST_F(KernelNodesTest, AllowWhatMayBeReadAndWritten) { EXPECT_EQ(nodes.access(bus), Access::allowed); }

TEST_F(KernelNodesTest, ForbidWhatMayNotBeOpened) {
    kernel.denyNode(2);
    EXPECT_EQ(nodes.access(bus), Access::forbidden);
    EXPECT_EQ(nodes.access(6), Access::allowed);
    kernel.allowNode(2);
    EXPECT_EQ(nodes.access(bus), Access::allowed);
}

TEST_F(KernelNodesTest, MissWhatIsNotThere) {
    kernel.removeBus(2);
    EXPECT_EQ(nodes.access(bus), Access::missing);
    EXPECT_EQ(nodes.group(bus), std::nullopt);
}

TEST_F(KernelNodesTest, NameTheGroupThatMayUseABus) {
    const group some = someGroup();
    kernel.lendNode(2, some.gr_gid);
    EXPECT_EQ(nodes.group(bus), some.gr_name);
}

TEST_F(KernelNodesTest, NameNoGroupThatMayNotUseTheBus) {
    kernel.lendNode(2, someGroup().gr_gid);
    kernel.denyNode(2);
    EXPECT_EQ(nodes.group(bus), std::nullopt);
}

TEST_F(KernelNodesTest, NameNoGroupOfRootsOwn) {
    if (::getegid() != 0) return;  // only root has files of root's group
    EXPECT_EQ(nodes.access(bus), Access::allowed);
    EXPECT_EQ(nodes.group(bus), std::nullopt);
}

TEST_F(KernelNodesTest, NameNoGroupThatHasNoName) {
    if (::geteuid() != 0) return;  // only root gives files to any group
    constexpr gid_t nameless = 3'000'000'000;
    ASSERT_EQ(::getgrgid(nameless), nullptr);
    kernel.lendNode(2, nameless);
    EXPECT_EQ(nodes.group(bus), std::nullopt);
}

}  // namespace
}  // namespace vantrel::linux
