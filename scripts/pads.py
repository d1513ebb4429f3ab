"""Pads that nobody holds: they are plugged in, moved and pulled from here. Used by the pictures of the documents and by the
end-to-end tests."""

import os


class Pads:
    """The pads of a game that has `library`, the build's `test_pads`, before its own. `environment` is what the game needs for
    it; so many of the pads as `plugged` says are there from the start."""

    def __init__(self, library, folder, plugged):
        pipe = folder / "pads"
        os.mkfifo(pipe)
        self._pipe = os.open(pipe, os.O_RDWR)  # for reading too, so that neither side waits for the other
        self.environment = {"LD_PRELOAD": str(library), "VANDREL_TEST_PADS": str(pipe),
                            "VANDREL_TEST_PADS_PLUGGED": str(plugged)}

    def close(self):
        os.close(self._pipe)

    def act(self, *words):
        """One act, as tests/end_to_end/test_pads.cpp lists them."""
        os.write(self._pipe, (" ".join(str(word) for word in words) + "\n").encode())
