"""Checks the signature inside a Mach-O file as the system's kernel does: each page by its hash.

Formats: Apple's xnu, EXTERNAL_HEADERS/mach-o/loader.h and osfmk/kern/cs_blobs.h.
"""

import hashlib
import struct

LC_CODE_SIGNATURE = 0x1D
EMBEDDED_SIGNATURE = 0xFADE0CC0
CODE_DIRECTORY = 0xFADE0C02
ADHOC = 0x2
SHA256 = 2


class Invalid(Exception):
    pass


def require(fact, what):
    if not fact:
        raise Invalid(what)


def place(data):
    """Offset and size of the signature."""
    (count,) = struct.unpack_from("<I", data, 16)
    offset = 32
    for _ in range(count):
        command, size = struct.unpack_from("<II", data, offset)
        if command == LC_CODE_SIGNATURE:
            return struct.unpack_from("<II", data, offset + 8)
        offset += size
    raise Invalid("there is no signature")


def check(data):
    """Raises Invalid unless `data` is a thin Mach-O file whose signature covers all before it."""
    start, size = place(data)
    require(start + size == len(data), "the signature is not the end of the file")
    magic, length, count = struct.unpack_from(">III", data, start)
    require(magic == EMBEDDED_SIGNATURE and length <= size and count >= 1, "no signature's header")
    directory = start + struct.unpack_from(">I", data, start + 16)[0]
    magic, _, _, flags, hashes, _, _, pages, limit = struct.unpack_from(">9I", data, directory)
    hash_size, hash_type, _, page_bits = struct.unpack_from(">4B", data, directory + 36)
    require(magic == CODE_DIRECTORY, "no code directory")
    require(flags & ADHOC, "not signed ad hoc")
    require((hash_size, hash_type) == (32, SHA256), "not SHA-256")
    require(limit == start, "not all code is covered")
    require(pages == -(-limit // (1 << page_bits)), "not every page has a hash")
    for page in range(pages):
        begin = page << page_bits
        digest = hashlib.sha256(data[begin : min(limit, begin + (1 << page_bits))]).digest()
        expected = directory + hashes + 32 * page
        require(digest == data[expected : expected + 32], f"page {page} is not what was signed")
