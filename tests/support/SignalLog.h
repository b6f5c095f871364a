#pragma once

#include <QtCore/QMetaMethod>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>

/// Records the names of all signals that an object's own class declares, in the order of their emission.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(QObject *watched)
    {
        const QMetaObject *type = watched->metaObject();
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("record()"));
        for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
            if (type->method(i).methodType() == QMetaMethod::Signal)
                connect(watched, type->method(i), this, slot);
        }
    }

    /// The names so far; starts anew.
    QStringList take() { return std::exchange(m_names, {}); }

    /// Called after each recorded signal, with the state of that moment.
    std::function<void()> onSignal;

private Q_SLOTS:
    void record()
    {
        m_names << QString::fromLatin1(sender()->metaObject()->method(senderSignalIndex()).name());
        if (onSignal)
            onSignal();
    }

private:
    QStringList m_names;
};
