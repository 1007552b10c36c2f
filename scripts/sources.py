"""The project's own source files, as the checks see them."""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What passed, by checks and keys, for all copies of the project that this user has.
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or "~/.cache").expanduser() / "zevlin-checks"
KEPT_DAYS = 30
# Configured for the checks alone: nothing is built there.
BUILD = ROOT / "build" / "lint"
GENERATED = BUILD / "generated"

# Headers of Qt and of libraries are read once, by the compiler of clang-tidy's version. The newer
# clang-tidy passes over the headers of the system and needs a quarter of the time.
TIDY_COMPILERS = {"clang-tidy-22": "clang++-22", "clang-tidy": "clang++"}
PRECOMPILED = "cmake_pch.hxx"

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def files(*folders, endings=(".cpp", ".h")):
    """All files below the folders with one of the endings, sorted."""
    found = []
    for folder in folders:
        found += (path for path in (ROOT / folder).rglob("*") if path.suffix in endings)
    return sorted(path for path in found if path.is_file())


def name(path):
    """The path as people write it: from the root of the project."""
    return path.relative_to(ROOT).as_posix()


def includes(path):
    """The includes of a file as pairs: True for the quoted form, and what stands in it."""
    text = path.read_text(encoding="utf-8", errors="replace")
    return [(mark == '"', what) for mark, what in INCLUDE.findall(text)]


def resolve(path, what):
    """The project's file behind a quoted include; None for one of the system."""
    for folder in (ROOT / "src", GENERATED, ROOT / "tools", ROOT / "tests", ROOT, path.parent):
        candidate = folder / what
        if candidate.is_file():
            return candidate
    return None


def closure(path, known=None):
    """The file and every project file that it includes, by whatever way."""
    known = {} if known is None else known
    if path not in known:
        known[path] = True
        for quoted, what in includes(path):
            target = resolve(path, what) if quoted else None
            if target:
                closure(target, known)
    return known.keys()


def configured(preset="lint", *options):
    """The preset's build folder, with compile_commands.json and the generated headers."""
    result = subprocess.run(["cmake", "--preset", preset, *options], cwd=ROOT, capture_output=True,
                            text=True)
    if result.returncode:
        raise SystemExit(result.stdout + result.stderr)
    return ROOT / "build" / preset


def tidy_program():
    return next(name for name in TIDY_COMPILERS if shutil.which(name))


def tidy_build():
    """The build folder for clang-tidy, by a compiler that it understands."""
    compiler = TIDY_COMPILERS[tidy_program()]
    if not shutil.which(compiler):
        return configured("tidy", "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON")
    return configured("tidy", f"-DCMAKE_CXX_COMPILER={compiler}",
                      f"-DCMAKE_C_COMPILER={compiler.replace('++', '')}")


def anywhere(command):
    """A command as it would be in any other copy of the project."""
    return command.replace(str(ROOT), "")


def fingerprint(path, *more):
    """Changes whenever the file, one that it includes, or one of the further texts changes."""
    digest = hashlib.sha256()
    for text in more:
        digest.update(text.encode() + b"\0")
    for part in sorted(closure(path)):
        digest.update(name(part).encode() + b"\0")
        digest.update(part.read_bytes() + b"\0")
    return digest.hexdigest()


def passed_before(check, key):
    """Whether that has passed; what nobody asks for is forgotten in the end."""
    mark = CACHE / check / key
    if not mark.is_file():
        return False
    mark.touch()
    return True


def forget_old(check):
    for mark in (CACHE / check).glob("*"):
        if mark.stat().st_mtime < time.time() - KEPT_DAYS * 24 * 3600:
            mark.unlink(missing_ok=True)


def remember_pass(check, key):
    (CACHE / check).mkdir(parents=True, exist_ok=True)
    (CACHE / check / key).touch()


def report(problems):
    """Prints the problems; the exit code of the check."""
    for problem in problems:
        print(problem)
    return 1 if problems else 0
