"""./run on a machine whose build is over in a moment."""
import os
import unittest

from sandbox import Sandbox

CMAKE = """
case "$1" in
  --build)
    [ ! -e fail-build ] || { echo 'Part.cpp:1: error: no'; exit 1; }
    mkdir -p build/release/bin
    cp "$PROGRAM" build/release/bin/aac-audition
    cp "$DEMO" build/release/bin/demo-mix
    echo 'ninja: no work to do.' ;;
  *)
    [ ! -e fail-configure ] || { echo 'CMake Error: no'; exit 1; }
    mkdir -p build/release
    touch build/release/build.ninja
    echo '-- Converter: it encodes' ;;
esac
"""


class Run(Sandbox):
    def setUp(self):
        super().setUp()
        (self.root / "scripts/install-packages").write_text(
            "#!/bin/bash\nexport -p | grep VELK_NON_FREE || true\n")
        self.fake("cmake", CMAKE)
        self.fake("program", 'echo "in $PWD"')
        self.fake("demo", 'echo sound >"$1"')
        self.environment.update(PROGRAM=str(self.commands / "program"), DEMO=str(self.commands / "demo"))
        self.demo = str(self.root / "build/demo-mix.wav")

    def run_project(self, *arguments, **options):
        return self.run_here(str(self.root / "run"), *arguments, **options)

    def configurations(self):
        return [call for call in self.calls("cmake") if "--preset" in call]

    def test_configures_once_and_then_only_builds(self):
        first = self.run_project("--headless").stdout
        self.assertIn("configure: Converter: it encodes", first)
        second = self.run_project("--headless").stdout
        self.assertEqual(second, f"in {self.root}\n")
        self.assertEqual(len(self.configurations()), 1)
        self.assertEqual(len(self.calls("cmake")), 3)

    def test_configures_afresh_after_a_configuration_that_failed(self):
        (self.root / "fail-configure").touch()
        result = self.run_project()
        self.assertEqual(result.returncode, 1)
        self.assertIn("CMake Error: no", result.stdout)
        self.assertIn("configure: failed", result.stdout)
        self.assertEqual(self.calls("program"), [])
        (self.root / "fail-configure").unlink()
        self.assertEqual(self.run_project().returncode, 0)
        self.assertTrue(all("--fresh" in call for call in self.configurations()))

    def test_configures_again_when_packages_have_come_since(self):
        self.run_project()
        os.utime(self.root / "build/release/configured-by-run", (0, 0))
        self.run_project()
        self.assertEqual(len(self.configurations()), 2)
        self.assertNotIn("--fresh", self.configurations()[1])

    def test_plays_nothing_after_a_build_that_failed(self):
        (self.root / "fail-build").touch()
        result = self.run_project()
        self.assertEqual(result.returncode, 1)
        self.assertIn("Part.cpp:1: error: no\nbuild: failed", result.stdout)
        self.assertEqual(self.calls("program"), [])

    def test_plays_a_file_from_where_it_was_called(self):
        music = self.root.parent / "music"
        music.mkdir()
        result = self.run_project("mix.wav", "--headless", "--json", cwd=music)
        self.assertIn(f"in {music}\n", result.stdout)
        self.assertEqual(self.calls("program"), ["program mix.wav --headless --json"])

    def test_makes_a_demo_mix_where_there_is_no_file(self):
        self.run_project("--headless")
        self.run_project("--headless")
        self.assertEqual(self.calls("program"), [f"program {self.demo} --headless"] * 2)
        self.assertEqual(len(self.calls("demo")), 1)

    def test_makes_the_demo_mix_again_if_it_was_interrupted(self):
        self.fake("demo", 'echo so >"$1"; exit 1')
        self.assertNotEqual(self.run_project().returncode, 0)
        self.fake("demo", 'echo sound >"$1"')
        self.run_project()
        with open(self.demo, encoding="utf-8") as file:
            self.assertEqual(file.read(), "sound\n")

    def test_runs_off_screen_without_a_display_and_says_so(self):
        self.assertIn("there is no display", self.run_project("mix.wav").stdout)
        self.assertEqual(self.calls("program"), ["program --headless --screenshot view.png mix.wav"])
        self.assertNotIn("there is no display", self.run_project("mix.wav", DISPLAY=":0").stdout)
        self.assertEqual(self.calls("program")[-1], "program mix.wav")

    def test_keeps_its_own_options_to_itself(self):
        self.assertIn('VELK_NON_FREE="no"', self.run_project("--without-non-free", "mix.wav").stdout)
        self.assertEqual(self.calls("program"), ["program --headless --screenshot view.png mix.wav"])

    def test_explains_itself_without_doing_anything(self):
        for option in ("-h", "--help"):
            result = self.run_project(option)
            self.assertEqual(result.returncode, 0)
            self.assertIn("usage: ./run", result.stdout)
            self.assertIn("--without-non-free", result.stdout)
        self.assertEqual(self.calls("cmake"), [])


if __name__ == "__main__":
    unittest.main()
