#!/usr/bin/python3
"""Holds what gloamtide-still --json prints to docs/almanac.schema.json. $1: gloamtide-still. Exit 77: something is missing."""

import json
import math
import pathlib
import struct
import subprocess
import sys
import tempfile

try:
    import jsonschema
except ImportError:
    print("needs python3-jsonschema")
    sys.exit(77)

SCHEMA = json.loads((pathlib.Path(__file__).parents[1] / "docs" / "almanac.schema.json").read_text())
jsonschema.Draft202012Validator.check_schema(SCHEMA)


def objects(*arguments):
    """What it prints: an object, or one a line."""
    text = subprocess.run([sys.argv[1], "--json", *arguments], check=True, capture_output=True, text=True).stdout
    return [json.loads(line) for line in text.splitlines()] if "--until" in arguments else [json.loads(text)]


def by_hand(folder, number):
    """A configuration with numbers that no program writes: offset, zone, latitude and longitude."""
    wide, narrow = struct.pack("<d", number), struct.pack("<f", math.copysign(min(abs(number), 1e38), number))
    records = [b""] * 21
    records[0], records[1], records[14], records[15], records[16] = wide, narrow, b"\4\0Home", wide, narrow
    path = pathlib.Path(folder, "by-hand.gtf")
    path.write_bytes(b"".join(record.ljust(48, b"\0") for record in records))
    return str(path)


with tempfile.TemporaryDirectory() as folder:
    hands = [objects("--config", by_hand(folder, number)) for number in (math.nan, math.inf, -1e300, -7.5)]
    printed = sum(hands, [])
    printed += objects("--at", "2026-03-20T12:00:00Z", "--until", "2027-03-20T12:00:00Z", "--step", "5d")
    printed += objects("--at", "1582-10-01T12:00:00Z", "--until", "1582-10-20T12:00:00Z", "--step", "1d")
    polar = objects("--place", "78.2,15.6", "--at", "2026-06-21T12:00:00Z") + objects("--place", "-69.9,179.99")
    printed += polar
for each in printed:
    jsonschema.validate(each, SCHEMA, jsonschema.Draft202012Validator)
assert polar[0]["sunrise"] == {"local_time": None, "change_seconds": None}, polar[0]["sunrise"]
assert [each["instant"][:10] for each in printed if each["instant"] and each["instant"].startswith("1582-10-1")][:1] == ["1582-10-15"]
print(len(printed), "objects are as the schema says")
