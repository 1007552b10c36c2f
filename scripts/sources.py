"""The project's own source files, as the checks see them."""

import hashlib
import os
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = ROOT / "build" / "lint"
# A release build that was configured; another one for those who build elsewhere.
BUILD = pathlib.Path(os.environ.get("ZEVLIN_BUILD", ROOT / "build" / "release"))
GENERATED = BUILD / "generated"

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


def fingerprint_of(paths, *more):
    """Changes whenever a file, one that it includes, or one of the further texts changes."""
    digest = hashlib.sha256()
    for text in more:
        digest.update(text.encode() + b"\0")
    known = {}
    for path in paths:
        closure(path, known)
    for part in sorted(known):
        digest.update(name(part).encode() if part.is_relative_to(ROOT) else b"")
        digest.update(part.read_bytes() + b"\0")
    return digest.hexdigest()


def fingerprint(path, *more):
    return fingerprint_of([path], *more)


def passed_before(check, key):
    return (CACHE / check / key).is_file()


def remember_pass(check, key):
    (CACHE / check).mkdir(parents=True, exist_ok=True)
    (CACHE / check / key).touch()


def report(problems):
    """Prints the problems; the exit code of the check."""
    for problem in problems:
        print(problem)
    return 1 if problems else 0
