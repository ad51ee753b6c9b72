"""Checks exported snapshots with tools that share nothing with the program.

usage: validate_documents.py PROGRAM SCHEMA FOLDER

PROGRAM exports into FOLDER, see export_machines_program.cpp. Every document has to fit SCHEMA, hold
exactly the values that the program had (floating ones bit by bit), and be laid out as promised:
what this Python's own writer makes of it has to be the same text. And the schema has to refuse each
document that has a key too few, a key too many, a null or a value of another type.
"""

import copy
import json
import pathlib
import re
import struct
import subprocess
import sys

NOT_POSSIBLE = 77


def leaves(value, place=""):
    """Every value in a document as `place kind value`, as the program writes them."""
    if isinstance(value, dict):
        for key, member in value.items():
            yield from leaves(member, f"{place}/{key}")
    elif isinstance(value, list):
        yield f"{place} list {len(value)}"
        for index, element in enumerate(value):
            yield from leaves(element, f"{place}/{index}")
    elif isinstance(value, bool):
        yield f"{place} boolean {'true' if value else 'false'}"
    elif isinstance(value, int):
        yield f"{place} integer {value}"
    elif isinstance(value, float):
        yield f"{place} floating {struct.pack('>d', value).hex()}"
    elif isinstance(value, str):
        yield f"{place} text {value.encode().hex()}"
    else:
        yield f"{place} is {value!r}"


def differences(document, values):
    had, read = set(values.splitlines()), set(leaves(document))
    return [f"not read back: {line}" for line in sorted(had - read)[:5]] + [
        f"read instead: {line}" for line in sorted(read - had)[:5]
    ]


def laid_out(text):
    """The document as Python writes it, its floating values as they stand in the text."""
    mark = "floating value "
    document = json.loads(text, parse_float=lambda digits: mark + digits)
    written = json.dumps(
        document, indent=2, sort_keys=True, separators=(",", " : "), ensure_ascii=False
    )
    return re.sub(f'"{mark}([^"]*)"', r"\1", written)


def spoilt(document):
    """Documents that are wrong in one place each, with what is wrong."""

    def places(value, place=()):
        yield place, value
        members = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(
            value, list) else ()
        for key, member in members:
            yield from places(member, place + (key,))

    def changed(place, change):
        copied = copy.deepcopy(document)
        parent = copied
        for key in place[:-1]:
            parent = parent[key]
        change(parent, place[-1])
        return copied

    for place, value in places(document):
        if isinstance(value, dict):
            too_many = copy.deepcopy(document)
            inner = too_many
            for key in place:
                inner = inner[key]
            inner["another"] = 0
            yield f"{place} has another key", too_many
        if not place:
            continue
        yield f"{place} is null", changed(place, lambda p, k: p.__setitem__(k, None))
        other = 0 if isinstance(value, (str, bool, dict, list)) else "0"
        yield f"{place} is of another type", changed(place, lambda p, k: p.__setitem__(k, other))
        if type(value) is int:
            yield f"{place} is no integer", changed(place, lambda p, k: p.__setitem__(k, 0.5))


def shortened(document, optional):
    """Documents without one key each, with its place and whether it may be left out."""

    def objects(value, place=(), name=""):
        if isinstance(value, dict):
            yield place, name, value
            for key, member in value.items():
                yield from objects(member, place + (key,), key)
        elif isinstance(value, list):
            for index, element in enumerate(value):
                yield from objects(element, place + (index,), name)

    for place, name, value in objects(document):
        for key in value:
            copied = copy.deepcopy(document)
            parent = copied
            for step in place:
                parent = parent[step]
            del parent[key]
            yield place + (key,), (name, key) in optional, copied


def undescribed(schema):
    def properties(part):
        for key, value in part.get("properties", {}).items():
            yield key, value
        for value in part.get("definitions", {}).values():
            yield from properties(value)

    units = {"Bytes": "bytes", "PerSecond": "per second", "Hz": "hertz", "Celsius": "Celsius",
             "Seconds": "seconds", "Minutes": "minutes", "Percent": "percent",
             "Usage": "fraction", "Fraction": "fraction", "utilization": "fraction"}
    for key, value in properties(schema):
        if "$ref" in value:
            value = schema["definitions"][value["$ref"].rsplit("/", 1)[1]]
        if not value.get("description"):
            yield f"{key} has no description"
        for ending, unit in units.items():
            if key.endswith(ending) and value["type"] in ("number", "integer") and (
                    "read again" not in value["description"]) and unit not in value["description"]:
                yield f"{key} does not tell its unit, {unit}"


def check(validator, path, errors):
    text = path.read_bytes().decode("utf-8", errors="strict")
    document = json.loads(text)
    found = [f"{list(error.path)}: {error.message}" for error in validator.iter_errors(document)]
    found += differences(document, path.with_suffix(".values").read_text())
    if laid_out(text) != text:
        found.append("Python lays it out in another way")
    errors += [f"{path.name}: {each}" for each in found]
    return document


def main(program, schema_path, folder):
    try:
        import jsonschema
    except ImportError:
        print("python3-jsonschema is not installed")
        return NOT_POSSIBLE
    subprocess.run([program, folder], check=True)
    schema = json.loads(pathlib.Path(schema_path).read_text())
    jsonschema.Draft7Validator.check_schema(schema)
    validator = jsonschema.Draft7Validator(schema)
    errors = list(undescribed(schema))

    documents = {path.stem: check(validator, path, errors)
                 for path in sorted(pathlib.Path(folder).glob("*.json"))}
    lines = (pathlib.Path(folder) / "optional_keys").read_text().splitlines()
    optional = {tuple(line.split(" ")) for line in lines}
    refused = 0
    for name in ("simulated-laptop", "simulated-desktop"):
        for what, document in spoilt(documents[name]):
            refused += 1
            if validator.is_valid(document):
                errors.append(f"the schema lets {name} pass although {what}")
        for place, is_optional, document in shortened(documents[name], optional):
            refused += not is_optional
            if validator.is_valid(document) != is_optional:
                errors.append(f"the schema is wrong about {name} without {place}")
    for error in errors:
        print(error)
    print(f"{len(documents)} documents checked, {refused} spoilt ones refused")
    return 1 if errors or len(documents) < 20 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
