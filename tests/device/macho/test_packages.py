"""Holds the packages to what the phone's package tools install, and to being reproducible."""

import filecmp
import io
import os
import pathlib
import subprocess
import tarfile
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[3]
PACKAGES = pathlib.Path(os.environ["PACKAGES"])
BUNDLE = "Library/PreferenceBundles/Quillmere.bundle"
FILES = {
    f"{BUNDLE}/Info.plist": "resources/Info.plist",
    f"{BUNDLE}/Root.plist": "resources/Root.plist",
    f"{BUNDLE}/Icon@2x.png": "resources/Icon@2x.png",
    f"{BUNDLE}/Header.png": "resources/Header.png",
    f"{BUNDLE}/Designer@3x.png": "resources/Designer@3x.png",
    "Library/PreferenceLoader/Preferences/Quillmere.plist": "packaging/Quillmere.plist",
}


def run(*command, **options):
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, **options).stdout


class Package:
    @property
    def path(self):
        return PACKAGES / f"com.orvalen.quillmere.settings_1.0.0_{self.architecture}.deb"

    def field(self, name):
        return run("dpkg-deb", "-f", self.path, name, text=True).strip()

    def archive(self, part):
        return tarfile.open(fileobj=io.BytesIO(run("dpkg-deb", part, self.path)))

    def test_names_itself_and_what_it_needs(self):
        self.assertEqual(self.field("Package"), "com.orvalen.quillmere.settings")
        self.assertEqual(self.field("Version"), "1.0.0")
        self.assertEqual(self.field("Architecture"), self.architecture)
        self.assertEqual(self.field("Section"), "Tweaks")
        for name in "Name", "Maintainer", "Description", "Installed-Size":
            self.assertTrue(self.field(name), name)
        needed = self.field("Depends").split(", ")
        self.assertEqual(needed[:3], [self.firmware, "preferenceloader", self.cephei])
        self.assertIn("com.creaturesurvive.libcscolorpicker", needed)

    def test_holds_the_bundle_and_the_loaders_entry_below_its_prefix(self):
        built = PROJECT / "build/device" / self.layout / "Quillmere"
        expected = {self.prefix + path: PROJECT / file for path, file in FILES.items()}
        expected[f"{self.prefix}{BUNDLE}/Quillmere"] = built
        with self.archive("--fsys-tarfile") as archive:
            held = {m.name.removeprefix("./"): m for m in archive if not m.isdir()}
            self.assertEqual(set(held), set(expected))
            for name, member in held.items():
                self.assertEqual(archive.extractfile(member).read(), expected[name].read_bytes())

    def test_gives_everything_to_root_with_fixed_modes_and_times(self):
        for part in "--fsys-tarfile", "--ctrl-tarfile":
            with self.archive(part) as archive:
                for member in archive:
                    runs = member.isdir() or member.name.endswith("/Quillmere")
                    self.assertEqual((member.uid, member.gid), (0, 0), member.name)
                    self.assertEqual(member.mode, 0o755 if runs else 0o644, member.name)
                    self.assertEqual(member.mtime, 1767225600, member.name)

    def test_brings_no_scripts(self):
        with self.archive("--ctrl-tarfile") as archive:
            self.assertEqual([m.name for m in archive if m.isfile()], ["./control"])

    def test_is_the_same_when_it_is_packed_again(self):
        with tempfile.TemporaryDirectory() as folder:
            built = PROJECT / "build/device" / self.layout / "Quillmere"
            again = run(PROJECT / "packaging/make-package", self.layout, built, folder, text=True)
            self.assertTrue(filecmp.cmp(again.strip(), self.path, shallow=False))


class Rootful(Package, unittest.TestCase):
    layout, prefix, architecture = "rootful", "", "iphoneos-arm"
    firmware, cephei = "firmware (>= 12.0)", "ws.hbang.common (>= 1.17.1)"


class Rootless(Package, unittest.TestCase):
    layout, prefix, architecture = "rootless", "var/jb/", "iphoneos-arm64"
    firmware, cephei = "firmware (>= 15.0)", "ws.hbang.common (>= 2.0)"


class SecondBuild(unittest.TestCase):
    def test_is_identical_in_another_folder(self):
        environment = {k: v for k, v in os.environ.items() if k != "LIBRARY_PATH"}
        with tempfile.TemporaryDirectory() as folder:
            run("cmake", "--preset", "device", "-B", folder, cwd=PROJECT, env=environment)
            run("cmake", "--build", folder, "--parallel", "2", env=environment)
            for layout in "rootful", "rootless":
                first = PROJECT / "build/device" / layout / "Quillmere"
                again = pathlib.Path(folder) / layout / "Quillmere"
                self.assertTrue(filecmp.cmp(first, again, shallow=False), layout)


if __name__ == "__main__":
    unittest.main()
