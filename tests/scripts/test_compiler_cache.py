"""Compilers are called through ccache where it is, and without it where it is not."""
import shutil
import unittest

from sandbox import PROJECT, Sandbox

ASK = 'include(${PROJECT}/cmake/CompilerCache.cmake)\nmessage("C++: ${CMAKE_CXX_COMPILER_LAUNCHER}")\n'


class TheCompilerCache(Sandbox):
    def launcher(self, *definitions):
        (self.root / "ask.cmake").write_text(ASK)
        (self.commands / "cmake").unlink(missing_ok=True)
        (self.commands / "cmake").symlink_to(shutil.which("cmake"))
        result = self.run_here("cmake", f"-DPROJECT={PROJECT}", *definitions, "-P", "ask.cmake", PATH=str(self.commands))
        self.assertEqual(result.returncode, 0, result.stdout)
        return result.stdout.strip()

    def test_is_used_where_it_is_and_shared_among_clones(self):
        self.fake("ccache")
        self.assertEqual(
            self.launcher(),
            f"C++: env;CCACHE_BASEDIR={self.root};CCACHE_SLOPPINESS=pch_defines,time_macros;{self.commands}/ccache")

    def test_is_not_needed(self):
        self.assertEqual(self.launcher(), "C++:")

    def test_gives_way_to_what_the_user_chose(self):
        self.fake("ccache")
        self.assertEqual(self.launcher("-DCMAKE_CXX_COMPILER_LAUNCHER=distcc"), "C++: distcc")


if __name__ == "__main__":
    unittest.main()
