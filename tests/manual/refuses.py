#!/usr/bin/env python3
"""refuses.py ROOT: the manual is refused for what must not get into it.

All faults are put into one copy of the pages and headers, and each must be told.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

PARTS = ("docs", "examples", "include", "scripts", "CMakeLists.txt", "README.md")

# The file, a text in it and what takes its place, and what scripts/docs must print.
CASES = [
    ("include/zel/IZelFog.h", "    /// 0.5 in a new fog.\n", "",
     "Member getDensity() const =0 (function) of class OvZel::IZelFog is not documented"),
    ("include/zel/IZelFog.h", "    virtual double getStart",
     "    virtual int getNew() const = 0;\n    virtual double getStart",
     "Member getStartDistance() const =0 (function) of class OvZel::IZelFog is not documented"),
    ("include/zel/IZelPlace.h", "    virtual void setDaylight",
     "    virtual int getNew() const = 0;\n    virtual void setDaylight",
     "Member getNew() const =0 (function) of class OvZel::IZelPlace is not documented"),
    ("include/zel/CZelVertex.h", " ///< across the texture", " // across the texture",
     "Member u (variable) of struct OvZel::CZelVertex is not documented"),
    ("include/zel/CZelBox.h", "/// A box", "// A box", "Compound OvZel::CZelBox is not documented"),
    ("include/zel/ITCENode.h", " ///< asLeafNode; none", "", "eLeafNode is not documented"),
    ("docs/guide/probes.md", "if (preview) {", "if (!preview) {",
     ("docs/guide/probes.md:", ": no example has this code")),
    ("README.md", "{0.0, 1.0, 2.0}", "{0.0, 1.0}", ("README.md:", ": no example has this code")),
    ("docs/README.md", "(scene.md)", "(scenes.md)", ": nothing is at scenes.md"),
]


def copy_with_faults(root, copy):
    for part in PARTS:
        source = root / part
        if source.is_dir():
            shutil.copytree(source, copy / part)
        else:
            shutil.copy(source, copy / part)
    for name, old, new, _ in CASES:
        path = copy / name
        text = path.read_text(encoding="utf-8")
        if old not in text:
            sys.exit(f"{name} has no \"{old}\" any more: mend this test")
        path.write_text(text.replace(old, new, 1), encoding="utf-8")


def is_told(texts, lines):
    """Whether one line has all of the texts."""
    texts = (texts,) if isinstance(texts, str) else texts
    return any(all(text in line for text in texts) for line in lines)


def main():
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / "copy"
        copy.mkdir()
        copy_with_faults(pathlib.Path(sys.argv[1]), copy)
        done = subprocess.run([sys.executable, str(copy / "scripts/docs"), folder + "/manual"],
                              text=True, stderr=subprocess.PIPE, check=False)
    if not shutil.which("doxygen"):
        return 77
    missing = [text for *_, text in CASES if not is_told(text, done.stderr.splitlines())]
    if missing or done.returncode != 1:
        print(f"exit code {done.returncode}, not told:", *missing, "what was:", done.stderr, sep="\n")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
