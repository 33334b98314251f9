#!/usr/bin/env python3
"""What the service and the network can do to an upload: each track's state afterwards, one request for each track, no
temporary files, and the next upload works."""

import json
import unittest

from stage import INGESTION, Stage

MISSING = "Release metadata did not contain a required property: 'title'"

DONE, FAILED, INCOMPLETE = 1, 2, 3

# A fault, and what becomes of a track that meets it. Shares are parts of the body.
FAULTS = [
    ({"reset_after": 0.5}, FAILED),
    ({"stall_after": 0.5, "stall_ms": 700}, DONE),
    ({"reply_stall_ms": 700}, DONE),
    ({"early": True, "status": 413}, FAILED),
    ({"status": 401}, FAILED),
    ({"status": 503, "body": "<h1>Service Unavailable</h1>", "content_type": "text/html"}, FAILED),
    ({"status": 422, "body": {"errors": MISSING}}, INCOMPLETE),
    ({"status": 422, "body": {"errors": MISSING}, "truncate": True}, FAILED),
    ({"redirect": "/elsewhere", "status": 307}, FAILED),
]


class FaultsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.stage = Stage()
        cls.addClassCleanup(cls.stage.close)
        # Long enough that no buffer on the way holds a large part of them.
        cls.songs = sorted(cls.stage.make_songs(30), key=lambda song: song.stat().st_size)[-2:]

    def publish(self, *arguments):
        """The states of the tracks at the end, and the sizes of the bodies."""
        self.stage.control("DELETE", "log")
        result = self.stage.run("publish", "--json", "--again", *arguments, *self.songs)
        events = [json.loads(line) for line in result.out.splitlines()]
        states = {event["index"]: event["state"] for event in events if event["event"] == "track"}
        self.assertEqual(result.returncode == 0, set(states.values()) == {DONE}, result.errors)
        self.assertEqual(self.stage.leftovers(), [], "temporary files")
        self.assertEqual(self.stage.log("/elsewhere"), [], "a request with credentials is never redirected")
        return [states.get(0), states.get(1)], [entry["body_bytes"] for entry in self.stage.log(INGESTION)]

    def check_all(self, arguments, expected):
        states, sizes = self.publish(*arguments)
        self.assertEqual(states, [DONE, DONE])
        for fault, outcome in FAULTS:
            with self.subTest(fault=fault):
                scaled = {key: int(value * sizes[0]) if isinstance(value, float) else value for key, value in fault.items()}
                self.stage.fault(INGESTION, **scaled)
                states, seen = self.publish(*arguments)
                self.assertEqual((states, len(seen)), (expected(outcome), len(sizes)))
        self.assertEqual(self.publish(*arguments), ([DONE, DONE], sizes))

    def test_single_that_meets_a_fault_leaves_the_next_one_alone(self):
        self.check_all([], lambda outcome: [outcome, DONE])

    def test_album_meets_a_fault_as_a_whole(self):
        # Its tracks are complete: when the service misses something all the same, they wait to be sent again.
        self.check_all(["--album"], lambda outcome: [0, 0] if outcome == INCOMPLETE else [outcome, outcome])


if __name__ == "__main__":
    unittest.main()
