"""The component non-free comes to apt's sources only after a word about it, and goes again when it is no use."""
import unittest

from sandbox import Sandbox

# The table of versions may be longer than a pipe.
AVAILABLE = r"printf 'libfdk-aac-dev:\n  Candidate: 2.0.3-1\n%0200000d\n' 0"
UNKNOWN = r"printf 'libfdk-aac-dev:\n  Candidate: (none)\n'"


class TheComponentNonFree(Sandbox):
    def setUp(self):
        super().setUp()
        parts = self.root / "apt" / "sources.list.d"
        parts.mkdir(parents=True)
        codename = self.run_here("bash", "-c", ". /etc/os-release && echo $VERSION_CODENAME").stdout.strip()
        (parts / "debian.list").write_text(f"deb http://archive.example/debian {codename} main\n")
        self.added = parts / "aac-converter-non-free.sources"
        self.reason = self.root / "build/lc-only"
        self.fake("id", "echo 0")
        self.fake("apt-get")
        self.fake("apt-cache", AVAILABLE)
        self.command = ("scripts/add-non-free", "build/lc-only", "apt")

    def expect_added(self, result):
        self.assertEqual(result.returncode, 0)
        self.assertIn("Components: non-free", self.added.read_text())
        self.assertEqual(self.calls("apt-get"), ["apt-get update -qq"])
        self.assertFalse(self.reason.exists())

    def expect_declined(self, result):
        self.assertEqual(result.returncode, 1)
        self.assertFalse(self.added.exists())
        self.assertEqual(self.calls("apt-get"), [])
        self.assertEqual(self.reason.read_text(), "the component non-free was declined\n")
        self.assertIn("AAC LC only", result.stdout)

    def test_is_explained_and_added_without_a_terminal(self):
        self.reason.write_text("an earlier reason\n")
        result = self.run_here(*self.command)
        self.expect_added(result)
        explained = result.stdout.index("about to be added")
        self.assertLess(explained, result.stdout.index("AAC LC only"))
        self.assertLess(explained, result.stdout.index("packages: added"))

    def test_is_not_there_yet_while_the_question_stands(self):
        there = []

        def answer():
            there.append(self.added.exists())
            return "\n"
        self.expect_added(self.run_in_terminal(*self.command, at_question=answer))
        self.assertEqual(there, [False])

    def test_can_be_declined_at_the_terminal(self):
        self.expect_declined(self.run_in_terminal(*self.command, at_question=lambda: "n\n"))

    def test_is_declined_by_the_end_of_the_input(self):
        self.expect_declined(self.run_in_terminal(*self.command, at_question=lambda: "\x04"))

    def test_can_be_declined_in_advance(self):
        self.expect_declined(self.run_here(*self.command, VELK_NON_FREE="no"))
        self.environment["VELK_NON_FREE"] = "no"
        result = self.run_in_terminal(*self.command)
        self.expect_declined(result)
        self.assertNotIn("[Y/n]", result.stdout)

    def test_can_be_wanted_in_advance(self):
        self.environment["VELK_NON_FREE"] = "yes"
        result = self.run_in_terminal(*self.command)
        self.expect_added(result)
        self.assertNotIn("[Y/n]", result.stdout)

    def test_goes_again_where_the_archive_has_no_such_package(self):
        self.fake("apt-cache", UNKNOWN)
        self.fake("apt-get", f'[ ! -e {self.added} ] || echo "component known" >>{self.calls_file}')
        result = self.run_here(*self.command)
        self.assertEqual(result.returncode, 1)
        self.assertFalse(self.added.exists())
        self.assertIn("has no libfdk-aac-dev", self.reason.read_text())
        # The second update forgets what the first one learnt.
        self.assertEqual(len(self.calls("apt-get")), 2)
        self.assertEqual(len(self.calls("component")), 1)

    def test_goes_again_when_apt_fails_or_is_interrupted(self):
        self.fake("apt-get", "exit 100")
        self.assertEqual(self.run_here(*self.command).returncode, 1)
        self.assertFalse(self.added.exists())
        self.fake("apt-get", "kill -TERM $PPID")
        self.assertNotEqual(self.run_here(*self.command).returncode, 0)
        self.assertFalse(self.added.exists())

    def test_is_no_question_where_the_machine_has_no_such_archive(self):
        for file in (self.root / "apt/sources.list.d").iterdir():
            file.unlink()
        result = self.run_in_terminal(*self.command)
        self.assertEqual(result.returncode, 1)
        self.assertNotIn("[Y/n]", result.stdout)
        self.assertIn("do not name Debian's archive", self.reason.read_text())


if __name__ == "__main__":
    unittest.main()
