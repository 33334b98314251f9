"""Installs the build, makes a package of it, and runs what was installed, away from the build."""

import os
import pathlib
import re
import shutil
import socket
import subprocess
import tempfile
import time
import unittest

BUILD = pathlib.Path(os.environ["BUILD_FOLDER"])
SESSION = ["DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XBRHOST_MODULE_PATH", "LD_LIBRARY_PATH"]

FILES = {
    "bin/xbrhost",
    "lib/xbrhost/libxbrgui.so", "lib/xbrhost/libxbrnet.so", "lib/xbrhost/libxbrsecurity.so",
    "lib/xbrhost/libxbrsystem.so", "lib/xbrhost/libxbrtext.so",
    "lib/xbrhost/modules/libbrindlex.so",
    "share/applications/xbrhost.desktop", "share/applications/xbrhost-open-url.desktop",
    "share/icons/hicolor/scalable/apps/xbrhost.svg",
    "share/bash-completion/completions/xbrhost", "share/zsh/vendor-completions/_xbrhost",
    "share/fish/vendor_completions.d/xbrhost.fish",
    "share/doc/xbrhost/changelog.gz", "share/doc/xbrhost/copyright",
    "share/man/man1/xbrhost.1.gz",
    "share/metainfo/com.kestrova.xbrhost.metainfo.xml",
}


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


def output_of(*command, **options):
    result = subprocess.run(command, check=False, capture_output=True, text=True, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command}: {result.returncode}: {result.stderr[-2000:]}")
    return result.stdout


class InstalledTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="brindlex-installed-"))
        self.addCleanup(shutil.rmtree, self.folder)
        for name in ("home", "run", "tmp"):
            (self.folder / name).mkdir(mode=0o700)
        self.environment = {key: value for key, value in os.environ.items() if key not in SESSION}
        self.environment.update(HOME=str(self.folder / "home"), XDG_RUNTIME_DIR=str(self.folder / "run"),
                                XDG_CONFIG_HOME=str(self.folder / "home"), TMPDIR=str(self.folder / "tmp"),
                                QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")

    def use(self, prefix):
        """Looks at an installation and runs it."""
        self.assertEqual(files_below(prefix), FILES)
        for name in FILES:
            if name.startswith(("bin/", "lib/")):
                paths = re.findall(r"R(?:UN)?PATH.*\[(.*)\]", output_of("readelf", "-d", str(prefix / name)))
                self.assertEqual([path.startswith("$ORIGIN") for path in paths], [True], (name, paths))
        program = prefix / "bin/xbrhost"
        status = subprocess.run([program, "status"], env=self.environment, capture_output=True, text=True, check=False)
        self.assertEqual(status.returncode, 9, "the module is found, and asks for settings that are missing: " +
                         status.stderr)
        window = subprocess.Popen([program, "window"], env=self.environment)
        try:
            self.assertTrue(self.answers(), "the window opens")
        finally:
            window.terminate()
        self.assertEqual(window.wait(20), 0)

    def answers(self):
        """Waits until the window shows itself when a second start asks it to."""
        end = time.monotonic() + 20
        while time.monotonic() < end:
            for path in (self.folder / "run/xbrhost").glob("*.sock"):
                with socket.socket(socket.AF_UNIX) as program:
                    program.connect(str(path))
                    program.sendall(b"xbrhost:window\n")
                    return program.recv(3) == b"ok\n"
            time.sleep(0.05)
        return False

    def test_an_installation_runs_wherever_it_is(self):
        prefix = self.folder / "installed"
        output_of(os.environ["CMAKE"], "--install", str(BUILD), "--prefix", str(prefix))
        moved = self.folder / "moved elsewhere"
        prefix.rename(moved)
        self.use(moved)

    def make_package(self):
        output_of(os.environ["CPACK"], "-G", "DEB", "-B", str(self.folder / "package"), "--config",
                  str(BUILD / "CPackConfig.cmake"), cwd=self.folder)
        package, = (self.folder / "package").glob("*.deb")
        return package

    def test_a_package_names_what_it_needs(self):
        package = self.make_package()
        depends = output_of("dpkg-deb", "--field", str(package), "Depends")
        for needed in ("libqt6widgets6", "libqt6svg6", "libcurl4", "libzip4", "libsecret-1-0", "libtag1v5",
                       "libsndfile1", "xdg-utils", "shared-mime-info"):
            self.assertRegex(depends, rf"\b{needed}\b")
        output_of("dpkg-deb", "--extract", str(package), str(self.folder / "root"))
        self.use(self.folder / "root/usr")
        if shutil.which("lintian"):
            looked = subprocess.run(["lintian", "--fail-on", "error", "--allow-root", str(package)], capture_output=True,
                                    text=True, check=False)
            errors = [line for line in looked.stdout.splitlines() if line.startswith("E:")]
            self.assertEqual(errors, [])

    @unittest.skipUnless(os.geteuid() == 0 and shutil.which("debootstrap"), "needs root and debootstrap")
    def test_a_bare_system_installs_it_and_is_rid_of_it(self):
        root = self.folder / "bare"
        output_of("debootstrap", "--variant=minbase", "bookworm", str(root))
        shutil.copy(self.make_package(), root / "xbrhost.deb")
        output_of("mount", "-t", "proc", "proc", str(root / "proc"))  # by which a program finds where it lies
        self.addCleanup(output_of, "umount", str(root / "proc"))

        def inside(command):
            return output_of("chroot", str(root), "sh", "-ec", command, env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin",
                                                                           "DEBIAN_FRONTEND": "noninteractive"})
        before = files_below(root / "usr")
        inside("apt-get -qq install -y --no-install-recommends ./xbrhost.deb")
        self.assertIn("xbrhost 0.1.0", inside("xbrhost --version"))
        self.assertIn("Drum & Bass", inside("xbrhost genres drum"))
        self.assertIn("xbrhost-open-url", inside("grep -l x-scheme-handler/brindlex /usr/share/applications/*.desktop"))
        inside("apt-get -qq purge -y xbrhost; apt-get -qq autoremove -y --purge; apt-get clean")
        left = {path for path in files_below(root / "usr") - before if "xbrhost" in path or "brindlex" in path}
        self.assertEqual(left, set())


if __name__ == "__main__":
    unittest.main()
