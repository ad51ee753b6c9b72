"""Checks a snapshot that the program has exported of this machine.

usage: check_document.py SCHEMA DOCUMENT PID

The document has to fit SCHEMA and to say of this machine what Python says of it; PID is the process
that exported it a moment ago.
"""

import datetime
import json
import os
import pathlib
import platform
import sys


def memory_total():
    for line in pathlib.Path("/proc/meminfo").read_text().splitlines():
        name, value = line.split(":")
        if name == "MemTotal":
            return int(value.split()[0]) * 1024
    return None


def schema_errors(schema_path, document):
    try:
        import jsonschema
    except ImportError:
        print("(python3-jsonschema is not installed: the schema is not checked)")
        return
    schema = json.loads(pathlib.Path(schema_path).read_text())
    for error in jsonschema.Draft7Validator(schema).iter_errors(document):
        yield f"{list(error.path)}: {error.message}"


def errors(document, pid):
    def expect(what, is_so):
        if not is_so:
            yield what

    cpu, system = document["cpu"], document["system"]
    yield from expect("the number of processors", cpu["logicalCoreCount"] == os.cpu_count())
    yield from expect("a usage for each", len(cpu["perCoreUsage"]) == os.cpu_count())
    yield from expect("the size of memory", document["memory"]["totalBytes"] == memory_total())
    yield from expect("the host's name", system["hostName"] == platform.node())
    yield from expect("the kernel", platform.release() in system["kernelVersion"])
    yield from expect("the architecture", system["architecture"] == platform.machine())
    exporters = [each for each in document["processes"] if each["pid"] == pid]
    yield from expect("the exporting process", [e["name"] for e in exporters] == ["vantor"])
    taken = datetime.datetime.strptime(document["timestamp"], "%Y-%m-%dT%H:%M:%SZ")
    age = datetime.datetime.now(datetime.timezone.utc).replace(tzinfo=None) - taken
    yield from expect(f"a fresh timestamp and not {taken}",
                      datetime.timedelta(seconds=-2) < age < datetime.timedelta(seconds=60))


def main(schema_path, path, pid):
    document = json.loads(pathlib.Path(path).read_bytes().decode("utf-8"))
    found = [*schema_errors(schema_path, document), *errors(document, int(pid))]
    for each in found:
        print(each)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
