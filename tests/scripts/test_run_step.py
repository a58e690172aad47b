"""How a step shows how far it is."""
import unittest

from sandbox import Sandbox

NINJA = "\n".join(f"[{i}/300] Building CXX object src/ui/CMakeFiles/velk_ui.dir/Part{i}.cpp.o" for i in range(1, 301))
APT = """Reading package lists...
dlstatus:1:0:Retrieving file 1 of 2
dlstatus:2:50.5:Retrieving file 2 of 2
dlstatus:2:99.9:Retrieving file 2 of 2
pmstatus:g++:0:Preparing g++
pmstatus:g++:33.3333:Unpacking g++ (amd64)
pmstatus:g++:100:Installed g++ (amd64)
Setting up g++
"""


class AStep(Sandbox):
    def step(self, output, then="", **options):
        (self.root / "recorded").write_text(output)
        runner = self.run_in_terminal if options.pop("terminal", False) else self.run_here
        return runner("scripts/run-step", "build", "build/log", "bash", "-c", "cat recorded; " + then, **options)

    def test_without_a_terminal_tells_each_tenth_on_a_line(self):
        lines = self.step(NINJA).stdout.splitlines()
        tenths = [f"build: {count} of 300" for count in (1, *range(30, 301, 30))]
        self.assertEqual(lines[:-1], tenths)
        self.assertRegex(lines[-1], r"^build: done \(\d+ s\)$")

    def test_in_a_terminal_stays_on_one_line_that_fits(self):
        shown = self.step(NINJA, terminal=True, columns=40).stdout
        self.assertEqual(shown.count("\n"), 1)
        states = shown.split("\r\033[K")
        self.assertIn("build: 7 of 300  Part7.cpp.o", states)
        self.assertIn("build: 300 of 300  Part300.cpp.o", states)
        self.assertRegex(states[-1], r"^build: done \(\d+ s\)\n$")

    def test_in_a_narrow_terminal_never_breaks_its_line(self):
        shown = self.step(NINJA, terminal=True, columns=24).stdout
        states = shown.split("\r\033[K")
        self.assertEqual(max(map(len, states)), 23)
        self.assertIn("build: 300 of 300  Part", states)

    def test_shows_what_a_command_without_a_count_says(self):
        shown = self.step("-- Detecting CXX compiler\n-- Found GTest\n", terminal=True).stdout
        self.assertIn("\r\033[Kbuild: Found GTest\r", shown)
        lines = self.step("-- Detecting CXX compiler\n-- Found GTest\n").stdout.splitlines()
        self.assertEqual(lines[0], "build: started")
        self.assertEqual(len(lines), 2)

    def test_says_nothing_when_there_is_nothing_to_do(self):
        idle = "[0/2] Re-checking globbed directories...\nninja: no work to do.\n"
        self.assertEqual(self.step(idle).stdout, "")
        self.assertEqual(self.step(idle, terminal=True).stdout, "\r\033[K")

    def test_fails_with_the_commands_status_and_its_whole_output(self):
        for terminal in (False, True):
            result = self.step(NINJA + "\nPart.cpp:1: error: no\n", "exit 7", terminal=terminal)
            self.assertEqual(result.returncode, 7)
            self.assertIn(NINJA + "\nPart.cpp:1: error: no\nbuild: failed: bash -c", result.stdout)
            self.assertNotIn("done", result.stdout)

    def test_keeps_everything_in_its_log(self):
        self.step(NINJA + "\n  and more\\n", "echo to standard error >&2")
        self.assertEqual((self.root / "build/log").read_text(), NINJA + "\n  and more\\n" + "to standard error\n")

    def test_tells_apts_phases_in_percent(self):
        lines = self.step(APT).stdout.splitlines()
        self.assertEqual(lines[:-1], ["build: started"] + [f"build: {n} %" for n in (0, 50, 99, 0, 33, 100)])
        self.assertIn("build: 33 %  Unpacking g++ (amd64)", self.step(APT, terminal=True).stdout)
        self.assertEqual((self.root / "build/log").read_text(), "Reading package lists...\nSetting up g++\n")


if __name__ == "__main__":
    unittest.main()
