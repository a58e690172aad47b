#!/usr/bin/env -S python3 -B
"""What check-tidy finds and what it need not look at again, in a small tree of its own."""
import json
import pathlib
import shutil
import subprocess
import tempfile
import unittest

HERE = pathlib.Path(__file__).parent
CLEAN = "int twice{0}(int number) {{\n  return 2 * number;\n}}\n"
# What clang-tidy alone objects to, in its second line.
ZERO = "int* nothing() {\n  return 0;\n}\n"


class CheckTidy(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.root = pathlib.Path(place.name).resolve()
        (self.root / "src/room").mkdir(parents=True)
        (self.root / "build").mkdir()
        shutil.copy(HERE.parents[1] / ".clang-tidy", self.root)
        self.flags = "-Wall -Wextra -Werror -std=c++20"

    def write(self, name, text):
        (self.root / "src/room" / name).write_text(text)

    def check(self):
        """The exit status and all that is printed."""
        sources = sorted((self.root / "src/room").glob("*.cpp"))
        commands = [{"directory": str(self.root / "build"), "file": str(source),
                     "command": f"/usr/bin/c++ -I{self.root}/src {self.flags} -o {source.stem}.o -c {source}"}
                    for source in sources]
        (self.root / "build/compile_commands.json").write_text(json.dumps(commands))
        run = subprocess.run([HERE / "check-tidy", "build", "room"], cwd=self.root, capture_output=True, text=True)
        return run.returncode, run.stdout + run.stderr

    def expect_checked(self, count, of):
        status, output = self.check()
        self.assertIn(f"{count} of {of} sources checked", output)
        self.assertEqual(status, 0, output)

    def expect_found(self, *expected):
        status, output = self.check()
        self.assertEqual(status, 1, output)
        for text in expected:
            self.assertIn(text, output)

    def write_three(self):
        for name in "ABC":
            self.write(f"{name}.cpp", CLEAN.format(name))

    def test_what_has_passed_is_not_checked_again(self):
        self.write_three()
        self.expect_checked(3, of=3)
        self.expect_checked(0, of=3)

    def test_a_changed_source_is_checked_again_alone(self):
        self.write_three()
        self.expect_checked(3, of=3)
        self.write("B.cpp", CLEAN.format("More"))
        self.expect_checked(1, of=3)
        self.write("B.cpp", ZERO)
        self.expect_found("src/room/B.cpp:2:")

    def test_a_changed_header_is_checked_with_all_that_include_it(self):
        self.write_three()
        self.write("Far.h", "#pragma once\n")
        self.write("Near.h", '#pragma once\n#include "room/Far.h"\n')
        self.write("A.cpp", '#include "room/Near.h"\n' + CLEAN.format("A"))
        self.write("B.cpp", '#include "room/Far.h"\n' + CLEAN.format("B"))
        self.expect_checked(3, of=3)
        self.write("Far.h", "#pragma once\n// changed\n")
        self.expect_checked(2, of=3)
        self.write("Near.h", '#pragma once\n#include "room/Far.h"\n' + "inline " + ZERO)
        self.expect_found("room/Near.h:4:")

    def test_a_header_of_the_system_counts_too(self):
        system = self.root / "system"
        system.mkdir()
        (system / "clock.h").write_text("#pragma once\n")
        self.flags += f" -isystem {system}"
        self.write_three()
        self.write("A.cpp", "#include <clock.h>\n" + CLEAN.format("A"))
        self.expect_checked(3, of=3)
        (system / "clock.h").write_text("#pragma once\nint now();\n")
        self.expect_checked(3, of=3)  # what one unit reads of the system's counts for all of it

    def test_other_rules_or_flags_count_for_all(self):
        self.write_three()
        self.expect_checked(3, of=3)
        with (self.root / ".clang-tidy").open("a") as rules:
            rules.write("# more\n")
        self.expect_checked(3, of=3)
        self.flags += " -DMORE"
        self.expect_checked(3, of=3)

    def test_a_finding_names_its_source_and_holds_up_no_other(self):
        self.write_three()
        self.write("B.cpp", ZERO)
        self.expect_found("src/room/B.cpp:2:")
        self.expect_found("src/room/B.cpp:2:", "1 of 3 sources checked")
        self.write("B.cpp", CLEAN.format("B"))
        self.expect_checked(1, of=3)

    def test_what_the_compiler_warns_of_in_main_files_only_is_found(self):
        self.write_three()
        self.write("C.cpp", "static int unused() {\n  return 1;\n}\n")
        self.expect_found("src/room/C.cpp:1:", "unused-function")

    def test_reserved_names_are_found(self):
        self.write_three()
        self.write("C.cpp", "int __reserved() {\n  return 1;\n}\n")
        self.expect_found("src/room/C.cpp:1:", "reserved")

    def test_two_sources_may_use_one_name_for_things_of_their_own(self):
        for name, type in (("A", "int"), ("B", "char"), ("C", "long")):
            self.write(f"{name}.cpp", f"namespace {{\nconstexpr {type} kSize = 4;\n}}\n"
                                      f"{type} size{name}() {{\n  return kSize;\n}}\n")
        self.expect_checked(3, of=3)
        self.expect_checked(0, of=3)


if __name__ == "__main__":
    unittest.main()
