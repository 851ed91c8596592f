"""Lets other readers and writers of property lists judge ours, both ways.

usage: oracle.py PROGRAM [COUNT [SEED]]

PROGRAM (plist_oracle_samples) makes random property lists in both forms and describes each by a
line of JSON that names every type. Here plistlib, and plistutil where it is installed, read those
files, and write files that PROGRAM has to read as the same values. What an oracle cannot carry is
left out where PROGRAM makes its samples, and in carries() below.
"""

import datetime
import json
import os
import plistlib
import random
import shutil
import struct
import subprocess
import sys
import tempfile

EPOCH = datetime.datetime(2001, 1, 1)
FORMS = {"xml": plistlib.FMT_XML, "binary": plistlib.FMT_BINARY}


def bits(number):
    return struct.pack(">d", number).hex()


def units(text):
    return text.encode("utf-16-be", "surrogatepass").hex()


def describe(value):
    """What PROGRAM says of the same value. A bool is an int to Python, so it comes first."""
    if isinstance(value, bool):
        return ["bool", value]
    if isinstance(value, int):
        return ["int", value]
    if isinstance(value, float):
        return ["real", bits(value)]
    if isinstance(value, datetime.datetime):
        return ["date", bits((value - EPOCH).total_seconds())]
    if isinstance(value, plistlib.UID):
        return ["uid", value.data]
    if isinstance(value, str):
        return ["string", units(value)]
    if isinstance(value, bytes):
        return ["data", value.hex()]
    if isinstance(value, list):
        return ["array", [describe(item) for item in value]]
    return ["dict", [[units(key), describe(item)] for key, item in value.items()]]


def carries(description, form):
    """Whether plistlib's writer carries it: in XML no UIDs and no payload of a NaN, in binary no
    -0.0, which it takes for an earlier 0.0."""
    kind, content = description
    if kind == "array":
        return all(carries(item, form) for item in content)
    if kind == "dict":
        return all(carries(item, form) for _, item in content)
    if kind == "real" and form == "binary":
        return content != "8000000000000000"
    is_nan = kind == "real" and int(content, 16) & (2**63 - 1) > 0x7FF0000000000000
    return form == "binary" or (kind != "uid" and not is_nan)


def difference(expected, found, where="the root"):
    """The first place where two descriptions part."""
    if isinstance(expected, list) and isinstance(found, list) and len(expected) == len(found):
        for place, pair in enumerate(zip(expected, found)):
            if pair[0] != pair[1]:
                return difference(*pair, f"{where}[{place}]")
    return f"{where}\nexpected {expected!r:.300}\n   found {found!r:.300}"


def compare(what, path, seed, expected, found):
    if expected != found:
        sys.exit(f"{what} {path} (seed {seed}) at {difference(expected, found)}")


def described(program, paths):
    output = subprocess.run([program, "describe", *paths], check=True, capture_output=True).stdout
    return [json.loads(line) for line in output.splitlines()]


def samples(program, oracle, folder, seed, count):
    subprocess.run([program, "make", oracle, folder, str(seed), str(count)], check=True)
    for number in range(count):
        with open(f"{folder}/{number}.json", encoding="ascii") as file:
            expected = json.load(file)
        for form in FORMS:
            path = f"{folder}/{number}.{form}"
            if os.path.exists(path):
                yield form, path, expected


def check_plistlib(program, folder, seed, count):
    written = []
    for form, path, expected in samples(program, "plistlib", folder, seed, count):
        with open(path, "rb") as file:
            value = plistlib.load(file)
        compare("plistlib reads something else from", path, seed, expected, describe(value))
        for other in FORMS:
            if carries(expected, other):
                copy = f"{path}.{other}"
                with open(copy, "wb") as file:
                    plistlib.dump(value, file, fmt=FORMS[other], sort_keys=False)
                written.append((copy, expected))
    return check_ours(program, "plistlib", written, seed)


def check_plistutil(program, folder, seed, count):
    written = []
    for form, path, expected in samples(program, "plistutil", folder, seed, count):
        for other in ("xml", "bin"):
            copy = f"{path}.{other}"
            subprocess.run(["plistutil", "-i", path, "-o", copy, "-f", other], check=True)
            written.append((copy, expected))
    return check_ours(program, "plistutil", written, seed)


def check_ours(program, oracle, written, seed):
    for (path, expected), found in zip(written, described(program, [path for path, _ in written])):
        compare(f"we read something else from {oracle}'s", path, seed, expected, found)
    return len(written)


def main():
    program = sys.argv[1]
    count = int(sys.argv[2] if len(sys.argv) > 2 else os.environ.get("QUILLMERE_ROUNDS", 100))
    seed = int(sys.argv[3] if len(sys.argv) > 3 else os.environ.get("QUILLMERE_SEED",
                                                                  random.randrange(2**32)))
    print(f"seed {seed}")
    with tempfile.TemporaryDirectory() as folder:
        print("plistlib:", check_plistlib(program, folder, seed, count), "files agreed upon")
    if shutil.which("plistutil") is None:
        print("plistutil: not installed (libplist-utils), not asked")
        return
    with tempfile.TemporaryDirectory() as folder:
        print("plistutil:", check_plistutil(program, folder, seed, count), "files agreed upon")


main()
