#pragma once

#include "RequestStep.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

/// Settings of the first mixer under names: gain and muting of every channel. Role "name".
class PresetListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Exposed as GalleryInstallation.presets")

public:
    PresetListModel(GalleryInstallation &installation, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Keeps what the mixer shows now; a preset of the same name is replaced.
    Q_INVOKABLE void store(const QString &name);
    /// Asks the mixer for the values of a preset, in one step that can be undone.
    Q_INVOKABLE void recall(int row);
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE QString nameAt(int row) const;

private:
    struct Preset
    {
        QString name;
        QList<FieldRequest> values;
    };

    bool hasRow(int row) const { return row >= 0 && row < m_presets.size(); }

    GalleryInstallation &m_installation;
    QList<Preset> m_presets;
};
