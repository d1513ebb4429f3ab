"""The pictures of the documents and the command that takes them: none is taken that no document keeps, and none is kept that
cannot be taken anew."""

import runpy
import sys
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
SCRIPTS = REPOSITORY / "scripts"
OF_THE_ART = {"contact-sheet", "prizes", "walkers"}  # targets of the build write these and the powerups


class TakePictures(unittest.TestCase):
    def test_every_picture_is_taken_and_every_tour_is_known(self):
        sys.path.insert(0, str(SCRIPTS))
        command = runpy.run_path(str(SCRIPTS / "take-pictures"))
        docs = REPOSITORY / "docs"
        kept = {str(path.relative_to(docs).with_suffix("")) for path in docs.rglob("*.png")
                if path.parent.name != "powerups"}
        self.assertEqual(set(command["PICTURES"]), kept - OF_THE_ART)
        for name, sheet in command["PICTURES"].items():
            for tour, shot in sheet.shots:
                known = (shot in command["picture_rounds"].MOMENTS if tour == "round"
                         else hasattr(command["picture_tours"], tour))
                self.assertTrue(known, f"{name}: {tour} {shot}")


if __name__ == "__main__":
    unittest.main()
