#!/usr/bin/env python3
"""Python's plistlib as a contestant (bench/support/Contestant.h tells the protocol): property lists
are loaded from and dumped to files, which are written aside, synced, renamed, and their folder
synced, as ours. The interpreter's start is outside the time taken."""

import os
import plistlib
import sys
import time

CHANGED = 'key00002'


def setting(number):
    if number % 4 == 2:
        return number
    return number % 8 == 3 if number % 4 == 3 else f'value {number:05}'


def load(path):
    with open(path, 'rb') as file:
        return plistlib.load(file)


def sync(path):
    descriptor = os.open(path, os.O_RDONLY)
    os.fsync(descriptor)
    os.close(descriptor)


def save(settings, path, form, durable):
    aside = path + '.new'
    with open(aside, 'wb') as file:
        plistlib.dump(settings, file, fmt=form)
    if durable:
        sync(aside)
    os.replace(aside, path)
    if durable:
        sync(os.path.dirname(path))


def change(path, form, durable):
    settings = load(path)
    settings[CHANGED] += 1
    save(settings, path, form, durable)


def read(path, form, durable):
    assert load(path)[CHANGED] == 2


CASES = {
    'change': (change, plistlib.FMT_BINARY, True),
    'change-unsynced': (change, plistlib.FMT_BINARY, False),
    'read-binary': (read, plistlib.FMT_BINARY, False),
    'read-xml': (read, plistlib.FMT_XML, False),
}


def main(case, size, folder):
    operation, form, durable = CASES[case]
    path = os.path.join(os.path.abspath(folder), 'settings.plist')
    save({f'key{i:05}': setting(i) for i in range(int(size))}, path, form, durable)
    print('ready', flush=True)
    for line in sys.stdin:
        start = time.monotonic_ns()
        for _ in range(int(line)):
            operation(path, form, durable)
        print(time.monotonic_ns() - start, flush=True)


if len(sys.argv) != 4 or sys.argv[1] not in CASES:
    sys.exit(f'usage: {sys.argv[0]} {"|".join(CASES)} SIZE FOLDER')
main(*sys.argv[1:])
