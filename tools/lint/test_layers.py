import unittest

import layers
from tree import Tree

CMAKE = """
vantrel_room(text LINKS PkgConfig::utf8proc)
vantrel_room(runtime LINKS vantrel_text Threads::Threads)
vantrel_room(platform LINKS vantrel_runtime)
vantrel_room(simulated FOLDER platform/simulated
             LINKS vantrel_platform nlohmann_json::nlohmann_json)
vantrel_room(posix FOLDER platform/posix LINKS vantrel_platform)
vantrel_room(macos FOLDER platform/macos LINKS vantrel_platform)
vantrel_room(linux FOLDER platform/linux LINKS vantrel_platform)
vantrel_room(wayland FOLDER platform/linux/wayland LINKS vantrel_linux PkgConfig::wayland-client)
vantrel_room(randr FOLDER platform/linux/randr LINKS vantrel_linux PkgConfig::xcb_randr)
vantrel_room(qt FOLDER ui/qt LINKS vantrel_runtime Qt6::Widgets Qt6::Svg PkgConfig::xcb)
vantrel_room(app LINKS vantrel_simulated vantrel_posix vantrel_randr vantrel_qt CLI11::CLI11 $<$<PLATFORM_ID:Darwin>:vantrel_macos>)
"""


def reasons(path, text):
    return [f.reason for f in layers.check(Tree({layers.ROOMS: CMAKE, path: text}))]


class LayersTest(unittest.TestCase):
    def test_a_room_may_include_itself_and_what_it_links_through_others(self):
        text = '#include <vector>\n#include "platform/Log.h"\n#include "text/Hex.h"\n'
        self.assertEqual(reasons("src/platform/Log.cpp", text), [])

    def test_a_room_may_not_include_what_it_does_not_link(self):
        self.assertEqual(len(reasons("src/runtime/Task.h", '#include "platform/Log.h"\n')), 1)

    def test_only_the_application_may_name_an_implementation_of_the_platform(self):
        include = '#include "platform/simulated/Desk.h"\n'
        self.assertEqual(reasons("src/app/main.cpp", include), [])
        self.assertEqual(reasons("src/platform/simulated/Desk.cpp", include), [])
        (reason,) = reasons("src/platform/Log.h", include)
        self.assertIn("only src/app", reason)

    def test_implementations_of_the_platform_do_not_name_each_other(self):
        include = '#include "platform/posix/FileSystem.h"\n'
        self.assertEqual(reasons("src/app/main.cpp", include), [])
        self.assertEqual(reasons("src/platform/posix/StateFile.cpp", include), [])
        self.assertEqual(len(reasons("src/platform/simulated/Desk.cpp", include)), 1)

    def test_a_room_below_an_implementation_is_a_part_of_it(self):
        include = '#include "platform/linux/Desktop.h"\n#include "platform/linux/randr/RandRDesktop.h"\n'
        self.assertEqual(reasons("src/app/main.cpp", include), [])
        self.assertEqual(reasons("src/platform/linux/randr/RandRDesktop.cpp", include), [])
        self.assertEqual(reasons("src/platform/linux/randr/Clock.cpp", "#include <sys/epoll.h>\n"), [])
        for reason in reasons("src/platform/posix/StateFile.cpp", include):
            self.assertIn("only src/app", reason)
        self.assertEqual(len(reasons("src/platform/posix/StateFile.cpp", include)), 2)

    def test_an_implementation_may_not_include_a_room_below_it_that_it_does_not_link(self):
        (reason,) = reasons("src/platform/linux/Desktop.h", '#include "platform/linux/randr/RandRDesktop.h"\n')
        self.assertIn("does not link randr", reason)

    def test_of_two_libraries_with_headers_in_one_folder_the_right_one_is_linked(self):
        include = "#include <xcb/xcb.h>\n#include <xcb/randr.h>\n"
        self.assertEqual(reasons("src/platform/linux/randr/Connection.cpp", include), [])
        (reason,) = reasons("src/ui/qt/QtPopover.cpp", include)
        self.assertIn("<xcb/randr.h>", reason)
        self.assertEqual(len(reasons("src/platform/linux/Desktop.h", include)), 2)

    def test_what_is_one_desktops_is_named_by_its_own_room_only(self):
        include = "#include <wayland-client.h>\n"
        self.assertEqual(reasons("src/platform/linux/wayland/Connection.cpp", include), [])
        self.assertEqual(len(reasons("src/platform/linux/Descriptors.h", include)), 1)
        self.assertEqual(len(reasons("src/platform/linux/randr/Connection.cpp", include)), 1)
        include = '#include "platform/linux/wayland/WaylandDesktop.h"\n'
        self.assertEqual(len(reasons("src/platform/linux/randr/RandRDesktop.h", include)), 1)

    def test_a_library_has_to_be_linked_too(self):
        include = "#include <nlohmann/json.hpp>\n"
        self.assertEqual(reasons("src/platform/simulated/Desk.cpp", include), [])
        self.assertEqual(len(reasons("src/platform/Log.cpp", include)), 1)

    def test_a_toolkit_is_named_by_its_own_room_only(self):
        include = "#include <QWidget>\n#include <QSvgRenderer>\n"
        self.assertEqual(reasons("src/ui/qt/QtView.cpp", include), [])
        self.assertEqual(reasons("src/app/main.cpp", "#include <QWidget>\n"), ["only src/ui/qt may include <QWidget>"])
        self.assertEqual(len(reasons("src/ui/qt/QtView.cpp", "#include <QDBusConnection>\n")), 1)

    def test_what_is_the_macs_is_named_by_its_own_rooms_only(self):
        text = "#include <CoreFoundation/CoreFoundation.h>\n#import <AppKit/AppKit.h>\n#include <dlfcn.h>\n"
        self.assertEqual(reasons("src/platform/macos/MacScreens.mm", text), [])
        self.assertEqual(len(reasons("src/platform/Log.cpp", text)), 3)
        (reason,) = reasons("src/app/main.cpp", "#import <Foundation/Foundation.h>\n")
        self.assertEqual(reason, "only src/platform/macos and src/ui/appkit may include <Foundation/Foundation.h>")

    def test_an_import_is_an_include(self):
        self.assertEqual(len(reasons("src/platform/macos/MacScreens.mm", '#import "app/Main.h"\n')), 1)

    def test_a_room_may_be_linked_on_one_system_only(self):
        self.assertEqual(reasons("src/app/MacComputer.cpp", '#include "platform/macos/MacLog.h"\n'), [])

    def test_no_room_includes_the_test_libraries(self):
        self.assertEqual(len(reasons("src/app/main.cpp", "#include <gtest/gtest.h>\n")), 1)

    def test_an_include_without_its_room_is_refused(self):
        self.assertEqual(len(reasons("src/text/Hex.cpp", '#include "Hex.h"\n')), 1)

    def test_a_folder_has_to_be_a_room(self):
        self.assertEqual(len(reasons("src/misc/Things.h", "")), 1)

    def test_the_finding_names_the_line(self):
        tree = Tree({layers.ROOMS: CMAKE, "src/text/Hex.h": '// Hex.\n\n#include "runtime/Task.h"\n'})
        (finding,) = layers.check(tree)
        self.assertEqual((finding.path, finding.line), ("src/text/Hex.h", 3))


if __name__ == "__main__":
    unittest.main()
