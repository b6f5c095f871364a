"""C++ types and initialisers as QML would write them."""

import re

TYPES = {
    "double": "real", "qreal": "real", "float": "real", "QString": "string", "QUrl": "url", "QColor": "color",
    "QVariant": "var", "QJSValue": "var", "QVariantMap": "var", "QVariantList": "list<var>",
    "QStringList": "list<string>", "QPointF": "point", "QSizeF": "size", "QRectF": "rect", "QFont": "font",
    "QObject": "QtObject", "QQmlComponent": "Component", "QQmlListReference": "list<QtObject>", "QUuid": "uuid",
    "QQuickItem": "Item", "QQuickRectangle": "Rectangle", "QQuickWindow": "Window", "QQuickImage": "Image",
}
EMPTY = {
    "QString": '""', "QUrl": '""', "QVariantList": "[]", "QStringList": "[]", "QVariantMap": "{}",
    "QVariant": "undefined", "QPointF": "Qt.point(0, 0)",
}
MAKERS = {"QRectF": "Qt.rect", "QSizeF": "Qt.size", "QPointF": "Qt.point"}


def qml_type(name, is_list=False):
    if match := re.match(r"(?:QList|QQmlListProperty)<(.*?)\*?>$", name):
        return f"list<{qml_type(match[1].strip())}>"
    plain = TYPES.get(name, name.split("::")[-1] if name.startswith("tamble::") else name)
    return f"list<{plain}>" if is_list else plain


def qml_value(kind, initialiser):
    """None where the text of the initialiser does not tell the value."""
    if initialiser is None:
        if kind.startswith(("QPointer<", "Q")) and kind.endswith("*") or kind.startswith("QPointer<"):
            return "null"
        return "[]" if kind.startswith("QList<") else EMPTY.get(kind)
    if re.fullmatch(r"-?\d+(\.\d+)?", initialiser):
        return f"{float(initialiser):g}"
    if initialiser in ("true", "false"):
        return initialiser
    if initialiser == "nullptr":
        return "null"
    if match := re.fullmatch(r'QStringLiteral\((".*")\)', initialiser):
        return match[1]
    if re.fullmatch(r"-?std::numeric_limits<double>::infinity\(\)", initialiser):
        return initialiser[:1].strip("s") + "Infinity"
    if match := re.fullmatch(r"Qt::(\w+)", initialiser):
        return f'"{match[1]}"' if kind == "QColor" else f"Qt.{match[1]}"
    if re.fullmatch(r"R\w+::\w+", initialiser):
        return initialiser.replace("::", ".")
    if match := re.fullmatch(r"\{(.*)\}", initialiser):
        values = ", ".join(qml_value("", part.strip()) or part.strip() for part in match[1].split(","))
        return f"{MAKERS[kind]}({values})" if kind in MAKERS else f"[{values}]"
    return initialiser if re.fullmatch(r"[A-Z]\w+", initialiser) else None
