"""Reads the description of native types that the build writes for QML tools."""

import re

TOKEN = re.compile(r'"(?:[^"\\]|\\.)*"|//[^\n]*|[\w.+-]+|[{}\[\]:;,]')


class Block:
    """One `Name { … }` of the file: its values by key, and the blocks inside."""

    def __init__(self, name):
        self.name, self.values, self.blocks = name, {}, []

    def get(self, key, default=None):
        return self.values.get(key, default)

    def all(self, name):
        return [block for block in self.blocks if block.name == name]


def read_components(path):
    text = path.read_text(encoding="utf-8")
    tokens = [token for token in TOKEN.findall(text) if not token.startswith("//")]
    module = _read_block("Module", tokens, tokens.index("{") + 1)[0]
    return module.all("Component")


def _read_block(name, tokens, at):
    block = Block(name)
    while tokens[at] != "}":
        if tokens[at] in ";,":
            at += 1
        elif tokens[at + 1] == "{":
            inner, at = _read_block(tokens[at], tokens, at + 2)
            block.blocks.append(inner)
        else:
            block.values[tokens[at]], at = _read_value(tokens, at + 2)
    return block, at + 1


def _read_value(tokens, at):
    if tokens[at] != "[":
        return tokens[at].strip('"'), at + 1
    end = tokens.index("]", at)
    return [token.strip('"') for token in tokens[at + 1:end] if token != ","], end + 1
