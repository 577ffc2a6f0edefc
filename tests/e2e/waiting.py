# SPDX-License-Identifier: MIT
"""What a walk does most of the time."""

import os
import time

# Instrumented programs are given more.
FACTOR = float(os.environ.get("LUMORA_TIME_FACTOR", "1"))
WAIT = 60 * FACTOR


class Missing(AssertionError):
    """Something that should have come did not come in time."""


def wait_for(what, condition, seconds=WAIT):
    """Answers the first true answer of the condition; raises Missing after the time."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missing(f"waited {seconds:.0f} s in vain for {what}")
        time.sleep(0.05)
