"""A copy of the project's scripts in a folder of its own, with commands that stand for the machine's."""
import fcntl
import os
import pathlib
import pty
import shutil
import struct
import subprocess
import tempfile
import termios
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]


class Sandbox(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "project"
        self.commands = pathlib.Path(folder.name) / "commands"
        self.commands.mkdir()
        shutil.copytree(PROJECT / "scripts", self.root / "scripts")
        shutil.copy(PROJECT / "run", self.root)
        (self.root / "build").mkdir()
        self.calls_file = pathlib.Path(folder.name) / "calls"
        self.calls_file.touch()
        self.environment = {
            "PATH": f"{self.commands}:{os.environ['PATH']}",
            "HOME": folder.name,
            "LC_ALL": "C.UTF-8",
        }

    def fake(self, name, script=""):
        """Puts a command in front of the machine's: it notes its call, then does what the script says."""
        path = self.commands / name
        path.write_text(f'#!/bin/bash\necho "{name} $*" >>{self.calls_file}\n{script}\n')
        path.chmod(0o755)

    def calls(self, name):
        return [line for line in self.calls_file.read_text().splitlines() if line.split()[0] == name]

    def run_here(self, *arguments, cwd=None, **variables):
        """Runs a command of the sandbox without a terminal; standard error is part of the output."""
        return subprocess.run(
            arguments, cwd=cwd or self.root, env={**self.environment, **variables}, text=True, check=False,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def run_in_terminal(self, *arguments, columns=80, at_question=lambda: "\n"):
        """Runs a command in a terminal; `at_question` gives what is typed after "[Y/n]"."""
        child, terminal = pty.fork()
        if child == 0:
            os.chdir(self.root)
            # Until the size is there the command waits.
            os.read(0, 1)
            os.execvpe(arguments[0], arguments, self.environment)
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        settings = termios.tcgetattr(terminal)
        settings[3] &= ~termios.ECHO
        termios.tcsetattr(terminal, termios.TCSANOW, settings)
        os.write(terminal, b"\n")
        output = b""
        asked = False
        while True:
            try:
                piece = os.read(terminal, 4096)
            except OSError:  # The other end has been closed.
                break
            if not piece:
                break
            output += piece
            if b"[Y/n]" in output and not asked:
                asked = True
                os.write(terminal, at_question().encode())
        os.close(terminal)
        status = os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])
        return subprocess.CompletedProcess(arguments, status, output.decode().replace("\r\n", "\n"))
