"""The declared imports: device/stubs, one text stub a library."""

import re


def names(text, kind):
    lists = re.findall(rf"^ *{kind}: \[(.*?)\]", text, re.DOTALL | re.MULTILINE)
    return [name.strip("'") for name in re.findall(r"[^\s,]+", ",".join(lists))]


def read(path):
    """Install name and symbols of one stub."""
    text = path.read_text()
    install_name = re.search(r"^install-name: '(.*)'$", text, re.MULTILINE)[1]
    symbols = set(names(text, "symbols"))
    for name in names(text, "objc-classes"):
        symbols |= {f"_OBJC_CLASS_$_{name}", f"_OBJC_METACLASS_$_{name}"}
    symbols |= {f"_OBJC_EHTYPE_$_{name}" for name in names(text, "objc-eh-types")}
    symbols |= {f"_OBJC_IVAR_$_{name}" for name in names(text, "objc-ivars")}
    return install_name, symbols


def declared(folder, layout):
    """{install name: symbols} of the libraries of that layout."""
    return dict(map(read, [*folder.glob("*.tbd"), *folder.glob(f"{layout}/*.tbd")]))
