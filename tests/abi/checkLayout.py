#!/usr/bin/env python3
"""checkLayout.py CXX ROOT [FLAG...]: fails if the compiler lays a plain value out in another way
than abi/boundary.txt records it."""

import pathlib
import re
import subprocess
import sys

cxx, root, *flags = sys.argv[1:]
root = pathlib.Path(root)
record = (root / "abi/boundary.txt").read_text()
headers = sorted((root / "include").glob("zel/**/*.h"))

lines = ["#include <cstddef>"]
lines += [f"#include <{header.relative_to(root / 'include')}>" for header in headers]
sizes = re.findall(r"^(\S+): (?:record|interface), (\d+) bytes", record, re.MULTILINE)
lines += [f'static_assert(sizeof({name}) == {size}, "size");' for name, size in sizes]
fields = re.findall(r"^(\S+) at (\d+): .* (\w+)$", record, re.MULTILINE)
lines += [f'static_assert(offsetof({name}, {field}) == {offset}, "place");'
          for name, offset, field in fields]

command = [cxx, *flags, "-std=c++17", "-fsyntax-only", "-fno-access-control",
           "-Wno-invalid-offsetof", f"-I{root / 'include'}", "-xc++", "-"]
result = subprocess.run(command, input="\n".join(lines) + "\n", text=True)
print(f"{len(sizes)} sizes and {len(fields)} places of fields")
sys.exit(result.returncode or (not sizes or not fields))
