"""What g++ 12 compiles wrongly, or what dies too early, in coroutines.

g++ 12 destroys a braced aggregate (an empty one too) or a capturing lambda twice
when it is written in a statement that awaits: name it first. (A class with a
constructor is safe, and can be written with parentheses.) The captures of a lambda that
is a coroutine itself die with the lambda, while the coroutine goes on."""

import re

import cpp
from tree import Finding

_AWAIT = re.compile(r"\bco_await\b")
_COROUTINE = re.compile(r"\bco_(?:await|return|yield)\b")
_WORD_BEFORE = re.compile(r"(\w+)\s*$")
_TRAILING_RETURN = re.compile(r"(?:\)|\bmutable|\bnoexcept|\bconst)\s*->\s*[\w:]+(?:<[^;(){}]*>)?[\s*&]*$")
_HEAD = re.compile(r"\b(?:namespace|struct|class|enum|union|extern|concept|requires)\b[^;{}()]*$")
_BEFORE_BLOCK = {"else", "do", "try", "const", "noexcept", "mutable", "override", "final"}
# Words that stand before a lambda; any other word before "[" is a subscripted object.
_BEFORE_LAMBDA = {"return", "co_return", "co_await", "co_yield", "case", "else", "throw"}


def opens_block(text, brace):
    """Whether the brace begins statements or declarations, not an initializer."""
    before = text[:brace].rstrip()
    if not before or before[-1] in ");{}:]":
        return True
    word = _WORD_BEFORE.search(before)
    if word and word.group(1) in _BEFORE_BLOCK:
        return True
    start = max(before.rfind(mark) for mark in ";{}") + 1
    return bool(_TRAILING_RETURN.search(before[start:]) or _HEAD.search(before[start:]))


def lambdas(text):
    """(position of "[", captures, body) of every lambda."""
    for match in re.finditer(r"\[", text):
        position = match.start()
        before = text[:position].rstrip()
        word = _WORD_BEFORE.search(before)
        is_subscript = before[-1:] in (")", "]") or (word and word.group(1) not in _BEFORE_LAMBDA)
        if is_subscript or before[-1:] == "[" or text[position + 1 : position + 2] == "[":
            continue
        end = cpp.closing(text, position)
        body = _body_after(text, end + 1)
        if body:
            yield position, text[position + 1 : end].strip(), body


def _body_after(text, position):
    """(begin, end) of a lambda's body that follows its captures."""
    while position < len(text):
        if text[position] == "{":
            return position, cpp.closing(text, position)
        if text[position] == "(":
            position = cpp.closing(text, position)
        elif text[position] in ";)]}=":
            return None
        position += 1
    return None


def statement(text, position):
    """(begin, end) of the statement around `position`."""
    begin, depth = position, 0
    while begin > 0:
        mark = text[begin - 1]
        if mark in ")]" or (mark == "}" and not _closes_block(text, begin - 1)):
            depth += 1
        elif mark in "([" or (mark == "{" and not opens_block(text, begin - 1)):
            depth -= 1
        elif mark in "{}" or (mark == ";" and depth <= 0):
            break
        begin -= 1
    end = position
    while end < len(text) and text[end] not in ";}":
        if text[end] == "{" and opens_block(text, end):
            break
        end = cpp.closing(text, end) + 1 if text[end] in "([{" else end + 1
    return begin, end


def _closes_block(text, brace):
    depth = 0
    for i in range(brace, -1, -1):
        if text[i] == "}":
            depth += 1
        elif text[i] == "{":
            depth -= 1
            if depth == 0:
                return opens_block(text, i)
    return True


def check(tree):
    findings = []
    for path in tree.paths(".h", ".cpp", ".mm"):
        text = cpp.code(tree.text(path))
        if not _COROUTINE.search(text):
            continue
        found = list(lambdas(text))
        findings += [Finding(path, cpp.line_of(text, at), reason) for at, reason in _awaits(text, found)]
        findings += [Finding(path, cpp.line_of(text, at), reason) for at, reason in _captures(text, found)]
    return findings


def _awaits(text, found):
    for match in _AWAIT.finditer(text):
        begin, end = statement(text, match.start())
        capturing = [at for at, captures, _ in found if captures and begin <= at < end]
        if capturing:
            yield capturing[0], "capturing lambda in an awaiting expression: name the operation first"
        elif any(text[i] == "{" and not opens_block(text, i) for i in range(begin, end)):
            yield match.start(), "braces in an awaiting expression: name the object first"


def _captures(text, found):
    for at, captures, (begin, end) in found:
        if not captures:
            continue
        nested = [body for other, _, body in found if begin < other < end]
        for match in _COROUTINE.finditer(text, begin, end):
            if not any(inner[0] < match.start() < inner[1] for inner in nested):
                yield at, "a coroutine with captures: they die with the lambda; pass values as parameters"
                break
