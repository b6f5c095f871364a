"""A type as a page in Markdown."""

import re

from cpp_values import qml_type
from families import INTERNAL

NOTES = {
    INTERNAL: "Shared by the module's own components. Not for pages: names and properties may change.",
    "singleton": "Singleton.", "value": "Value type.", "attached": "Attached to items and to other objects.",
    "uncreatable": "Not made by pages.", "base": "No name in QML: other types are built on it, or give objects of it.",
}


class PageWriter:
    def __init__(self, module, pictures):
        self.module, self.pictures = module, pictures

    def page(self, found, family):
        keys, text = split_keys(found.text)
        notes = [NOTES[note] for note in (found.kind, family) if note in NOTES]
        parts = [f"# {found.name}", f"[{family}](index.md) · {self._heritage(found)}", *notes, text]
        if (self.pictures / f"{found.name}.png").exists():
            parts += [f"![{found.name} in the four themes](pictures/{found.name}.png)"]
        parts += self._properties(found)
        parts += self._callables(found, "signal", "Signals") + self._callables(found, "function", "Functions")
        parts += self._enums(found, family) + self._keys(found, keys) + self._style(found) + self._inherited(found)
        return "\n\n".join(parts) + "\n"

    def link(self, name):
        """The name of a type, or of a list of one, with a link where there is a page."""
        if match := re.fullmatch(r"list<(\w+)>", name):
            return f"list&lt;{self.link(match[1])}&gt;"
        known = self.module.types.get(name)
        return f"[{name}]({name}.md)" if known and known.kind != "helper" else name

    def _heritage(self, found):
        names = [base.name for base in self.module.bases(found.name)]
        last = (self.module.types[names[-1]] if names else found).base
        chain = [self.link(name) for name in names] + ([qml_type(last).removeprefix("QQuick")] if last else [])
        return "inherits " + " → ".join(chain) if chain else "inherits nothing"

    def _properties(self, found):
        members = [m for m in found.members.values() if m.kind == "property" and not m.style_keys]
        if not members:
            return []
        rows = ["| Property | Type | Default | Meaning |", "|---|---|---|---|"]
        told = {}
        for member in members:
            flags = f", {member.flags}" if member.flags else ""
            default = code(member.default) if member.default else ""
            first = told.setdefault(member.text, member.name)
            text = cell(member.text) if first == member.name else f"See `{first}`."
            rows.append(f"| {anchor(member.name)} | {self.link(member.type)}{flags} | {cell(default)} | {text} |")
        return ["## Properties", "\n".join(rows)]

    def _callables(self, found, kind, title):
        members = [member for member in found.members.values() if member.kind == kind]
        told, lines = {}, []
        for member in members:
            first = told.setdefault(member.text, member.name)
            text = member.text.replace("\n\n", "\n\n  ") if first == member.name else f"See `{first}`."
            lines.append(f"- {anchor(member.name, True, member.parameters)} — {text}")
        return [f"## {title}", "\n".join(lines)] if lines else []

    def _enums(self, found, family):
        # Pages write the name of what is built on a type that is not for them.
        is_hidden = found.kind == "base" or family == INTERNAL
        users = [other.name for other in self.module.types.values()
                 if is_hidden and other.place.partition(":")[0].endswith(".qml") and found in self.module.bases(other.name)]
        owner = users[0] if users else found.name
        parts = []
        for name, values in found.enums.items():
            rows = [f"| `{owner}.{value}` | {number or ''} | {cell(text)} |" for value, number, text in values]
            parts += [f"## Enumeration {name}", "\n".join(["| Value | Number | Meaning |", "|---|---|---|"] + rows)]
        return parts

    def _keys(self, found, keys):
        texts = [keys] + [split_keys(base.text)[0] for base in self.module.bases(found.name)]
        return ["## Keys", "\n\n".join(text for text in texts if text)] if any(texts) else []

    def _style(self, found):
        readers, bindings = {}, {}
        for owner in reversed([found] + self.module.bases(found.name)):
            readers.update({m.name: (m.style_keys, m.default) for m in owner.members.values() if m.style_keys})
            for name, value in owner.bindings.items():
                bindings[name] = value
                if name in readers or self.module.keys_in(value):
                    readers[name] = (self.module.keys_in(value), value)
        rows = [f"| {keys} | {anchor(name, name in found.members)} | {cell(fallback(value))} |"
                for name, (keys, value) in readers.items() if keys]
        states = [name.rsplit(".", 1)[1] for name in bindings if name.startswith("RStyleSet.stateHelper.")]
        if not rows and not states:
            return []
        group = bindings.get("RStyleSet.typeName", f'"{found.name}"').strip('"')
        parts = ["## Style", f"Style sheets call it `{group}`."]
        if rows:
            parts.append("\n".join(["| Key | Property | Where no rule sets the key |", "|---|---|---|"] + rows))
        return parts + (["States: " + ", ".join(f"`{state}`" for state in states) + "."] if states else [])

    def _inherited(self, found):
        lines = []
        for base in self.module.bases(found.name):
            names = [f"[{m.name}{'' if m.kind == 'property' else '()'}]({base.name}.md#{m.name})"
                     for m in base.members.values() if m.name not in found.members]
            if names:
                lines.append(f"- of {self.link(base.name)}: " + ", ".join(names))
        changed = [f"`{name}` {code(value)}" for name, value in found.bindings.items()
                   if self.module.member(found.base, name) and not self.module.keys_in(value)]
        if changed:
            lines.append("- with other values: " + ", ".join(changed))
        return ["## Inherited", "\n".join(lines)] if lines else []


def split_keys(text):
    """The paragraph of a comment that tells the keys, and the others."""
    parts = text.split("\n\n")
    keys = [part.removeprefix("Keys: ") for part in parts if part.startswith("Keys: ")]
    others = [part for part in parts if not part.startswith("Keys: ")]
    return "\n\n".join(part[:1].upper() + part[1:] for part in keys), "\n\n".join(others)


def code(value):
    """An initialiser, unless it is too long for a table."""
    plain = value.replace("RThemeValues.unit", "dp").replace("root.", "")
    return f"`{plain}`" if len(plain) <= 40 and not plain.endswith("{") else "computed"


def fallback(value):
    """What an expression gives that asks first whether a key is set."""
    otherwise = re.search(r"isSet\(.*?\) \? .*? : (.*)$", value)
    return code(otherwise[1]) if otherwise else ""


def anchor(name, is_target=True, parameters=""):
    return (f'<a id="{name}"></a>' if is_target else "") + f"`{name}{parameters}`"


def cell(text):
    return text.replace("\n\n", "<br>").replace("|", "\\|")
