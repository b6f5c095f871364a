"""What the check of the sentences finds in a module of a few types, and what it takes for explained."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, sys.argv.pop())
from model import Module  # noqa: E402
from sentences import unexplained  # noqa: E402

BASE = """\
/// Base of knobs.
class KnobBase : public QObject
{
    Q_OBJECT
    /// `low` and `high`: bounds in dB.
    Q_PROPERTY(double low MEMBER m_low NOTIFY lowChanged)
    Q_PROPERTY(double high MEMBER m_range.high NOTIFY highChanged)
    Q_PROPERTY(double bare MEMBER m_bare NOTIFY bareChanged)
    Q_PROPERTY(
        double told READ told WRITE setTold NOTIFY toldChanged)
public:
    /// Told at the getter.
    double told() const { return m_told; }
    void setTold(double told);
    Q_INVOKABLE void turn(double by);

Q_SIGNALS:
    void lowChanged();
    /// Moved.
    void moved();
    void silent();

private:
    double m_low = -80.0;
    double m_told = 3.0;
};
class Plain : public KnobBase
{
};
"""
TYPES = """\
Module {
    Component {
        name: "tamble::client::KnobBase"
        prototype: "QObject"
        Property { name: "low"; type: "double"; notify: "lowChanged" }
        Property { name: "high"; type: "double"; notify: "highChanged" }
        Property { name: "bare"; type: "double"; notify: "bareChanged" }
        Property { name: "told"; type: "double"; read: "told"; write: "setTold" }
        Signal { name: "lowChanged" }
        Signal { name: "moved" }
        Signal { name: "silent" }
        Method { name: "setTold"; Parameter { name: "told"; type: "double" } }
        Method { name: "turn"; Parameter { name: "by"; type: "double" } }
    }
    Component {
        name: "tamble::client::Plain"
        prototype: "tamble::client::KnobBase"
        exports: ["Test/RPlain 1.0"]
    }
}
"""
FRAME = """\
import QtQuick

/*! Frame. */
Item {
    id: root

    property bool inherited: true
}
"""
KNOB = """\
import QtQuick
import "../Frame" as Shared

/*! Knob.

    Keys: arrows. */
Shared.Frame {
    id: root

    /*! `first` and `second` in pixels. */
    property real first: 1
    property real second: 2
    property real third: 3
    /*! Own words. */
    property alias loud: inner.told
    property alias quiet: inner.told
    property alias dark: inner.bare

    signal pressed()

    /*! Turns
        it. */
    function turn(by: real) {
    }

    RPlain {
        id: inner
        told: 7
    }
}
"""


class Sentences(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as directory:
            root = Path(directory)
            files = {"control/KnobBase.h": BASE, "qml/Knob/Knob.qml": KNOB, "qml/Frame/Frame.qml": FRAME,
                     "plugins.qmltypes": TYPES, "qmldir": "module Test\nKnob 1.0 qml/Knob/Knob.qml\n"}
            for name, text in files.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text, encoding="utf-8")
            cls.module = Module(root, root)

    def test_findings(self):
        self.assertEqual(list(unexplained(self.module)), [
            "control/KnobBase.h:8: property KnobBase.bare has no sentence",
            "control/KnobBase.h:21: signal KnobBase.silent has no sentence",
            "control/KnobBase.h:15: function KnobBase.turn has no sentence",
            "control/KnobBase.h:27: RPlain has no sentence",
            "qml/Frame/Frame.qml:7: property Frame.inherited has no sentence",
            "qml/Knob/Knob.qml:13: property Knob.third has no sentence",
            "qml/Knob/Knob.qml:17: property Knob.dark has no sentence",
            "qml/Knob/Knob.qml:19: signal Knob.pressed has no sentence",
        ])

    def test_facts(self):
        for name, text, default in [("loud", "Own words.", "7"), ("quiet", "Told at the getter.", "7"),
                                    ("first", "`first` and `second` in pixels.", "1"), ("inherited", "", "true")]:
            with self.subTest(name):
                member = self.module.member("Knob", name)
                self.assertEqual((member.text, member.default), (text, default))
        self.assertEqual(self.module.member("RPlain", "low").default, "-80")
        self.assertEqual([base.name for base in self.module.bases("Knob")], ["Frame"])


if __name__ == "__main__":
    unittest.main()
