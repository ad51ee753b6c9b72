#!/usr/bin/env python3
"""fuzz-coverage.py PROFILES PROGRAM...: says which share of each parser's lines the fuzzers reach.

A parser is the source beside a header that a fuzzer includes. Whatever fuzzer reaches a line, it
counts. Fails when a share is below what is asked for.
"""

import collections
import json
import pathlib
import re
import subprocess
import sys

LEAST = 95.0

# Sources that find and read files as well: measured are these functions, which are told what is in
# them. The files themselves are the tests' subject.
PARSERS_AMONG_READERS = {
    "src/app/session/session_places.cpp": ["sessionBusAddress"],
    "src/platform/linux/graphics/amdgpu_files.cpp": ["parseCount"],
    "src/platform/linux/graphics/drm_listing.cpp": ["parseCardNumber"],
    "src/platform/linux/graphics/drm_sweep.cpp": ["graphicsNode"],
    "src/platform/linux/graphics/graphics_names.cpp": [
        "inBrackets", "shortVendor", "hex", "withVendor", "anyName", "graphicsName"],
    "src/platform/linux/graphics/runtime_status.cpp": ["saysAwake"],
    "src/platform/linux/memory/zram_devices.cpp": ["parseZramUsedBytes"],
    "src/platform/linux/network/link_source.cpp": [
        "readName", "readCounters<unsigned int>", "readCounters<unsigned long>", "parseLink",
        "parseLinkCounters", "parseAddress"],
    "src/platform/linux/network/route_source.cpp": ["numberIn", "firstHop", "parseRoute"],
    "src/platform/linux/power/low_power_mode.cpp": ["isQuietTheLowestOf"],
    "src/platform/linux/processor/cpu_identity.cpp": ["findInCPUInfo", "frequencyInName"],
    "src/platform/linux/sensors/thermal_zones.cpp": ["parseTemperature", "add", "judge"],
    "src/platform/linux/system/kernel_facts.cpp": ["parseKernelRelease"],
    "src/platform/linux/system/linux_process_info.cpp": ["parseUptime"],
}

# Functions that no input reaches, and why.
OUT_OF_REACH = {
    "src/app/session/activation_server.cpp": {
        "accept": "fails only without free descriptors, and waits then"},
    "src/platform/linux/processes/linux_process_table.cpp": {
        "claimedPath": "for a link that may not be read, which root's always may",
        "completedName": "the same"},
    "src/platform/linux/storage/block_device.cpp": {
        "mayNotBeSeen": "for a folder that may not be looked into, which root's always may",
        "isNotShown": "the same"},
}


def parsers():
    sources = set()
    for fuzzer in pathlib.Path("fuzz").glob("*_fuzz.cpp"):
        for header in re.findall(r'#include "(\w+/[\w/]+)\.h"', fuzzer.read_text()):
            source = pathlib.Path("src", header + ".cpp")
            if source.exists():
                sources.add(str(source))
    return sorted(sources)


def export(profiles, programs):
    merged = profiles / "all.profdata"
    subprocess.run(["llvm-profdata-14", "merge", "-sparse", "-o", merged,
                    *sorted(profiles.glob("*.profraw"))], check=True)
    objects = [word for program in programs[1:] for word in ("-object", program)]
    exported = subprocess.run(
        ["llvm-cov-14", "export", "-skip-expansions", f"-instr-profile={merged}", programs[0],
         *objects], check=True, stdout=subprocess.PIPE).stdout
    return json.loads(exported)["data"][0]


def line_counts(segments):
    """How often each line with code was reached, as llvm-cov's own summaries have it."""
    starts = collections.defaultdict(list)
    for line, _column, count, has_count, is_entry, *_ in segments:
        starts[line].append((count, has_count, is_entry))
    counts = {}
    around = (0, False)
    for line in range(segments[0][0], segments[-1][0] + 1) if segments else ():
        here = [count for count, has_count, is_entry in starts[line] if has_count and is_entry]
        if around[1] or here:
            counts[line] = max([*here, around[0]] if around[1] else here)
        if starts[line]:
            around = starts[line][-1][:2]
    return counts


def function_names(functions):
    """Of each mangled name the bare one, without namespaces and what it is told."""
    mangled = sorted({function["name"].split(":")[-1] for function in functions})
    plain = subprocess.run(["c++filt", "--no-params"], input="\n".join(mangled), text=True,
                           check=True, stdout=subprocess.PIPE).stdout.split("\n")
    return {name: re.split(r"::", re.sub(r"\[abi:\w+\]", "", text))[-1].removesuffix(" const")
            for name, text in zip(mangled, plain)}


def lines_of(source, wanted, functions, names):
    found = {}
    for function in functions:
        name = names[function["name"].split(":")[-1]]
        if name in wanted:
            first, _, last = function["regions"][0][:3]
            found.setdefault(name, set()).update(range(first, last + 1))
    for name in wanted:
        if name not in found:
            sys.exit(f"{source} has no function {name}: is it listed in {sys.argv[0]} for nothing?")
    return set().union(*found.values())


def measured_lines(source, counts, functions, names):
    if source in PARSERS_AMONG_READERS:
        only = lines_of(source, PARSERS_AMONG_READERS[source], functions, names)
        return {line: count for line, count in counts.items() if line in only}
    left_out = lines_of(source, OUT_OF_REACH[source], functions, names) \
        if source in OUT_OF_REACH else set()
    return {line: count for line, count in counts.items() if line not in left_out}


def main():
    data = export(pathlib.Path(sys.argv[1]), sys.argv[2:])
    root = f"{pathlib.Path.cwd()}/"
    segments = {file["filename"].removeprefix(root): file["segments"] for file in data["files"]}
    functions = collections.defaultdict(list)
    for function in data["functions"]:
        functions[function["filenames"][0].removeprefix(root)].append(function)
    isEnough = True
    for source in parsers():
        if source not in segments:
            print(f"{source!s:60} without a fuzzer here")
            continue
        names = function_names(functions[source])
        lines = measured_lines(source, line_counts(segments[source]), functions[source], names)
        share = 100 * sum(count > 0 for count in lines.values()) / max(len(lines), 1)
        isLow = share < LEAST
        isEnough = isEnough and not isLow
        missed = " ".join(str(line) for line, count in sorted(lines.items()) if count == 0)
        note = ", in its parsers alone" if source in PARSERS_AMONG_READERS else ""
        note += "".join(f"\n    without {name}: {why}"
                        for name, why in OUT_OF_REACH.get(source, {}).items())
        print(f"{source:60} {share:6.1f} % of {len(lines)} lines{note}"
              + (f"\n    LESS THAN {LEAST:g} %, not reached: {missed}" if isLow else ""))
    sys.exit(0 if isEnough else 1)


main()
