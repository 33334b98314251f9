#!/usr/bin/env python3
"""The whole sign-in as a person does it: a real browser, a real keyring, the desktop's handler for callback links.

Runs in a D-Bus session of its own with an unlocked keyring (tests/host/security/with-keyring.sh)."""

import json
import os
import pathlib
import shutil
import subprocess
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By

from stage import BIN, Stage, sign_in_page, wait_for

DESKTOP_FILE = pathlib.Path(os.environ["BRINDLEX_DESKTOP_FILE"])

# The browser runs without its sandbox, as root needs it in a container, and without asking for updates.
BROWSER_ARGUMENTS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                     "--disable-background-networking", "--disable-component-update", "--disable-sync",
                     "--disable-dev-shm-usage"]


class Browser:
    """Chromium with a new profile, which opens callback links of the service without asking."""

    def __init__(self, stage):
        profile = stage.folder / "profile"
        (profile / "Default").mkdir(parents=True)
        (profile / "Default" / "Preferences").write_text(json.dumps(
            {"protocol_handler": {"allowed_origin_protocol_pairs": {stage.server: {"brindlex": True}}}}))
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for argument in [*BROWSER_ARGUMENTS, f"--user-data-dir={profile}"]:
            options.add_argument(argument)
        self.driver = webdriver.Chrome(
            service=Service("/usr/bin/chromedriver", env=desktop_environment(stage)), options=options)

    def fill_in(self, password):
        for name, text in (("email", "mara@example.org"), ("password", password)):
            field = self.driver.find_element(By.NAME, name)
            field.clear()
            field.send_keys(text)
        self.press("sign-in")

    def press(self, decision):
        buttons = wait_for(lambda: self.driver.find_elements(By.CSS_SELECTOR, f"button[value={decision}]"),
                           f"the button '{decision}'")
        buttons[0].click()


def desktop_environment(stage):
    """A desktop where links of the service are the host's, as packaging/xbrhost-open-url.desktop says."""
    data = pathlib.Path(stage.environment["XDG_DATA_HOME"]) / "applications"
    data.mkdir(parents=True)
    shutil.copy(DESKTOP_FILE, data)
    config = pathlib.Path(stage.environment["XDG_CONFIG_HOME"])
    config.mkdir(parents=True)
    (config / "mimeapps.list").write_text("[Default Applications]\nx-scheme-handler/brindlex=xbrhost-open-url.desktop\n")
    # xdg-open asks for the handler only where it believes in a display; nothing is drawn there.
    return {**stage.environment, "DISPLAY": ":no-screen", "PATH": f"{BIN}:{stage.environment['PATH']}"}


class SignInTest(unittest.TestCase):
    def setUp(self):
        self.stage = Stage(keyring=True)
        self.addCleanup(self.stage.close)
        self.addCleanup(self.stage.run, "sign-out")
        self.browser = Browser(self.stage)
        self.addCleanup(self.browser.driver.quit)

    def start_sign_in(self):
        """Starts the host and opens the page that it asks for."""
        host = self.stage.start("sign-in", BROWSER="/bin/true")
        self.addCleanup(host.kill)
        page = sign_in_page(host)
        self.browser.driver.get(page)
        return host, page

    def assert_signed_in(self, host):
        told, errors = host.communicate(timeout=30)
        self.assertEqual(host.returncode, 0, errors)
        self.assertIn("Mara Lindqvist", told)
        self.assertEqual(errors, "")

    def test_allowed_in_the_browser_and_remembered_in_the_keyring(self):
        host, _ = self.start_sign_in()
        self.browser.fill_in("wrong password")
        self.assertIn("oauth/authorize", self.browser.driver.current_url, "the page comes again")
        self.browser.fill_in("night-drive")
        self.browser.press("allow")
        self.assert_signed_in(host)

        status = self.stage.run("status")
        self.assertEqual(status.returncode, 0, status.stderr_text)
        self.assertIn("Mara Lindqvist", status.stdout_text)
        again = self.stage.run("sign-in")  # the stored tokens do; nobody opens a page
        self.assertEqual(again.returncode, 0, again.stderr_text)
        self.assertEqual(len(self.stage.log("/oauth/token")), 1)

        self.assertEqual(self.stage.run("sign-out").returncode, 0)
        self.assertEqual(self.stage.run("status").returncode, 5)

    def test_denied_by_mistake_then_allowed(self):
        host, page = self.start_sign_in()
        self.browser.press("deny")
        wait_for(lambda: "without a permission" in host.stderr.readline(), "the host to tell and to wait on")
        self.browser.driver.get(page)
        self.browser.fill_in("night-drive")
        self.browser.press("allow")
        self.assert_signed_in(host)
        # The link is still in the browser's history; nobody waits for it any more.
        used = subprocess.run([BIN / "xbrhost", "open-url", "brindlex://authorize?code=used"], timeout=20, check=False,
                              env=self.stage.environment, capture_output=True)
        self.assertEqual(used.returncode, 8)
        self.assertEqual([entry["query_fields"] for entry in self.stage.log("/oauth/authorize")
                          if entry["method"] == "GET"], [["client_id", "redirect_uri", "response_type"]] * 2)

    def test_publishing_stores_the_sign_in_and_uses_it_again(self):
        songs = self.stage.make_songs()
        for _ in range(2):
            result = self.stage.run("publish", "--again", songs[0])
            self.assertEqual(result.returncode, 0, result.stderr_text)
            self.assertNotIn("remembered", result.stdout_text + result.stderr_text)
        self.assertEqual(len(self.stage.log("/oauth/token")), 1)

    def test_expired_sign_in_is_told_and_renewed(self):
        self.assertEqual(self.stage.run("sign-in").returncode, 0)
        expired = {"path": "/api/frontstage/account", "status": 401, "body": ""}
        for command in (["status"], ["publish", "--again", self.stage.make_songs()[0]]):
            self.stage.control("POST", "fault", expired)
            result = self.stage.run(*command)
            self.assertEqual(result.returncode, 10, result.stderr_text)
            self.assertIn("does not accept the stored sign-in any more", result.stderr_text)
        self.stage.control("POST", "fault", expired)
        renewed = self.stage.run("sign-in")
        self.assertEqual(renewed.returncode, 0, renewed.stderr_text)
        self.assertEqual(len(self.stage.log("/oauth/token")), 2, "the browser was asked again")
        self.assertEqual(self.stage.run("status").returncode, 0)


if __name__ == "__main__":
    unittest.main()
