# SPDX-License-Identifier: MIT
"""Functions that wait for conditions."""

import os
import time

# Instrumented programs get more time.
FACTOR = float(os.environ.get("LUMORA_TIME_FACTOR", "1"))
WAIT = 60 * FACTOR


class Missing(AssertionError):
    """Something expected did not come in time."""


def wait_for(what, condition, seconds=WAIT):
    """Returns the condition's first true result; raises Missing after the time."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missing(f"waited {seconds:.0f} s in vain for {what}")
        time.sleep(0.05)
