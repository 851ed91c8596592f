"""What the phone's loader and Objective-C run time read of a built bundle, by llvm-objdump."""

import re
import subprocess

OBJDUMP = "/usr/lib/llvm-14/bin/llvm-objdump"


def ask(path, *options):
    command = [OBJDUMP, "--macho", *options, str(path)]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def header(path):
    """The words of the Mach header: architecture, file type, flags."""
    return set(ask(path, "--private-header").splitlines()[-1].split())


def load_commands(path):
    """Each load command, as (name, {field: value})."""
    commands = []
    for block in ask(path, "--private-headers").split("Load command ")[1:]:
        fields = {}
        for line in block.splitlines()[1:]:
            name, _, value = line.strip().partition(" ")
            fields.setdefault(name, re.sub(r" \(offset \d+\)$", "", value.strip()))
        commands.append((fields["cmd"], fields))
    return commands


def libraries(path):
    """{install name: whether it may be missing}"""
    return {
        fields["name"]: command == "LC_LOAD_WEAK_DYLIB"
        for command, fields in load_commands(path)
        if command.startswith("LC_LOAD_") and command.endswith("DYLIB")
    }


def imports(path):
    """Each symbol that is bound to a library, as (library's short name, symbol, weak)."""
    found = set()
    for table in "--bind", "--lazy-bind":
        for line in ask(path, table).splitlines():
            match = re.match(r"__DATA\S* .*? (\S+) +(\S+)( \(weak_import\))?$", line)
            if match:
                found.add((match[1], match[2], bool(match[3])))
    return found


def weakly_bound(path):
    """The symbols that the loader would look for in every library: those of no ordinal."""
    return [line for line in ask(path, "--weak-bind").splitlines() if line.startswith("__")]


def classes(path):
    """{class: (superclass, its own instance methods)}"""
    found = {}
    for block in re.split(r"\n(?=[0-9a-f]{16} 0x)", ask(path, "--objc-meta-data"))[1:]:
        own = block.partition("Meta Class")[0]
        name = re.match(r"\S+ \S+ _OBJC_CLASS_\$_(\w+)", own)
        superclass = re.search(r"superclass \S+ _OBJC_CLASS_\$_(\w+)", own)
        if not name or not superclass:
            continue
        methods = re.search(r"baseMethods(.*?)baseProtocols", own, re.DOTALL)[1]
        found[name[1]] = (superclass[1], set(re.findall(r" name 0x\w+ (\S+)", methods)))
    return found
