"""Words that do not belong into the repository: marks of unfinished work, tests
that are switched off, documents that its readers don't have, and paths of one
machine. (Each pattern is written so that it doesn't find itself.)"""

import re

import cpp
from tree import Finding

RULES = [
    (r"\b(?:TOD[O]|FIXM[E]|XX[X]|HAC[K])\b", "unfinished work: do it, or open an issue"),
    (r"DISABLE[D]_|GTEST_SKI[P]", "a test that is switched off"),
    (r"\bParts? [1-5]\.[1-6]\b", "points into a document that readers don't have: give the reason itself"),
    (r"\b[Tt]he spe[c](?:ification)?\b|\bper (?:the )?spe[c]\b", "names a document that readers don't have"),
    (r"shared/spe[c]|/wor[k]/|/far[m]/|/\.librar[y]\b|/hom[e]/\w|/User[s]/\w", "a path of one machine"),
]
RULES = [(re.compile(pattern), reason) for pattern, reason in RULES]


def check(tree):
    findings = []
    for path in tree.paths():
        text = tree.text(path)
        for pattern, reason in RULES:
            for match in pattern.finditer(text):
                findings.append(Finding(path, cpp.line_of(text, match.start()), f"{reason}: {match.group()}"))
    return findings
