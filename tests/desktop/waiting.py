"""Waiting for something to become true: looking again and again, with a deadline
that only a failure reaches."""

import time

PATIENCE = 20
PAUSE = 0.02
REST = 0.1


class NeverHappened(AssertionError):
    pass


def wait_for(what, condition, patience=PATIENCE):
    """The first true value of `condition`."""
    deadline = time.monotonic() + patience
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise NeverHappened(f"{what}: not within {patience} s (last: {value!r})")
        time.sleep(PAUSE)


def wait_for_rest(what, look):
    """What is seen when two looks, a while apart, see the same."""
    def rests():
        seen = look()
        time.sleep(REST)
        return seen if seen == look() else None

    return wait_for(f"{what} to rest", rests)


def happens(condition, within):
    try:
        return wait_for("it", condition, within)
    except NeverHappened:
        return None
