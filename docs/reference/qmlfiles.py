"""What the project's QML files say of the type that they define: the members of their root object."""

import re
from dataclasses import dataclass, field

from comments import Declaration, PendingComment

PROPERTY = re.compile(r"((?:(?:default|readonly|required) )*)property ([\w.<>]+) (\w+)(?:: (.*))?$")
CALLABLE = re.compile(r"(signal|function) (\w+)(\(.*?\))(?:: ([\w<>]+))?")
BINDING = re.compile(r"([\w.]+): (.*)$")


@dataclass
class QmlObject:
    type: str
    bindings: dict = field(default_factory=dict)


@dataclass
class QmlProperty(Declaration):
    type: str = ""
    flags: str = ""


@dataclass
class QmlFile:
    name: str
    path: str
    base: str
    line: int = 1
    text: str = ""
    properties: list = field(default_factory=list)
    callables: list = field(default_factory=list)
    bindings: dict = field(default_factory=dict)
    objects: dict = field(default_factory=dict)  # by id


def read_qml_files(root):
    files = {}
    for path in sorted((root / "qml").rglob("*.qml")):
        lines = path.read_text(encoding="utf-8").splitlines()
        files[path.stem] = _read_file(path.stem, path.relative_to(root).as_posix(), lines)
    return files


def _read_file(name, path, lines):
    comment, root, in_comment = PendingComment(), None, False
    for number, line in enumerate(lines, 1):
        stripped = line.strip()
        if stripped.startswith("/*!") or in_comment:
            in_comment = "*/" not in stripped
            comment.add(re.sub(r"^/\*!|\*/$", "", stripped) or "\n")
        elif root is None:
            if match := re.match(r"([\w.]+) \{", line):
                root = QmlFile(name, path, match[1].split(".")[-1], number, comment.take(name))
                comment.end()
        elif not stripped:
            comment.end()
        elif re.match(r" {4}\w", line):
            _take_member(stripped, number, comment, root, lines)
    root.objects = _read_objects(lines)
    return root


def _take_member(line, number, comment, root, lines):
    if match := PROPERTY.match(line):
        flags, kind, name, value = match[1], match[2], match[3], match[4] or ""
        end = number
        while end < len(lines) and re.match(r" {8,}[?:&|+]", lines[end]):  # a value that goes on
            value += " " + lines[end].strip()
            end += 1
        root.properties.append(QmlProperty(name, number, comment.take(name), value, kind, flags))
    elif match := CALLABLE.match(line):
        result = f": {match[4]}" if match[4] else ""
        code = f"{match[1]} {match[2]}{match[3]}{result}"
        root.callables.append(Declaration(match[2], number, comment.take(match[2]), code))
    elif match := BINDING.match(line):
        root.bindings[match[1]] = match[2]


def _read_objects(lines):
    """The objects of the file that have an id, with their own bindings."""
    objects, openings = {}, []
    for line in lines:
        indent = len(line) - len(line.lstrip())
        while openings and line.strip() and openings[-1][0] >= indent:
            openings.pop()
        if match := re.match(r"\s*(?:\w+: )?([\w.]+) \{", line):
            openings.append((indent, QmlObject(match[1].split(".")[-1])))
        elif openings and indent == openings[-1][0] + 4 and (match := BINDING.match(line.strip())):
            if match[1] == "id":
                objects[match[2]] = openings[-1][1]
            else:
                openings[-1][1].bindings[match[1]] = match[2]
    return objects
