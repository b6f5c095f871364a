"""What the C++ headers say of their classes: comments, places, initialisers."""

import re
from dataclasses import dataclass, field

from comments import Declaration, PendingComment

CLASS = re.compile(r"^(?:class|struct) (?:\w+_EXPORT )?(\w+)(?: final)?(?: : .*)?$")
PROPERTY = re.compile(r"Q_PROPERTY\(.*?[ *&](\w+) (?:READ|MEMBER) (\w+)")
ENUM_VALUE = re.compile(r"^(\w+)(?: = (?:\w+::\w+|(-?\w+)))?,?\s*(?:///<\s*(.*))?$")
MEMBER = re.compile(r"^(?:mutable )?([\w:<>, *]+?)[ *&]+(\w+)(?: = (.+?)|\{(.*)\})?;")


@dataclass
class HeaderClass:
    name: str
    path: str
    line: int
    text: str = ""
    properties: dict = field(default_factory=dict)
    functions: dict = field(default_factory=dict)
    members: dict = field(default_factory=dict)  # name: (C++ type, initialiser or None)
    enums: dict = field(default_factory=dict)  # name: [(value, number or None, text)]


def read_headers(root, folders):
    classes = {}
    for folder in folders:
        for path in sorted((root / folder).rglob("*.h")):
            for found in _read_header(path, path.relative_to(root).as_posix()):
                classes.setdefault(found.name, found)
    return classes


def _read_header(path, shown_path):
    comment, present = PendingComment(), None
    lines = path.read_text(encoding="utf-8").splitlines()
    at = 0
    while at < len(lines):
        line = lines[at]
        if line.startswith("///"):
            comment.add(line[3:])
        elif match := CLASS.match(line):
            present = HeaderClass(match[1], shown_path, at + 1, comment.take(match[1]))
            at = _read_body(lines, at + 1, present)
            yield present
            comment.end()
        elif not line.startswith("template"):
            comment.end()
        at += 1


def _read_body(lines, at, found):
    """Reads to the line that closes the class, whose index is returned."""
    comment, statement, first = PendingComment(), "", at
    while not lines[at].startswith("}"):
        line = lines[at].strip()
        at += 1
        if not line or line in ("{", "public:", "protected:", "private:") or line.endswith(("_SIGNALS:", "_SLOTS:")):
            comment.end()
        elif line.startswith("///"):
            comment.add(line[3:])
        elif not line.startswith("//"):
            first = first if statement else at
            statement += (" " if statement else "") + line
            is_open = statement.count("(") > statement.count(")")
            if line.endswith("{") and line != "{":
                at = _read_inner(lines, at, statement, found)
                comment.end()
                statement = ""
            elif not is_open and (line.endswith((";", "}", ")")) or re.search(r";\s*//", line)):
                _take(statement, first, comment, found)
                statement = ""
    return at


def _read_inner(lines, at, opening, found):
    """Reads an enumeration; passes over anything else in braces."""
    values = []
    indent = len(lines[at - 1]) - len(lines[at - 1].lstrip())
    while not re.match(r" {%d}\}" % indent, lines[at]):
        if match := ENUM_VALUE.match(lines[at].strip()):
            values.append((match[1], match[2], match[3] or ""))
        at += 1
    if match := re.match(r"enum (?:class )?(\w+)", opening):
        found.enums[match[1]] = values
    return at + 1


def _take(statement, line, comment, found):
    if match := PROPERTY.search(statement):
        found.properties[match[1]] = Declaration(match[1], line, comment.take(match[1]), match[2])
    elif match := re.match(r"enum (?:class )?(\w+)[^{]*\{(.*)\}", statement):
        found.enums[match[1]] = [(name.strip(), None, "") for name in match[2].split(",")]
    elif match := MEMBER.match(statement):
        found.members[match[2]] = (match[1], match[3] if match[3] is not None else match[4] and "{%s}" % match[4])
    elif match := re.match(r"[^(]*?(\w+)\(", statement.replace("Q_INVOKABLE", "")):
        declaration = Declaration(match[1], line, comment.take(match[1]), statement)
        known = found.functions.get(match[1])
        if known is None or not known.text:
            found.functions[match[1]] = declaration
