#!/usr/bin/env python3
"""Whether the script for the guide's pictures makes each of them, of forms that exist."""
import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
SCRIPT = (ROOT / "tools" / "guide_pictures.sh").read_text()


def rows(mark):
    """The pairs of a list in the script."""
    return [tuple(line.split()) for line in SCRIPT.partition("<<'%s'\n" % mark)[2].partition("\n%s\n" % mark)[0].splitlines()]


class Guide(unittest.TestCase):
    def test_each_picture_is_made_by_the_script(self):
        shown = set(re.findall(r"\]\(pictures/([a-z0-9_]+)\.png\)", (ROOT / "docs" / "guide.md").read_text()))
        made = [picture for picture, _ in rows("FORMS") + rows("STEPS")]
        self.assertGreater(len(shown), 30)
        self.assertEqual(shown - set(made), set())
        self.assertEqual(len(made), len(set(made)))

    def test_each_form_exists(self):
        forms = (ROOT / "tests" / "forms" / "Forms.cpp").read_text()
        for _, form in rows("FORMS"):
            name, _, state = form.partition("_")
            self.assertIn('{"%s", "%s"' % (name, "" if name in ("frmOptions", "frmProperties") else state), forms.replace('"Font"', '""'), form)


if __name__ == "__main__":
    unittest.main()
