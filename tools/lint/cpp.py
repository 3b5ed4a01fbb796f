"""C++ sources, as far as the lints need to understand them."""

import re

_SKIPPED = re.compile(
    r"""
      //[^\n]*
    | /\*.*?\*/
    | (?:\b(?:u8|[uUL]))?R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"
    | "(?:[^"\\\n]|\\.)*"
    | (?<![0-9A-Fa-f])'(?:[^'\\\n]|\\.)+'
    """,
    re.VERBOSE | re.DOTALL,
)
_INCLUDE = re.compile(r'^[ \t]*#[ \t]*(?:include|import)[ \t]*([<"])([^>"\n]+)[>"]', re.MULTILINE)


def code(text):
    """The text with comments, strings and characters blanked out; lines and columns stay."""

    def blank(match):
        found = match.group()
        quote = "" if found.startswith("/") else '"'
        inside = re.sub(r"[^\n]", " ", found[len(quote) : len(found) - len(quote)])
        return quote + inside + quote

    return _SKIPPED.sub(blank, text)


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def includes(text):
    """(line, header, is it in angle brackets) of every include."""
    for match in _INCLUDE.finditer(text):
        yield line_of(text, match.start(1)), match.group(2), match.group(1) == "<"


def closing(text, position):
    """Where the bracket at `position` is closed; the end of the text if it is not."""
    depth = 0
    for i in range(position, len(text)):
        if text[i] in "([{":
            depth += 1
        elif text[i] in ")]}":
            depth -= 1
            if depth == 0:
                return i
    return len(text)
