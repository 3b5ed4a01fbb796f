import unittest

import releases
from tree import Tree

CHANGES = """vantrel (0.2.0) unstable; urgency=medium

  * Second.

 -- The developers <developers@vantrel.example>  Sun, 22 Nov 2026 00:30:00 +0100

vantrel (0.1.0) unstable; urgency=medium

  * First.

 -- The developers <developers@vantrel.example>  Sat, 21 Nov 2026 12:00:00 +0000
"""
GOOD = {
    releases.PROJECT: 'cmake_minimum_required(VERSION 3.25)\nproject(vantrel VERSION 0.2.0 LANGUAGES CXX)\n',
    releases.CHANGELOG: CHANGES,
    releases.METAINFO: '<releases>\n<release version="0.2.0" date="2026-11-22"/>\n'
                       '<release version="0.1.0" date="2026-11-21"/>\n</releases>\n',
    releases.PAGE: '.\\" Comment\n.TH VANTREL 1 2026-11-22 "Vantrel 0.2.0" "User Commands"\n',
    releases.CASK: 'cask "vantrel" do\n  version "0.2.0"\nend\n',
}


def findings(**changes):
    names = {"project": releases.PROJECT, "changelog": releases.CHANGELOG,
             "metainfo": releases.METAINFO, "page": releases.PAGE, "cask": releases.CASK}
    texts = dict(GOOD)
    for name, (old, new) in changes.items():
        texts[names[name]] = texts[names[name]].replace(old, new)
    return releases.check(Tree(texts))


class ReleasesTest(unittest.TestCase):
    def test_one_version_and_date_everywhere_is_good(self):
        self.assertEqual(findings(), [])

    def test_a_new_version_of_the_project_is_missed_everywhere(self):
        self.assertEqual(len(findings(project=("0.2.0", "0.3.0"))), 4)

    def test_a_changelog_without_the_version_is_found(self):
        (finding,) = findings(changelog=("(0.2.0)", "(0.2.1)"))
        self.assertEqual(finding.path, releases.CHANGELOG)

    def test_the_newest_release_of_the_metainfo_comes_first(self):
        (finding,) = findings(metainfo=('<release version="0.2.0" date="2026-11-22"/>\n', ""))
        self.assertEqual((finding.path, finding.line), (releases.METAINFO, 2))

    def test_a_page_of_another_day_is_found(self):
        (finding,) = findings(page=("2026-11-22", "2026-11-21"))
        self.assertEqual((finding.path, finding.line), (releases.PAGE, 2))

    def test_a_cask_of_another_version_is_found(self):
        (finding,) = findings(cask=("0.2.0", "0.1.0"))
        self.assertEqual((finding.path, finding.line), (releases.CASK, 2))

    def test_a_date_of_the_changelog_that_is_none_is_found(self):
        self.assertIn("unknown day", findings(changelog=("22 Nov", "22 Smarch"))[0].reason)

    def test_what_it_cannot_read_is_found(self):
        (finding,) = findings(page=(".TH", ".QQ"))
        self.assertIn("no release", finding.reason)

    def test_a_file_that_is_gone_is_found(self):
        (finding,) = releases.check(Tree({p: t for p, t in GOOD.items() if p != releases.CHANGELOG}))
        self.assertEqual(finding.path, releases.CHANGELOG)


if __name__ == "__main__":
    unittest.main()
