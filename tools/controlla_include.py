#!/usr/bin/env python3
"""Checks the arrows between the folders of src/ by their #include lines.

A folder includes only what stands below it; Qt and the operating system come in only where they may.
Usage: controlla_include.py [ROOT]
"""
import pathlib
import re
import sys

LOW = ["base", "records", "link", "data", "setup", "graph"]
TOP = ["sweep", "live", "report", "waterfall", "positioner"]

ALLOWED = {folder: set(LOW[: i + 1]) for i, folder in enumerate(LOW)}
ALLOWED |= {folder: set(LOW) | {folder} for folder in TOP}
ALLOWED["console"] = set(LOW) | set(TOP) | {"console"}
ALLOWED["simulator"] = {"base", "records", "simulator"}
ALLOWED["platform"] = {"base", "platform"}
ALLOWED["verbs"] = set(LOW) | set(TOP) | {"console", "simulator", "verbs"}
ALLOWED["ui"] = set(LOW) | set(TOP) | {"console", "simulator", "platform", "ui"}
ALLOWED["app"] = ALLOWED["ui"] | {"verbs", "app"}

# The seams that a folder fills although it stands beside or below their owner.
SEAMS = {
    "simulator": {"link/FlussoByte.h", "positioner/BusGpib.h"},
    "platform": {
        "link/FlussoByte.h",
        "link/DriverUsb.h",
        "link/PorteCom.h",
        "graph/Superficie.h",
        "graph/FabbricaQuadri.h",
        "positioner/BusGpib.h",
    },
}

OUTSIDE = {"platform", "ui", "app"}  # may see Qt or the operating system
STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv
    chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable
    coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar
    cwctype deque exception execution filesystem format forward_list fstream functional future
    initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map
    memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio
    regex scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept
    stop_token streambuf string string_view syncstream system_error thread tuple type_traits
    typeindex typeinfo unordered_map unordered_set utility valarray variant vector version""".split()
)

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^">]+)[">]')


def faults(source: pathlib.Path, src: pathlib.Path):
    folder = source.relative_to(src).parts[0]
    if folder not in ALLOWED:
        yield 0, f"the folder {folder} has no place in the order of floors"
        return
    for number, line in enumerate(source.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        kind, name = match.groups()
        if kind == "<":
            if name not in STANDARD and folder not in OUTSIDE:
                yield number, f"<{name}> is not standard C++"
            continue
        target = name.split("/")[0]
        if target not in ALLOWED[folder] and name not in SEAMS.get(folder, ()):
            yield number, f"{folder} must not include {name}"
        if not (src / name).exists() and not name.endswith(".moc"):
            yield number, f"{name} does not exist below src/"


def main() -> int:
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    src = root / "src"
    sources = sorted([*src.rglob("*.h"), *src.rglob("*.cpp")])
    if not sources:
        print(f"{src}: no sources found")
        return 1
    wrong = 0
    for source in sources:
        for number, text in faults(source, src):
            print(f"{source.relative_to(root)}:{number}: {text}")
            wrong += 1
    print(f"include arrows: {len(sources)} files, {wrong} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
