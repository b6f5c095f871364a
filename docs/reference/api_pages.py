"""Writes the reference of the module: a page for each type, and an index by family.

    python3 api_pages.py SOURCES MODULE OUTPUT      MODULE: the folder with plugins.qmltypes and qmldir
"""

import re
import sys
from pathlib import Path

from families import FAMILIES, INTERNAL, OTHERS, family_of
from model import Module
from pages import PageWriter


def internal_names(sources):
    """What the catalogue registers for the module's own components."""
    catalogue = (sources / "control/TypeCatalogue.cpp").read_text(encoding="utf-8")
    body = re.search(r"void registerInternals\(.*?\n\}", catalogue, re.S)
    return set(re.findall(r'"(R\w+)"', body[0]))


def summary(text):
    """The first sentence, and the next one where the first only says that the type is declared."""
    sentences = re.split(r"(?<=\.)\s+(?=[A-Z])", text)
    return " ".join(sentences[:2 if sentences[0].startswith("Declared") else 1])


def index_of(pages, icons):
    lines = ["# TambleClient.Control 1.0", "All types that QML can name: `import TambleClient.Control 1.0`.",
             "Pictures show the themes dark, light, contrast-dark and contrast-light, in this order."]
    for family in [*FAMILIES, OTHERS, INTERNAL]:
        entries = [f"- [{found.name}]({found.name}.md) — {summary(found.text)}"
                   for found, its_family in sorted(pages, key=lambda page: page[0].name) if its_family == family]
        if entries:
            lines += [f"## {family}", "\n".join(entries)]
    lines += ["## Icons", "Names that an `iconKey` and the `key` of an RIcon take:", ", ".join(f"`{icon}`" for icon in icons)]
    return "\n\n".join(lines) + "\n"


def main(sources, module_directory, output):
    module = Module(sources, module_directory)
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob("*.md"):
        old.unlink()
    internal = internal_names(sources)
    writer = PageWriter(module, output / "pictures")
    pages = [(found, family_of(found.place, found.name in internal or found.kind == "base" and "qml/" in found.place))
             for found in module.documented()]
    for found, family in pages:
        (output / f"{found.name}.md").write_text(writer.page(found, family), encoding="utf-8")
    icons = sorted(drawing.stem for drawing in (sources / "asset/icons/svg").glob("*.svg"))
    (output / "index.md").write_text(index_of(pages, icons), encoding="utf-8")
    print(f"{len(pages)} pages in {output}")


if __name__ == "__main__":
    main(*map(Path, sys.argv[1:4]))
