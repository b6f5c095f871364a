#include "RandomPage.h"

#include "HostileValues.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtQml/QJSValue>
#include <QtQml/private/qqmlmetatype_p.h>
#include <QtQuick/QQuickItem>

#include <utility>

namespace {

constexpr const char *Module = "TambleClient.Control";

/// Of the properties that types inherit from the framework, those that the module itself answers.
bool isAnswered(const QString &name)
{
    static const QSet<QString> answered{
        QStringLiteral("x"),           QStringLiteral("y"),       QStringLiteral("width"),    QStringLiteral("height"),
        QStringLiteral("visible"),     QStringLiteral("enabled"), QStringLiteral("text"),     QStringLiteral("value"),
        QStringLiteral("from"),        QStringLiteral("to"),      QStringLiteral("stepSize"), QStringLiteral("focus"),
        QStringLiteral("orientation"), QStringLiteral("padding"), QStringLiteral("source"),   QStringLiteral("parent")};
    return answered.contains(name);
}

bool isOurs(const QMetaProperty &property)
{
    const QByteArray owner = property.enclosingMetaObject()->className();
    return owner.startsWith("tamble::") || owner.contains("_QML");
}

std::vector<QMetaProperty> writableProperties(const QObject &object)
{
    std::vector<QMetaProperty> result;
    const QMetaObject *meta = object.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const bool isList = QByteArray(property.typeName()).startsWith("QQmlListProperty");
        if ((property.isWritable() || isList) && (isOurs(property) || isAnswered(QString::fromLatin1(property.name()))))
            result.push_back(property);
    }
    return result;
}

// A sheet that is not there is waited for, for a second.
bool canTakeASecond(const QMetaProperty &property)
{
    return QByteArray(property.name()).contains("tyleSheet");
}

// A popup of the framework whose parent is infinitely far away is placed endlessly.
bool isFarAway(const QMetaProperty &property, const QString &value)
{
    const QByteArray name(property.name());
    return (name == "x" || name == "y") && value.endsWith(QLatin1String("Infinity"));
}

QByteArray sourceOf(const QString &name)
{
    // A window waits a second for a sheet of the application, which is not there.
    const bool isWindow = name == QLatin1String("RApplicationWindow");
    return QStringLiteral("import %1 1.0\n%2 { %3 }")
        .arg(QLatin1String(Module), name, isWindow ? QStringLiteral("appStyleSheetKey: ''") : QString())
        .toUtf8();
}

} // namespace

TypeShelf::TypeShelf(QQmlEngine &engine)
{
    QStringList names;
    const QList<QQmlType> types = QQmlMetaType::qmlTypes();
    for (const QQmlType &type : types) {
        const bool canBeMade = (type.isCreatable() || type.isComposite()) && !type.isSingleton();
        if (canBeMade && type.module() == QLatin1String(Module))
            names.append(type.elementName());
    }
    names.sort();
    names.removeDuplicates();
    for (const QString &name : std::as_const(names)) {
        auto component = std::make_unique<QQmlComponent>(&engine);
        component->setData(sourceOf(name), QUrl());
        if (component->isError())
            continue; // a name without a file
        m_names.push_back(name);
        m_components.push_back(std::move(component));
    }
}

QObject *TypeShelf::make(std::size_t index)
{
    return m_components.at(index)->create();
}

RandomPage::RandomPage(QQmlEngine &engine, QQuickWindow &window, Random &random,
                       const std::function<void(const QString &)> &report)
    : m_engine(engine)
    , m_window(window)
    , m_random(random)
    , m_report(report)
    , m_wrappers(engine.newArray())
{}

RandomPage::~RandomPage()
{
    for (const QPointer<QObject> &object : m_objects)
        delete object.data();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void RandomPage::add(TypeShelf &shelf, std::size_t type)
{
    m_report(QStringLiteral("objects[%1] = %2 {}").arg(m_objects.size()).arg(shelf.name(type)));
    QObject *object = shelf.make(type);
    if (!object)
        return;
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    if (auto *item = qobject_cast<QQuickItem *>(object))
        item->setParentItem(m_window.contentItem());
    m_wrappers.setProperty(quint32(m_objects.size()), m_engine.newQObject(object));
    m_properties.push_back(writableProperties(*object));
    m_objects.emplace_back(object);
    for (const char *side : {"width", "height"}) {
        if (object->metaObject()->indexOfProperty(side) >= 0 && !m_random.oneIn(4))
            run(QStringLiteral("objects[%1].%2 = %3")
                    .arg(m_objects.size() - 1)
                    .arg(QLatin1String(side), hostileSize(m_random)));
    }
}

void RandomPage::write()
{
    const std::size_t index = m_random.below(m_objects.size());
    if (m_objects.empty() || !m_objects[index] || m_properties[index].empty())
        return;
    const QMetaProperty property = m_random.oneOf(m_properties[index]);
    if (canTakeASecond(property) && !m_random.oneIn(16))
        return;
    const QString value = hostileValue(m_random, property, m_objects.size());
    if (!isFarAway(property, value))
        run(QStringLiteral("objects[%1].%2 = ").arg(index).arg(QLatin1String(property.name())) + value);
}

void RandomPage::remove()
{
    const std::size_t index = m_random.below(m_objects.size());
    if (m_objects.empty() || !m_objects[index])
        return;
    m_report(QStringLiteral("objects[%1].destroy()").arg(index));
    delete m_objects[index].data();
}

void RandomPage::draw()
{
    m_report(QStringLiteral("draw"));
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_window.grabWindow();
}

void RandomPage::run(const QString &script)
{
    m_report(script);
    // Values of a wrong type are refused with an error, which is the right answer.
    m_engine.evaluate(QStringLiteral("(function(objects) { ") + script + QStringLiteral(" })")).call({m_wrappers});
}
