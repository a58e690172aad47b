"""The stanza for the component non-free follows the machine's own sources."""
import unittest

from sandbox import Sandbox

DEB822 = """Types: deb
URIs: http://archive.example/debian-security
Suites: trixie-security
Components: main
Signed-By: /usr/share/keyrings/security.gpg

# The archive itself.
Types: deb deb-src
URIs: http://archive.example/debian
Suites: trixie trixie-updates
Components: main
Signed-By: /usr/share/keyrings/archive.gpg
"""
STANZA = "Types: deb\nURIs: http://archive.example/debian\nSuites: trixie\nComponents: non-free\n"


class TheStanza(Sandbox):
    def setUp(self):
        super().setUp()
        self.parts = self.root / "apt" / "sources.list.d"
        self.parts.mkdir(parents=True)

    def stanza(self):
        return self.run_here("scripts/non-free-stanza", "apt", "trixie")

    def test_has_the_place_the_suite_and_the_key_of_the_main_archive(self):
        (self.parts / "debian.sources").write_text(DEB822)
        self.assertEqual(self.stanza().stdout, STANZA + "Signed-By: /usr/share/keyrings/archive.gpg\n")

    def test_leaves_out_stanzas_that_are_switched_off(self):
        off = DEB822.replace("Types: deb deb-src", "Enabled: no\nTypes: deb deb-src")
        (self.parts / "debian.sources").write_text(off)
        self.assertEqual(self.stanza().returncode, 1)
        self.assertEqual(self.stanza().stdout, "")

    def test_leaves_out_sources_of_sources(self):
        (self.parts / "debian.sources").write_text(DEB822.replace("Types: deb deb-src", "Types: deb-src"))
        self.assertEqual(self.stanza().returncode, 1)

    def test_is_made_from_one_line_sources_too(self):
        (self.root / "apt/sources.list").write_text(
            "# deb http://old.example/debian trixie main\n"
            "deb-src http://sources.example/debian trixie main\n"
            "deb http://archive.example/debian-security trixie-security main\n"
            "deb http://archive.example/debian trixie main\n")
        self.assertEqual(self.stanza().stdout, STANZA)

    def test_takes_the_key_of_a_one_line_source(self):
        (self.parts / "debian.list").write_text(
            "deb [ arch=amd64 signed-by=/usr/share/keyrings/archive.gpg ] http://archive.example/debian trixie main\n")
        self.assertEqual(self.stanza().stdout, STANZA + "Signed-By: /usr/share/keyrings/archive.gpg\n")

    def test_is_not_to_be_had_from_the_sources_of_another_release_or_from_none(self):
        self.assertEqual(self.stanza().returncode, 1)
        (self.parts / "debian.sources").write_text(DEB822.replace("trixie", "bookworm"))
        (self.root / "apt/sources.list").write_text("deb http://archive.example/debian bookworm main\n")
        self.assertEqual(self.stanza().returncode, 1)
        self.assertEqual(self.stanza().stdout, "")


if __name__ == "__main__":
    unittest.main()
