"""Tests of scripts/check-rooms, on trees that are made up.
  check_rooms_test.py CHECK_ROOMS"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK_ROOMS = sys.argv.pop()


class CheckRoomsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        # A tree in order: each file knows what stands before it, other houses, and libraries.
        self.write("hostapi/CorHost.h")
        self.write("host/core/base/Text.h", "<string>", '"SomeLibrary.h"')
        self.write("host/core/page/Page.h", '"host/core/base/Text.h"')
        self.write("host/core/page/Page.cpp", '"host/core/page/Page.h"', '"hostapi/CorHost.h"')
        self.write("host/core/Host.h", '"host/core/page/Page.h"')
        self.write("host/app/main.cpp", '"host/core/Host.h"', '"host/gui/window/MainWindow.h"')

    def write(self, path, *included):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text("".join(f"#include {name}\n" for name in included), encoding="utf-8")

    def check(self):
        return subprocess.run([sys.executable, CHECK_ROOMS, self.root], text=True,
                              capture_output=True, check=False)

    def refused(self):
        """The complaints about the tree, which there must be."""
        result = self.check()
        self.assertEqual(result.returncode, 1, result.stderr)
        return result.stderr.splitlines()

    def testATreeInOrderPassesInSilence(self):
        result = self.check()
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

    def testAnIncludeThatGoesUpIsRefusedWithBothNames(self):
        self.write("host/core/base/Text.cpp", '"host/core/base/Text.h"', '"host/core/page/Page.h"')
        self.assertEqual(self.refused(), [
            "host/core/base/Text.cpp includes host/core/page/Page.h: base must not know page"])

    def testRoomsDoNotKnowTheFilesOfTheHouseItself(self):
        self.write("host/core/page/Page.cpp", '"host/core/Host.h"')
        self.assertEqual(self.refused(), [
            "host/core/page/Page.cpp includes host/core/Host.h: page must not know ."])

    def testAHouseKnowsOnlyThoseBeforeIt(self):
        self.write("addon/base/Secret.h", '  "host/core/page/Page.h"')
        self.assertEqual(self.refused(), [
            "addon/base/Secret.h includes host/core/page/Page.h: addon must not know host/core"])

    def testAFolderThatIsNoRoomIsRefused(self):
        self.write("host/core/attic/Chest.h")
        self.assertEqual(self.refused(), ["host/core/attic/Chest.h: its folder is no room of host/core"])

    def testAnOvercrowdedFolderIsRefusedAndAFullOneIsNot(self):
        for number in range(24):
            self.write(f"host/core/page/Page{number}.cpp")
            self.write(f"host/core/page/Page{number}.h")
        self.assertEqual(self.check().returncode, 0)
        self.write("host/core/page/OneTooMany.cpp")
        self.assertEqual(self.refused(), [
            "host/core/page holds 26 sources; at most 25 make a room"])


if __name__ == "__main__":
    unittest.main()
