"""Lets other readers and writers of property lists judge ours, both ways.

usage: oracle.py PROGRAM [COUNT [SEED]]

PROGRAM (plist_oracle_samples) makes COUNT random property lists for each oracle, in both forms, and
describes each by a line of JSON that names every type. Here plistlib, and libplist, which is what
plistutil calls, read those files, and write files that PROGRAM has to read as the same values. What
an oracle cannot carry is left out where PROGRAM makes its samples, where no file of a form is made,
and in left_out() below; the latter two are counted. QUILLMERE_LONG=1 asks for 200,000 lists.
"""

import collections
import ctypes
import datetime
import json
import multiprocessing
import os
import plistlib
import random
import struct
import subprocess
import sys
import tempfile

EPOCH = datetime.datetime(2001, 1, 1)
BATCH = 500  # lists at a time: their files fill a folder, and a command line
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


def left_out(description, form):
    """What of it plistlib's writer does not carry: in XML UIDs and the payload of a NaN, in binary
    -0.0, which it takes for an earlier 0.0. None when it carries all."""
    kind, content = description
    if kind == "array":
        return next(filter(None, (left_out(item, form) for item in content)), None)
    if kind == "dict":
        return next(filter(None, (left_out(item, form) for _, item in content)), None)
    if kind == "uid":
        return "UID" if form == "xml" else None
    if kind != "real":
        return None
    if form == "binary":
        return "-0.0" if content == "8000000000000000" else None
    return "NaN" if int(content, 16) & (2**63 - 1) > 0x7FF0000000000000 else None


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


def samples(program, oracle, folder, seed, count, counts):
    subprocess.run([program, "make", oracle, folder, str(seed), str(count)], check=True)
    counts["lists"] += count
    for number in range(count):
        with open(f"{folder}/{number}.json", encoding="ascii") as file:
            expected = json.load(file)
        for form in FORMS:
            path = f"{folder}/{number}.{form}"
            if os.path.exists(path):
                counts["files read"] += 1
                yield path, expected
            else:
                counts[f"not made as {form}, which has no such value"] += 1


def by_plistlib(path, expected, seed, counts):
    """The bytes that plistlib writes in each form of what it reads in the file."""
    with open(path, "rb") as file:
        value = plistlib.load(file)
    compare("plistlib reads something else from", path, seed, expected, describe(value))
    for form, number in FORMS.items():
        reason = left_out(expected, form)
        if reason is None:
            yield form, plistlib.dumps(value, fmt=number, sort_keys=False)
        else:
            counts[f"not written as {form} for a {reason}"] += 1


def by_libplist(path, expected, seed, counts):
    """The same of libplist."""
    library = ctypes.CDLL("libplist-2.0.so.3")
    with open(path, "rb") as file:
        data = file.read()
    root = ctypes.c_void_p()
    library.plist_from_memory(data, ctypes.c_uint32(len(data)), ctypes.byref(root))
    if not root:
        sys.exit(f"libplist refuses {path} (seed {seed})")
    for form, write in ("xml", library.plist_to_xml), ("binary", library.plist_to_bin):
        text, size = ctypes.c_void_p(), ctypes.c_uint32()
        write(root, ctypes.byref(text), ctypes.byref(size))
        yield form, ctypes.string_at(text, size.value)
        library.plist_to_xml_free(text)
    library.plist_free(root)


ORACLES = {"plistlib": by_plistlib, "plistutil": by_libplist}


def check(job):
    """Judges some lists, and counts what was done."""
    program, oracle, seed, count = job
    counts, written = collections.Counter(), []
    with tempfile.TemporaryDirectory() as folder:
        for path, expected in samples(program, oracle, folder, seed, count, counts):
            for form, data in ORACLES[oracle](path, expected, seed, counts):
                copy = f"{path}.{form}"
                with open(copy, "wb") as file:
                    file.write(data)
                written.append((copy, expected))
        found = described(program, [path for path, _ in written])
    for (path, expected), ours in zip(written, found, strict=True):
        compare(f"we read something else from {oracle}'s", path, seed, expected, ours)
    counts["files written"] += len(written)
    return counts


def note(what, figure, promised):
    table = os.environ.get("QUILLMERE_FIGURES")
    if table:
        with open(table, "a", encoding="utf-8") as file:
            file.write(f"{what}\t{figure}\t{promised}\n")


def main():
    is_long = os.environ.get("QUILLMERE_LONG") == "1"
    program = sys.argv[1]
    count = int(sys.argv[2] if len(sys.argv) > 2 else
                os.environ.get("QUILLMERE_ROUNDS", 200_000 if is_long else 100))
    seed = int(sys.argv[3] if len(sys.argv) > 3 else os.environ.get("QUILLMERE_SEED",
                                                                  random.randrange(2**32)))
    print(f"seed {seed}")
    with multiprocessing.Pool(2 if is_long else 1) as pool:
        for oracle in ORACLES:
            jobs = [(program, oracle, seed + first, min(BATCH, count - first))
                    for first in range(0, count, BATCH)]
            counts = sum(pool.imap_unordered(check, jobs), collections.Counter())
            print(f"{oracle}:", ", ".join(f"{each:,} {what}" for what, each in counts.items()))
            note(f"random property lists against {oracle}",
                 f"{counts['lists']:,} lists, {counts['files read']:,} files of ours read, "
                 f"{counts['files written']:,} written for us: all exact",
                 "0 coercions, 100 % exact")


if __name__ == "__main__":
    main()
