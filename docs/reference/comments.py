"""Comments and the declarations that they belong to, the same for C++ headers and QML files.

A comment belongs to the declaration below it, and to those right below that one which it names in backquotes.
"""

import re
from dataclasses import dataclass


@dataclass
class Declaration:
    name: str
    line: int
    text: str = ""
    code: str = ""


class PendingComment:
    """The comment that was read last, until an empty line or another comment follows the declarations below it."""

    def __init__(self):
        self._text, self._is_used = "", False

    def add(self, line):
        if self._is_used:
            self.end()
        self._text += line.strip() + "\n"

    def end(self):
        self._text, self._is_used = "", False

    def take(self, name):
        if self._is_used and f"`{name}`" not in self._text:
            return ""
        self._is_used = True
        return paragraphs(self._text)


def paragraphs(text):
    """The text with one line for each paragraph."""
    parts = re.split(r"\n\s*\n", text.strip())
    return "\n\n".join(" ".join(part.split()) for part in parts)
