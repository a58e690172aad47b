"""Who may know whom: the rooms below src/ and what the files of each may include."""
import pathlib
import re
from dataclasses import dataclass, field

VIEW = ("view/main", "view/factory", "view/encoder_menu", "view/audition", "view/listening_test", "view/keys")
CONVERTER = ("converter/unit", "converter/stream", "converter/meters", "converter/transcoder", "converter/codec")
# What those see of the converter who are not part of it.
UNIT = ("converter/unit", "converter/codec")
HOST = ("host/messages", "host/files", "host/unit", "host/playback", "host/analysis")

# Folder -> what its files may include besides the standard library and the headers of its own target:
#   a folder     the headers that are public there
#   folder/*     all of its headers
#   a header     just this one
#   a library    one of LIBRARIES
MAY_INCLUDE = {
    "audio_unit": ("frameworks", "system"),
    "contract": ("audio_unit",),
    "realtime": ("system",),
    "ui": ("system",),
    **{room: ("ui", "audio_unit", "contract") for room in VIEW},
    "skins/qt": ("qt", "ui", "audio_unit", *VIEW),
    "skins/qt/bundle": ("skins/qt", "qt", "system", "ui", "audio_unit", *VIEW),
    "skins/appkit": ("cocoa", "ui", "audio_unit", *VIEW),
    "skins/appkit/bundle": ("skins/appkit", "cocoa", "ui", "audio_unit", *VIEW),
    "converter/codec": ("libav", "fdk", "contract", "audio_unit"),
    "converter/transcoder": ("converter/codec/*", "audio_unit", "soxr"),
    "converter/meters": ("contract",),
    "converter/stream": ("converter/transcoder/*", "converter/codec/*", "converter/meters/*", "realtime", "system"),
    "converter/unit": (*(f"{room}/*" for room in CONVERTER), "realtime", "contract", "audio_unit"),
    "host/messages": ("system",),
    "host/files": ("host/messages", "ui", "sndfile", "soxr", "system"),
    "host/unit": ("host/files", "host/messages", *UNIT, "ui", "contract", "audio_unit", "json", "system"),
    "host/playback": ("host/unit", "host/files", "host/messages", *UNIT, "contract", "audio_unit",
                      "realtime", "rtaudio", "sndfile", "soxr", "system"),
    "host/analysis": ("host/unit", "host/files", "host/messages", *UNIT, "converter/meters",
                      "contract", "audio_unit", "system"),
    "programs/audition/waveform": ("host/analysis", "host/playback", "host/files", "host/messages", "qt"),
    "programs/audition/window": ("programs/audition/waveform", *HOST, *UNIT, "ui", "contract", "audio_unit", "qt"),
    "programs/audition": ("programs/audition/window", "programs/audition/waveform", *HOST, *UNIT, "ui", "contract",
                          "audio_unit", "qt", "cli", "system"),
    "programs/measure": (*HOST, *UNIT, "ui", "contract", "audio_unit",
                         "cairo", "cli", "json", "libav", "libavformat", "system"),
    "programs/demo_mix": (*HOST, *UNIT, "ui", "contract", "audio_unit", "sndfile", "system"),
}
# What only these files of a room may include.
MAY_INCLUDE_ALONE = {
    "ui/Localization.cpp": ("icu",),
    "ui/StringsTable.cpp": ("icu",),
    "ui/TextFile.cpp": ("icu",),
    "host/messages/ArgumentParsing.cpp": ("cli",),
}

# Library -> how its headers are included, and what its symbols look like to a reader of `nm --demangle`.
LIBRARIES = {
    "qt": (r"Q[A-Z]\w+|Qt\w+/\w+|QtGlobal", r"\bQ[A-Z]\w+::|\bq(t_|Version|Warning|Debug)|vtable for Q[A-Z]"),
    "cocoa": (r"(AppKit|Foundation|Cocoa|GNUstepGUI|objc|AudioUnit)/\w+\.h", r"\bobjc_msg|_OBJC_|__objc_|\bNS[A-Z]\w+"),
    "frameworks": (r"(AudioToolbox|CoreFoundation)/\w+\.h", None),
    "icu": (r"unicode/\w+\.h", r"\bicu_\d+::|\bu(cnv|loc|num|dat|_\w+)_\w+_\d+$"),
    "libav": (r"libav(codec|util)/\w+\.h", r"\bav(codec)?_[a-z]"),
    "libavformat": (r"libavformat/\w+\.h", r"\bavformat_|\bavio_"),
    "fdk": (r"fdk-aac/\w+\.h", r"\baac(Enc|Decoder_)"),
    "soxr": (r"soxr\.h", r"\bsoxr_"),
    "sndfile": (r"sndfile\.hh?", r"\bsf_\w+"),
    "rtaudio": (r"rtaudio/RtAudio\.h|RtAudio\.h", r"\bRtAudio"),
    "json": (r"nlohmann/\w+\.hpp", None),
    "cli": (r"CLI/\w+\.hpp", None),
    "cairo": (r"cairo(/cairo)?\.h", r"\bcairo_"),
    "system": (r"(dlfcn|fcntl|locale|poll|pthread|sched|semaphore|signal|spawn|termios|time|unistd|wchar)\.h"
               r"|(sys|linux)/\w+\.h", None),
    # Only tests and benchmarks have these.
    "test": (r"g(test|mock)/[\w-]+\.h|benchmark/benchmark\.h|ebur128\.h|malloc\.h|ucontext\.h", r"\btesting::"),
}
STANDARD = frozenset("""
    algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts
    condition_variable coroutine deque exception execution filesystem format forward_list fstream functional
    future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex
    scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept stop_token
    streambuf string string_view strstream syncstream system_error thread tuple type_traits typeindex
    typeinfo unordered_map unordered_set utility valarray variant vector version
    cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef
    cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype
    assert.h ctype.h errno.h float.h inttypes.h limits.h math.h stdarg.h stdbool.h stddef.h stdint.h
    stdio.h stdlib.h string.h immintrin.h""".split())

SUFFIXES = (".h", ".cpp", ".mm", ".m", ".c")
DIRECTIVE = re.compile(r"^[ \t]*#[ \t]*(?:include|import)\b[ \t]*(.*?)[ \t]*(?://.*)?$", re.M)


@dataclass
class Target:
    """A room as CMake builds it."""
    folders: list = field(default_factory=list)
    public: set = field(default_factory=set)
    files: list = field(default_factory=list)


def read_targets(path):
    """What CMake wrote about the targets that it builds, by name."""
    targets = {}
    for line in pathlib.Path(path).read_text("utf-8").splitlines():
        kind, name, value = line.split(" ", 2)
        target = targets.setdefault(name, Target())
        if kind == "folder":
            target.folders.append(value)
        elif kind == "public":
            target.public.add(value)
        elif kind == "file":
            target.files.append(value)
    return targets


def sources_below(directory):
    return sorted(file for file in directory.rglob("*") if file.suffix in SUFFIXES)


def includes_of(file):
    """The file's includes without quotes or brackets; what is neither stays as it is written."""
    for written in DIRECTIVE.findall(file.read_text("utf-8")):
        inner = re.fullmatch(r'"([^"]+)"|<([^>]+)>', written)
        yield (inner[1] or inner[2]) if inner else written


def library_of(include):
    return next((name for name, (headers, _) in LIBRARIES.items() if re.fullmatch(headers, include)), None)


def folder_of(include):
    return include.rpartition("/")[0]


class Walls:
    """Judges includes by MAY_INCLUDE and by which headers the targets make public."""

    def __init__(self, root, targets):
        self.source = pathlib.Path(root, "src")
        # A room that this build leaves out says nothing: all of its headers count as public.
        self.public = {folder: target.public for target in targets.values() for folder in target.folders}
        self.target = {folder: name for name, target in targets.items() for folder in target.folders}
        for folder in VIEW:
            self.target.setdefault(folder, "view")

    def same_target(self, one, other):
        return one == other or (one in self.target and self.target[one] == self.target.get(other))

    def may_include(self, file, include):
        """Whether this file (as "folder/File.cpp") may include this."""
        folder = folder_of(file)
        allowed = (*MAY_INCLUDE[folder], *MAY_INCLUDE_ALONE.get(file, ()))
        library = library_of(include)
        if include in STANDARD or library:
            return include in STANDARD or library in allowed
        other = folder_of(include)
        if other not in MAY_INCLUDE or not (self.source / include).is_file():
            return False
        if self.same_target(folder, other) or include in allowed or f"{other}/*" in allowed:
            return True
        return other in allowed and include in self.public.get(other, {include})

    def faults_in(self, folder):
        for file in sorted((self.source / folder).iterdir()):
            if file.suffix not in SUFFIXES:
                continue
            name = file.relative_to(self.source).as_posix()
            for include in includes_of(file):
                if not self.may_include(name, include):
                    yield f"src/{name} includes {include}"

    def faults(self):
        folders = {file.parent.relative_to(self.source).as_posix() for file in sources_below(self.source)}
        for folder in sorted(folders | MAY_INCLUDE.keys()):
            if folder not in MAY_INCLUDE:
                yield f"src/{folder} is no room of tests/house/rooms.py"
            elif folder not in folders:
                yield f"src/{folder} has no files, but is a room of tests/house/rooms.py"
            else:
                yield from self.faults_in(folder)


def faults_outside(root):
    """Tests, benchmarks and examples may include all of ours, and what is known."""
    files = [file for place in ("src", "tests", "bench", "docs/examples")
             for file in sources_below(pathlib.Path(root, place))]
    ours = {f"{file.parent.name}/{file.name}" for file in files} | {file.name for file in files}
    for file in files:
        name = file.relative_to(root)
        if name.parts[0] == "src":
            continue
        for include in includes_of(file):
            known = include in STANDARD or library_of(include)
            if not known and "/".join(include.split("/")[-2:]) not in ours:
                yield f"{name} includes {include}"
