"""Holds the built bundle to what the phone's loader, run time and Settings app ask of it."""

import os
import pathlib
import plistlib
import re
import subprocess
import unittest

import macho
import signature
import stubs

PROJECT = pathlib.Path(__file__).resolve().parents[3]

PAGES = ("QMRoot", "QMColorVC", "QMClockVC", "QMQuickActionsVC")
SUPERCLASSES = {**dict.fromkeys(PAGES, "HBRootListController"), "QMLottiesList": "UIViewController"}

LIBRARIES = {
    "/usr/lib/libSystem.B.dylib",
    "/usr/lib/libc++.1.dylib",
    "/usr/lib/libobjc.A.dylib",
    "/usr/lib/libMobileGestalt.dylib",
    "/System/Library/Frameworks/Foundation.framework/Foundation",
    "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation",
    "/System/Library/Frameworks/UIKit.framework/UIKit",
    "/System/Library/Frameworks/MessageUI.framework/MessageUI",
    "/System/Library/PrivateFrameworks/Preferences.framework/Preferences",
}

# Which library a symbol is to come from, by its name: told apart from the stubs, so that a symbol in
# the wrong stub is found.
ORIGINS = (
    (r"_OBJC_(META)?CLASS_\$_UI|_UI", "UIKit"),
    (r"_OBJC_CLASS_\$_MF", "MessageUI"),
    (r"_OBJC_(CLASS|IVAR)_\$_PS", "Preferences"),
    (r"_OBJC_CLASS_\$_HB(Preferences|RespringController)$", "Cephei"),
    (r"_OBJC_(META)?CLASS_\$_HB(RootListController|AppearanceSettings)$", "CepheiPrefs"),
    (r"_OBJC_(CLASS|EHTYPE)_\$_NS(Mutable)?(Array|Dictionary|Data|URL|Exception)$", "CoreFoundation"),
    (r"_CF|_kCF|___CF", "CoreFoundation"),
    (r"_OBJC_METACLASS_\$_NSObject$|_objc_|_sel_|_object_|_class_|___?objc_", "libobjc"),
    (r"_OBJC_CLASS_\$_NS|_NS", "Foundation"),
    (r"__Z|___cxa_|___dynamic_cast$|___gxx_personality_v0$", "libc++"),
    (r"_MG", "libMobileGestalt"),
    (r"", "libSystem"),
)

# What the system calls by names of its own, besides the product's tables.
CALLBACKS = {
    "QMLottiesList": """
        numberOfSectionsInTableView: tableView:titleForHeaderInSection:
        tableView:numberOfRowsInSection: tableView:cellForRowAtIndexPath:
        tableView:canEditRowAtIndexPath: tableView:canMoveRowAtIndexPath:
        tableView:commitEditingStyle:forRowAtIndexPath:
        tableView:moveRowAtIndexPath:toIndexPath: tableView:editingStyleForRowAtIndexPath:
        tableView:shouldIndentWhileEditingRowAtIndexPath:
        tableView:targetIndexPathForMoveFromRowAtIndexPath:toProposedIndexPath:""".split(),
    "QMRoot": ["mailComposeController:didFinishWithResult:error:", "scrollViewDidScroll:"],
}


def short(install_name):
    return re.sub(r"(\.[\dA-Z]+)?\.dylib$", "", install_name.rpartition("/")[2])


class Bundle:
    @property
    def path(self):
        return PROJECT / "build/device" / self.layout / "Quillmere"

    def test_is_a_bundle_of_arm64_with_two_level_names(self):
        self.assertLessEqual({"ARM64", "BUNDLE", "TWOLEVEL", "NOUNDEFS"}, macho.header(self.path))

    def test_loads_from_ios_12_on(self):
        build = dict(macho.load_commands(self.path))["LC_BUILD_VERSION"]
        self.assertEqual((build["platform"], build["minos"]), ("ios", "12.0"))

    def test_has_the_five_classes_with_their_superclasses(self):
        found = {name: superclass for name, (superclass, _) in macho.classes(self.path).items()}
        self.assertEqual(found, SUPERCLASSES)

    def test_answers_each_selector_that_the_product_lists(self):
        listed = subprocess.run(
            [os.environ["SELECTORS"]], check=True, capture_output=True, text=True
        ).stdout.splitlines()
        self.assertEqual({line.split()[0] for line in listed}, set(SUPERCLASSES))
        answered = {f"{n} {s}" for n, (_, own) in macho.classes(self.path).items() for s in own}
        self.assertEqual(set(listed) - answered, set())

    def test_answers_what_the_system_asks(self):
        classes = macho.classes(self.path)
        for name, (_, methods) in classes.items():
            needed = {"init", "viewDidLoad", *CALLBACKS.get(name, ())}
            needed |= {"specifiers"} if name in PAGES else set()
            self.assertEqual(needed - methods, set(), name)

    def test_has_the_classes_and_actions_that_the_resources_name(self):
        info = plistlib.loads((PROJECT / "resources/Info.plist").read_bytes())
        rows = plistlib.loads((PROJECT / "resources/Root.plist").read_bytes())["items"]
        entry = plistlib.loads((PROJECT / "packaging/Quillmere.plist").read_bytes())["entry"]
        self.assertEqual(info["CFBundleExecutable"], "Quillmere")
        classes = macho.classes(self.path)
        details = {row["detail"] for row in rows if "detail" in row}
        self.assertLessEqual({info["NSPrincipalClass"], entry["detail"], *details}, set(classes))
        actions = {row["action"] for row in rows if "action" in row}
        self.assertLessEqual(actions, classes[info["NSPrincipalClass"]][1])

    def test_can_do_without_cephei_and_nothing_else(self):
        folder = self.cephei
        cephei = {f"{folder}/{name}.framework/{name}" for name in ("Cephei", "CepheiPrefs")}
        expected = {**dict.fromkeys(LIBRARIES, False), **dict.fromkeys(cephei, True)}
        self.assertEqual(macho.libraries(self.path), expected)
        for library, symbol, weak in macho.imports(self.path):
            self.assertEqual(weak, library in ("Cephei", "CepheiPrefs"), symbol)

    def test_takes_each_symbol_from_the_library_that_has_it(self):
        self.assertEqual(macho.weakly_bound(self.path), [])
        for library, symbol, _ in macho.imports(self.path):
            origin = next(name for pattern, name in ORIGINS if re.match(pattern, symbol))
            self.assertEqual(library, origin, symbol)

    def test_takes_what_the_stubs_declare_and_no_more(self):
        taken = {(library, symbol) for library, symbol, _ in macho.imports(self.path)}
        declared = {
            (short(name), symbol)
            for name, symbols in stubs.declared(PROJECT / "device/stubs", self.layout).items()
            for symbol in symbols
        }
        self.assertEqual(taken - declared, set())
        # A declared class is a class and a metaclass, of which one may be all that is used.
        unused = {symbol.replace("METACLASS", "CLASS") for _, symbol in declared - taken}
        self.assertEqual(unused - {s.replace("METACLASS", "CLASS") for _, s in taken}, set())

    def test_looks_for_cephei_and_files_where_the_layout_has_them(self):
        folders = [f["path"] for name, f in macho.load_commands(self.path) if name == "LC_RPATH"]
        rootless = self.layout == "rootless"
        self.assertEqual(folders, ["/var/jb/Library/Frameworks"] if rootless else [])
        self.assertEqual(b"/var/jb\0" in self.path.read_bytes(), rootless)

    def test_is_signed(self):
        data = self.path.read_bytes()
        signature.check(data)
        changed = bytearray(data)
        changed[0x4000] ^= 1
        with self.assertRaises(signature.Invalid):
            signature.check(changed)

    def test_is_small(self):
        size = self.path.stat().st_size
        print(f"{self.layout}: {size} bytes")
        self.assertLess(size, 1 << 20)


class Rootful(Bundle, unittest.TestCase):
    layout = "rootful"
    cephei = "/Library/Frameworks"


class Rootless(Bundle, unittest.TestCase):
    layout = "rootless"
    cephei = "@rpath"


if __name__ == "__main__":
    unittest.main()
