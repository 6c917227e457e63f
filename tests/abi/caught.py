#!/usr/bin/env python3
"""caught.py ABI_RECORD INCLUDE CXX: the check of the boundary finds what breaks compiled clients.

Each case changes one public header in a copy of all of them, and then asks the check.
"""

import concurrent.futures
import pathlib
import shutil
import subprocess
import sys
import tempfile

ADDED, BROKEN, SKIPPED = 1, 2, 77

# What is done, to which header, the texts there and what takes their place, the outcome, and a line
# that the check must print.
CASES = [
    ("an operation is inserted", "IZelFog.h",
     {"    virtual double getDensity": "    virtual int getNew() const = 0;\n    virtual double getDensity"},
     BROKEN, "breaks compiled clients: OvZel::IZelFog slot 6: double getDensity() const\n"
     "    now int getNew() const"),
    ("an operation is removed", "IZelFog.h",
     {"    virtual double getEndDistance() const = 0;\n": ""},
     BROKEN, "breaks compiled clients: OvZel::IZelFog slot 13: void setAltitude(double)\n    now gone"),
    ("two fields of one type change places", "CZelVertex.h",
     {"float u =": "float other =", "float v =": "float u =", "float other =": "float v ="},
     BROKEN, "breaks compiled clients: OvZel::CZelVertex at 8: float u\n    now float v"),
    ("a label gets another number", "IZelMgr.h", {"eOlder = 1,": "eOlder = 17,"},
     BROKEN, "breaks compiled clients: OvZel::IZelMgr::eReadability label eOlder: 1\n    now 17"),
    ("an operation is added behind the last", "IZelFog.h",
     {"\nprotected:": "    virtual int getNew() const = 0;\n\nprotected:"},
     ADDED, "not in the record: OvZel::IZelFog slot 14: int getNew() const"),
    ("clients get an operation to implement", "IZelFeedback.h",
     {"\nprotected:": "    virtual int getNew() const = 0;\n\nprotected:"},
     BROKEN, "breaks compiled clients, which lack it: OvZel::IZelFeedback slot 2: int getNew() const"),
]


def check(case, record, include, cxx):
    name, header, edits, outcome, line = case
    with tempfile.TemporaryDirectory() as work:
        copy = pathlib.Path(work) / "include"
        shutil.copytree(include, copy)
        path = copy / "zel" / header
        text = path.read_text()
        for old, new in edits.items():
            if text.count(old) != 1:
                return f"{name}: {header} has {text.count(old)} times {old!r}"
            text = text.replace(old, new)
        path.write_text(text)
        done = subprocess.run([record, "--check", "--cxx", cxx, "--include", copy],
                              capture_output=True, text=True)
    if done.returncode == SKIPPED:
        return SKIPPED
    if done.returncode != outcome or line not in done.stdout:
        return f"{name}: ended with {done.returncode}, said\n{done.stdout[:2000]}{done.stderr}"
    # The description for abidiff has no labels that only the static operations use.
    by_abidiff = "clang" not in cxx and " label " not in line
    if by_abidiff and "abidiff ends with" not in done.stdout:
        return f"{name}: abidiff saw no difference"
    return None


def main():
    record, include, cxx = sys.argv[1:]
    with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
        results = list(pool.map(lambda case: check(case, record, include, cxx), CASES))
    if SKIPPED in results:
        print("SKIPPED: abigail-tools not installed")
        return SKIPPED
    faults = [result for result in results if result]
    print(*faults, sep="\n")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
