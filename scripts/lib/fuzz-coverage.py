#!/usr/bin/env python3
"""fuzz-coverage.py PROFILES PROGRAM...: says which share of each parser's lines the fuzzers reach.

A parser is the source beside a header that a fuzzer includes. Whatever fuzzer reaches a line, it
counts. Fails when a share is below what is asked for.
"""

import json
import pathlib
import re
import subprocess
import sys

LEAST = 95.0


def parsers():
    sources = set()
    for fuzzer in pathlib.Path("fuzz").glob("*_fuzz.cpp"):
        for header in re.findall(r'#include "(\w+/[\w/]+)\.h"', fuzzer.read_text()):
            source = pathlib.Path("src", header + ".cpp")
            if source.exists():
                sources.add(source)
    return sorted(sources)


def summaries(profiles, programs):
    merged = profiles / "all.profdata"
    subprocess.run(["llvm-profdata-14", "merge", "-sparse", "-o", merged,
                    *sorted(profiles.glob("*.profraw"))], check=True)
    objects = [word for program in programs[1:] for word in ("-object", program)]
    exported = subprocess.run(
        ["llvm-cov-14", "export", "-summary-only", f"-instr-profile={merged}", programs[0],
         *objects], check=True, stdout=subprocess.PIPE).stdout
    root = pathlib.Path.cwd()
    return {pathlib.Path(file["filename"]).relative_to(root): file["summary"]["lines"]
            for file in json.loads(exported)["data"][0]["files"]
            if pathlib.Path(file["filename"]).is_relative_to(root)}


def main():
    lines = summaries(pathlib.Path(sys.argv[1]), sys.argv[2:])
    isEnough = True
    for source in parsers():
        if source not in lines:
            print(f"{source!s:50} without a fuzzer here")
            continue
        share = lines[source]["percent"]
        isLow = share < LEAST
        isEnough = isEnough and not isLow
        print(f"{source!s:50} {share:6.1f} % of {lines[source]['count']} lines"
              + (f"   LESS THAN {LEAST:g} %" if isLow else ""))
    sys.exit(0 if isEnough else 1)


main()
