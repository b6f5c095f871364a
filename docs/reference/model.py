"""The types that pages can use, put together from the type description, the headers and the QML files."""

import re
from dataclasses import dataclass, field

from cpp_values import qml_type, qml_value
from headers import read_headers
from qmlfiles import read_qml_files
from qmltypes import read_components

# Of Qt's own items, what aliases of the module's QML files lead to.
QT_TYPES = {
    "color": "color", "elide": "enumeration", "horizontalAlignment": "enumeration", "fontSizeMode": "enumeration",
    "wrapMode": "enumeration", "fillMode": "enumeration", "minimumPixelSize": "int", "font.pixelSize": "int",
    "source": "url", "width": "real", "height": "real", "data": "list<QtObject>",
}
EMPTY = {"string": '""', "bool": "false", "int": "0", "real": "0", "var": "undefined"}


@dataclass
class Member:
    name: str
    kind: str  # property, signal, function
    place: str
    text: str = ""
    type: str = ""
    default: str = ""
    flags: str = ""
    parameters: str = ""
    style_keys: str = ""


@dataclass
class Type:
    name: str
    place: str
    text: str
    base: str
    kind: str = "creatable"  # singleton, attached, uncreatable, value, base, helper: only reached through aliases
    members: dict = field(default_factory=dict)
    enums: dict = field(default_factory=dict)
    bindings: dict = field(default_factory=dict)


class Module:
    def __init__(self, root, module_directory):
        self.headers = read_headers(root, ["libs/tambleclient-common", "control"])
        self.files = read_qml_files(root)
        self.types = {}
        self._key_of = self._keys_of_sheets()
        components = read_components(module_directory / "plugins.qmltypes")
        self._names = {component.get("name"): _exported_name(component) for component in components}
        for component in components:
            self._add_native(component)
        for line in (module_directory / "qmldir").read_text(encoding="utf-8").splitlines():
            if match := re.match(r"(singleton )?(\w+) [\d.]+ (\S+\.qml)$", line):
                self._add_file(match[2], "singleton" if match[1] else "creatable")

    def documented(self):
        return [found for found in self.types.values() if found.kind != "helper"]

    def bases(self, name):
        """The module's own types that the one of this name is built on, nearest first."""
        found = []
        while (name := self.types[name].base) in self.types:
            found.append(self.types[name])
        return found

    def member(self, type_name, name):
        if type_name not in self.types:
            return None
        lineage = [self.types[type_name]] + self.bases(type_name)
        return next((owner.members[name] for owner in lineage if name in owner.members), None)

    def keys_in(self, code, objects=None):
        """The style keys that an expression reads, in Markdown; `objects` may tell of probes for other types."""
        keys = set()
        for identifier, name in re.findall(r"(\w+)\.RStyleSet\.props\.(\w+)", code):
            if name in self._key_of:
                probe = (objects or {}).get(identifier)
                other = probe.bindings.get("type", "").strip('"') if probe else ""
                keys.add(f"`{self._key_of[name]}`" + (f" of `{other}`" if other else ""))
        return ", ".join(sorted(keys))

    def _keys_of_sheets(self):
        values = self.headers.get("StyleSetProps")
        getters = values.functions.values() if values else []
        found = ((getter.name, re.search(r'Literal\("([\w-]+)"\)', getter.code)) for getter in getters)
        return {name: match[1] for name, match in found if match}

    def _add_native(self, component):
        scope, _, class_name = component.get("name").rpartition("::")
        name = self._names[component.get("name")]
        header = self.headers.get(class_name) or self.headers.get(name)
        if header is None:
            if scope:
                raise LookupError(f"no header declares {class_name}")
            return  # a class of Qt that others are built on
        found = Type(name, f"{header.path}:{header.line}", header.text, component.get("name"), _kind_of(component))
        self.types[name] = found
        if not scope:
            return  # a class of Qt under a name of the module: Qt documents its members
        base = component.get("prototype", "")
        found.base = self._names.get(base, base) if "::" in base else base
        known = {block.get("name") for block in component.all("Enum")}
        found.enums = {name: values for name, values in header.enums.items() if name in known}
        silent = set()
        for block in component.all("Property"):
            member = self._native_property(block, header)
            found.members[member.name] = member
            silent |= {block.get("write"), block.get("notify"), block.get("name") + "Changed"}
        for block in component.all("Signal") + component.all("Method"):
            if block.get("name") not in silent and not block.get("isCloned"):
                found.members.setdefault(block.get("name"), _native_callable(block, header))

    def _native_property(self, block, header):
        name = block.get("name")
        declared = header.properties[name]
        getter = header.functions.get(declared.code)
        member = Member(name, "property", f"{header.path}:{declared.line}")
        member.text = declared.text or (getter.text if getter else "")
        member.type = qml_type(self._names.get(block.get("type"), block.get("type")), block.get("isList"))
        if not block.get("isReadonly"):
            variable = self._variable(name, declared.code, getter, header)
            # A constructor may fill a member that has no initialiser; the comment tells then.
            is_told = variable and variable[1] is None and "default" in member.text.lower()
            member.default = variable and not is_told and qml_value(*variable) or ""
        elif not (block.get("isList") and block.get("isPointer")):  # others are lists of QML objects, written as such
            member.flags = "read-only"
        if name in self._key_of and header.name == "StyleSetProps":
            member.text = member.text or f'Value of the key "{self._key_of[name]}".'
        return member

    def _variable(self, name, accessor, getter, header):
        """C++ type and initialiser of what a property gives: a member of the class or of a structure in it."""
        stored = re.search(r"return (m_\w+)(?:\.(\w+))?;", getter.code) if getter else None
        if stored and stored[2]:
            structure = self.headers.get(header.members.get(stored[1], ("",))[0])
            return structure and structure.members.get(stored[2])
        if getter and "return" in getter.code and not stored:
            return None
        return header.members.get(stored[1] if stored else accessor) or header.members.get("m_" + name)

    def _add_file(self, name, kind):
        file = self.files[name]
        known = self.types.get(file.base)
        if file.base in self.files and (known is None or known.kind == "helper"):
            self._add_file(file.base, "base")
        found = Type(name, f"{file.path}:{file.line}", file.text, file.base, kind, bindings=file.bindings)
        self.types[name] = found
        for declared in file.properties:
            found.members[declared.name] = self._qml_property(declared, file)
        for declared in file.callables:
            kind, _, rest = declared.code.partition(" ")
            parameters = re.sub(r"([\w.]+) (\w+)(?=[,)])", r"\2: \1", rest[len(declared.name):])
            found.members[declared.name] = Member(
                declared.name, kind, f"{file.path}:{declared.line}", declared.text, parameters=parameters)

    def _qml_property(self, declared, file):
        member = Member(declared.name, "property", f"{file.path}:{declared.line}", declared.text, declared.type)
        member.flags = "read-only" if "readonly" in declared.flags else declared.flags.strip()
        if declared.type == "alias":
            self._follow_alias(member, declared.code, file)
        elif member.flags != "read-only" or declared.code.isdigit():
            member.default = declared.code or EMPTY.get(declared.type, "")
        member.style_keys = self.keys_in(declared.code, file.objects)
        if member.style_keys and not member.text:
            member.text = f"Style key {member.style_keys}."
        return member

    def _follow_alias(self, member, target, file):
        """An alias has type, default and, unless it has one of its own, sentence of what it stands for."""
        identifier, _, name = target.partition(".")
        owner = file.objects.get(identifier)
        if owner is None:
            return
        if owner.type in self.files and owner.type not in self.types and owner.type != file.name:
            self._add_file(owner.type, "helper")
        meant = self.member(owner.type, name)
        member.type = meant.type if meant else owner.type if not name else QT_TYPES.get(name, "var")
        member.text = member.text or (meant.text if meant else "")
        if member.flags != "read-only":
            member.default = owner.bindings.get(name) or (meant.default if meant else "")


def _kind_of(component):
    if component.get("isSingleton"):
        return "singleton"
    if component.get("attachedType"):
        return "attached"
    if component.get("accessSemantics") == "value":
        return "value"
    if not component.get("exports"):
        return "base"
    return "uncreatable" if component.get("isCreatable") == "false" else "creatable"


def _exported_name(component):
    exports = component.get("exports")
    return exports[0].split("/")[1].split(" ")[0] if exports else component.get("name").split("::")[-1]


def _native_callable(block, header):
    name = block.get("name")
    declared = header.functions.get(name)
    parameters = ", ".join(
        f"{p.get('name', '')}: {qml_type(p.get('type'), p.get('isList'))}" for p in block.all("Parameter"))
    result = qml_type(block.get("type"), block.get("isList")) if block.get("type") else ""
    place = f"{header.path}:{declared.line if declared else header.line}"
    return Member(name, "signal" if block.name == "Signal" else "function", place, declared.text if declared else "",
                  parameters=f"({parameters})" + (f": {result}" if result else ""))
