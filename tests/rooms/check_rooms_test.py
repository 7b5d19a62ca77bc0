"""Tests cmake/check_rooms.py over small houses: check_rooms_test.py CHECK_ROOMS"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = sys.argv.pop(1)


class Rooms(unittest.TestCase):
    def check(self, files, *arguments):
        """The exit code and output of the check over a house of these files, text by path."""
        with tempfile.TemporaryDirectory() as folder:
            for path, text in files.items():
                file = pathlib.Path(folder, path)
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, SCRIPT, "--root", folder, *arguments], capture_output=True, text=True,
                                 check=False)
            return run.returncode, run.stdout

    def expect_fault(self, files, fault):
        code, output = self.check(files)
        self.assertEqual(code, 1, output)
        self.assertIn(fault, output)

    def test_what_includes_downwards_is_right(self):
        code, output = self.check({
            "platform/apPath.h": "",
            "service/text/axsName.h": "#include <apPath.h>\n",
            "service/tree/axsNode.h": '#include "axsName.h"\n#include <vector>\n',
            "service/dom/axsHandle.cpp": '#include "axsNode.h"\n'})
        self.assertEqual((code, output), (0, "4 files in 4 rooms include only what stands below them\n"))

    def test_a_room_of_the_engine_that_includes_one_above_it(self):
        self.expect_fault({"service/tree/axsNode.cpp": '\n#include "axsHandle.h"\n', "service/dom/axsHandle.h": ""},
                          "service/tree/axsNode.cpp:2: service/tree/ may not include axsHandle.h of service/dom/")

    def test_a_library_that_includes_one_above_it(self):
        self.expect_fault({"platform/apPath.cpp": "#include <axmNode.h>\n", "source/document/axmNode.h": ""},
                          "platform/apPath.cpp:1: platform/ may not include axmNode.h of source/document/")

    def test_the_conformance_suite_may_not_know_the_engine(self):
        self.expect_fault({"source/utest/axmSuite.cpp": "#include <axsRegister.h>\n", "service/axsRegister.h": ""},
                          "source/utest/ may not include axsRegister.h of service/engine/")

    def test_rooms_that_include_each_other(self):
        self.expect_fault({
            "service/xpath/axsA.h": '#include "axsB.h"\n',
            "service/writing/axsB.h": '#include "axsC.h"\n',
            "service/dom/axsC.h": '#include "axsA.h"\n'},
                          "rooms include each other in a circle: service/dom -> service/xpath -> service/writing -> "
                          "service/dom")

    def test_a_folder_that_is_not_in_the_plan(self):
        self.expect_fault({"service/attic/../cellar.h": "", "cupboard/x.h": "", "service/y.cpp": ""},
                          "service/y.cpp: its folder is no room of the house")

    def test_includes_of_the_engine_have_one_form(self):
        self.expect_fault({"service/text/axsA.h": "", "service/text/axsA.cpp": "#include <axsA.h>\n"},
                          "axsA.h stands in quotes, as a header of the own library")
        self.expect_fault({"platform/apA.h": "", "service/text/axsA.cpp": '#include "apA.h"\n'},
                          "apA.h stands in angles, as a header of another library")
        self.expect_fault({"service/text/axsA.cpp": '#include "vector"\n'},
                          "there is no header vector in the house, so it stands in angles")

    def test_the_graph_is_printed(self):
        files = {"service/text/axsA.h": "", "service/tree/axsB.h": '#include "axsA.h"\n'}
        self.assertEqual(self.check(files, "--graph"), (0, "service/text: -\nservice/tree: service/text\n"))


if __name__ == "__main__":
    unittest.main()
