#pragma once

#include "TambleClientControlModule.h"
#include "style/StyleEngine.h"
#include "style/StyleSet.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtQuick/QQuickItem>

/// A directory for sheets, and the messages that the style engine sends meanwhile.
class StyleFixture
{
public:
    StyleFixture()
    {
        tamble::client::TambleClientControlModule().registerTypes("TambleClient.Control");
        engine().setBaseUrl(QUrl());
        m_connection = QObject::connect(&engine(), &tamble::client::StyleEngine::exception,
                                        [this](const QString &type, const QString &message) {
                                            types.append(type);
                                            messages.append(message);
                                        });
    }

    ~StyleFixture()
    {
        QObject::disconnect(m_connection);
        engine().setStyleSheetSource(QUrl());
        engine().setDefaultStyleSheetSource(QUrl());
        engine().unload();
        engine().loadStyles();
        engine().unload();
    }

    StyleFixture(const StyleFixture &) = delete;
    StyleFixture &operator=(const StyleFixture &) = delete;

    static tamble::client::StyleEngine &engine() { return *tamble::client::StyleEngine::instance(); }

    QString path(const QString &name) const { return m_directory.filePath(name); }
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(path(name)); }

    QUrl write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write a sheet");
        return url(name);
    }

    /// Loads sheets with these texts; an empty one means none.
    void load(const QByteArray &defaultSheet, const QByteArray &userSheet = {}) const
    {
        engine().setDefaultStyleSheetSource(defaultSheet.isEmpty() ? QUrl() : write("default.style", defaultSheet));
        engine().setStyleSheetSource(userSheet.isEmpty() ? QUrl() : write("user.style", userSheet));
        engine().loadStyles();
    }

    QStringList types;
    QStringList messages;

private:
    QTemporaryDir m_directory;
    QMetaObject::Connection m_connection;
};

/// An item that style sheets call "Box".
class StyledBox : public QQuickItem
{
public:
    StyledBox() { styleSet().setTypeName(QStringLiteral("Box")); }

    tamble::client::StyleSet &styleSet()
    {
        return *qobject_cast<tamble::client::StyleSet *>(
            qmlAttachedPropertiesObject<tamble::client::StyleSet>(this, true));
    }
    tamble::client::StyleSetProps &props() { return *styleSet().props(); }
};
