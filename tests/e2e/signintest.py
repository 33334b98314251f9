#!/usr/bin/env python3
"""The whole sign-in as a person does it: a real browser, a real keyring, the desktop's handler for callback links.

Runs in a D-Bus session of its own with an unlocked keyring (tests/host/security/session.sh)."""

import json
import pathlib
import shutil
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By

from stage import ACCOUNT, BIN, Stage, StageTest, wait_for

DESKTOP_FILE = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "xbrhost-open-url.desktop"

# The browser runs without its sandbox, as root needs it in a container, and without asking for updates.
BROWSER_ARGUMENTS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                     "--disable-background-networking", "--disable-component-update", "--disable-sync",
                     "--disable-dev-shm-usage"]


class Browser:
    """Chromium with a new profile, which opens callback links of the service without asking."""

    def __init__(self, stage):
        # A desktop where links of the service are the host's.
        home = pathlib.Path(stage.environment["HOME"])
        (home / "data" / "applications").mkdir(parents=True)
        shutil.copy(DESKTOP_FILE, home / "data" / "applications")
        (home / "config").mkdir()
        (home / "config" / "mimeapps.list").write_text(
            "[Default Applications]\nx-scheme-handler/brindlex=xbrhost-open-url.desktop\n")
        profile = stage.folder / "profile"
        (profile / "Default").mkdir(parents=True)
        (profile / "Default" / "Preferences").write_text(json.dumps(
            {"protocol_handler": {"allowed_origin_protocol_pairs": {stage.server: {"brindlex": True}}}}))
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for argument in [*BROWSER_ARGUMENTS, f"--user-data-dir={profile}"]:
            options.add_argument(argument)
        # xdg-open asks for the handler only where it believes in a display; nothing is drawn there.
        environment = {**stage.environment, "DISPLAY": ":no-screen", "TMPDIR": str(stage.folder),
                       "PATH": f"{BIN}:{stage.environment['PATH']}"}
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver", env=environment), options=options)

    def fill_in(self, password):
        for name, text in (("email", "mara@example.org"), ("password", password)):
            field = self.driver.find_element(By.NAME, name)
            field.clear()
            field.send_keys(text)
        self.press("sign-in")

    def press(self, decision):
        wait_for(lambda: self.driver.find_elements(By.CSS_SELECTOR, f"button[value={decision}]"), decision)[0].click()


class SignInTest(StageTest):
    def make_stage(self):
        return Stage(keyring=True)

    def setUp(self):
        super().setUp()
        self.addCleanup(self.stage.run, "sign-out")

    def open_page(self):
        """A host that waits, a browser with the page that it asks for, and how both become content."""
        browser = Browser(self.stage)
        self.addCleanup(browser.driver.quit)
        host, page = self.start_sign_in("sign-in")
        browser.driver.get(page)

        def allow():
            browser.driver.get(page)
            browser.fill_in("night-drive")
            browser.press("allow")
            told, errors = host.communicate(timeout=30)
            self.assertEqual((host.returncode, errors), (0, ""))
            self.assertIn("Mara Lindqvist", told)
        return host, browser, allow

    def test_allowed_in_the_browser_and_remembered_in_the_keyring(self):
        _, browser, allow = self.open_page()
        browser.fill_in("wrong password")
        self.assertIn("oauth/authorize", browser.driver.current_url, "the page comes again")
        allow()
        self.check("status", told="Mara Lindqvist")
        self.check("sign-in")  # the stored tokens do; nobody opens a page
        self.assertEqual(len(self.stage.log("/oauth/token")), 1)
        self.check("sign-out")
        self.check("status", code=5)

    def test_denied_by_mistake_then_allowed(self):
        host, browser, allow = self.open_page()
        browser.press("deny")
        wait_for(lambda: "without a permission" in host.stderr.readline(), "the host to tell and to wait on")
        allow()
        self.check("open-url", "brindlex://authorize?code=used", code=8)  # nobody waits for it any more
        self.assertEqual([entry["query_fields"] for entry in self.stage.log("/oauth/authorize")
                          if entry["method"] == "GET"], [["client_id", "redirect_uri", "response_type"]] * 2)

    def test_publishing_stores_the_sign_in_and_an_expired_one_is_renewed(self):
        song = self.stage.make_songs()[0]
        for _ in range(2):
            self.assertNotIn("remembered", self.publish("--again", song).told)
        self.assertEqual(len(self.stage.log("/oauth/token")), 1)
        for command in (["status"], ["publish", "--again", song]):
            self.stage.fault(ACCOUNT, status=401, body="")
            self.check(*command, code=10, told="does not accept the stored sign-in any more")
        self.stage.fault(ACCOUNT, status=401, body="")
        self.check("sign-in")
        self.assertEqual(len(self.stage.log("/oauth/token")), 2, "the browser was asked again")
        self.check("status")


if __name__ == "__main__":
    unittest.main()
