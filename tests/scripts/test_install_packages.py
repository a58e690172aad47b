"""Which packages are installed, on which release, and what stays when something goes wrong."""
import re
import unittest

from sandbox import PROJECT, Sandbox

SCRIPT = (PROJECT / "scripts/install-packages").read_text()


def wanted(group):
    """The names of a group of packages; the names of one package in several releases are a tuple."""
    words = re.search(rf"^for_{group}=\((.*?)^\)", SCRIPT, re.M | re.S).group(1).split()
    return [tuple(word.strip("'").split("|")) for word in words]


class ThePackages(Sandbox):
    def setUp(self):
        super().setUp()
        self.fake("id", "echo 0")
        self.fake("dpkg")
        self.fake("apt-get")
        self.have(*(names[-1] for names in wanted("run")))
        self.offer(*(name for names in wanted("run") + wanted("test") for name in names))

    def have(self, *packages):
        """The machine has these packages."""
        self.installed = list(packages)
        self.fake("dpkg-query", "\n".join(f"echo installed {package}" for package in packages))

    def lose(self, package):
        self.have(*(each for each in self.installed if each != package))

    def offer(self, *packages):
        """The archive has these packages, and no other."""
        self.fake("apt-cache", f"""
echo "$2:"
case " {' '.join(packages)} " in
  *" $2 "*) echo '  Candidate: 1' ;;
  *) echo '  Candidate: (none)' ;;
esac""")

    def install(self, group="run", **variables):
        return self.run_here("scripts/install-packages", group, **variables)

    def installs(self):
        return [call.split("APT::Status-Fd=3 ")[1].split() for call in self.calls("apt-get") if " install " in call]

    def test_stay_as_they_are_where_none_is_missing(self):
        result = self.install()
        self.assertEqual((result.returncode, result.stdout), (0, ""))
        self.assertEqual(self.calls("apt-get"), [])

    def test_are_installed_where_they_are_missing(self):
        self.lose("libsoxr-dev")
        result = self.install()
        self.assertEqual(result.returncode, 0)
        self.assertIn("packages: to be installed: libsoxr-dev\n", result.stdout)
        self.assertEqual(self.installs(), [["libsoxr-dev"]])

    def test_have_scripts_that_can_write_to_standard_error(self):
        self.lose("libsoxr-dev")
        # As dpkg does: what a package's script is given has no descriptor of the status any more.
        self.fake("apt-get", """
for word in "$@"; do
  case "$word" in
    APT::Status-Fd=*)
      status=${word#*=}
      eval "echo pmstatus:libsoxr-dev:50:Unpacking >&$status" || exit 1
      eval "sh -c 'echo the package has a word to say >&2 && echo and goes on' $status>&-" || exit 1 ;;
  esac
done""")
        result = self.install()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("packages: 50 %", result.stdout)

    def test_that_were_removed_but_for_their_settings_are_missing(self):
        self.fake("dpkg-query", "\n".join(
            f"echo {'config-files' if package == 'g++' else 'installed'} {package}" for package in self.installed))
        self.install()
        self.assertEqual(self.installs(), [["g++"]])

    def test_have_the_names_of_the_release(self):
        older = [names[0] for names in wanted("test")]
        newer = [names[-1] for names in wanted("test")]
        self.assertNotEqual(older, newer)
        for offered, chosen in ((older, older), (newer, newer), (older + newer, older), ([], older)):
            self.offer(*offered)
            self.assertEqual(self.install("test").returncode, 0)
            self.assertEqual(self.installs()[-1], chosen)

    def test_count_under_any_of_their_names(self):
        names = next(names for names in wanted("test") if len(names) == 2)
        for name in names:
            self.have(name, *(each[-1] for each in wanted("run") + wanted("test") if each != names))
            self.assertEqual(self.install("test").stdout, "")

    def test_that_cannot_be_installed_stop_everything_with_apts_own_words(self):
        self.lose("g++")
        self.fake("apt-get", '[ "$1" != install ] || { echo "E: no space left"; exit 100; }')
        result = self.install()
        self.assertEqual(result.returncode, 100)
        self.assertIn("E: no space left", result.stdout)

    def test_are_named_to_whom_may_not_install_them(self):
        self.lose("g++")
        self.fake("id", "echo 1000")
        # A path without sudo.
        for command in ("bash", "dirname", "mkdir", "sed", "env"):
            if not (self.commands / command).exists():
                (self.commands / command).symlink_to(f"/usr/bin/{command}")
        result = self.install(PATH=str(self.commands))
        self.assertEqual(result.returncode, 1)
        self.assertIn("missing: g++;", result.stdout)
        self.assertEqual(self.calls("apt-get"), [])

    def test_are_asked_for_only_once_where_the_encoder_was_declined(self):
        self.lose("libfdk-aac-dev")
        self.offer()
        (self.root / "scripts/add-non-free").write_text(
            '#!/bin/bash\necho asked\necho "it was declined" >"$1"\nexit 1\n')
        self.assertIn("asked\n", self.install().stdout)
        self.assertEqual(self.installs(), [])
        calls = len(self.calls("apt-get"))
        second = self.install()
        self.assertEqual(second.returncode, 0)
        self.assertEqual(second.stdout.count("\n"), 1)
        self.assertIn("AAC LC only: it was declined", second.stdout)
        self.assertEqual(len(self.calls("apt-get")), calls)
        self.assertIn("asked\n", self.install(VELK_NON_FREE="yes").stdout)

    def test_come_without_a_question_where_the_archive_has_the_encoder(self):
        self.lose("libfdk-aac-dev")
        (self.root / "scripts/add-non-free").write_text("#!/bin/bash\necho asked\nexit 1\n")
        self.assertNotIn("asked", self.install().stdout)
        self.assertEqual(self.installs(), [["libfdk-aac-dev"]])


if __name__ == "__main__":
    unittest.main()
