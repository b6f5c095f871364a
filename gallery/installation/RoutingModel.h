#pragma once

#include <QtCore/QAbstractTableModel>
#include <QtCore/QPointer>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

class GalleryInstallation;

/// The crosspoints of the matrix, inputs in rows and outputs in columns: roles "routed" (as asked for while that waits,
/// else as it is), "confirmed" and "refusal" (why the last request failed). The names of inputs and outputs are the
/// headers.
class RoutingModel : public QAbstractTableModel, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    /// Names of the inputs and of the outputs.
    Q_PROPERTY(QStringList inputs READ inputs NOTIFY inputsChanged FINAL)
    Q_PROPERTY(QStringList outputs READ outputs NOTIFY outputsChanged FINAL)

public:
    enum Role : int { RoutedRole = Qt::UserRole, ConfirmedRole, RefusalRole };

    using QAbstractTableModel::QAbstractTableModel;

    QStringList inputs() const { return names(Qt::Vertical); }
    QStringList outputs() const { return names(Qt::Horizontal); }

    /// Asks the matrix to let an input play on an output, or not.
    Q_INVOKABLE void route(int input, int output, bool routed);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void inputsChanged();
    void outputsChanged();

private:
    QStringList names(Qt::Orientation orientation) const;
    void tellField(int device, int field);

    QPointer<GalleryInstallation> m_installation; ///< null until complete
};
