"""Fails on every registered type, and every property, signal and function of one, that no comment explains.

    python3 sentences.py SOURCES MODULE      MODULE: the folder with plugins.qmltypes and qmldir
"""

import sys
from pathlib import Path

from model import Module


def unexplained(module):
    for found in module.documented():
        if not found.text:
            yield f"{found.place}: {found.name} has no sentence"
        for member in found.members.values():
            if not member.text:
                yield f"{member.place}: {member.kind} {found.name}.{member.name} has no sentence"


if __name__ == "__main__":
    findings = list(unexplained(Module(Path(sys.argv[1]), Path(sys.argv[2]))))
    print(*findings, sep="\n")
    sys.exit(f"{len(findings)} without a sentence" if findings else 0)
