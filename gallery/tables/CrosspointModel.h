#pragma once

#include <QtCore/QAbstractTableModel>
#include <QtCore/QBitArray>
#include <QtQml/qqmlregistration.h>

/// Which inputs (rows) of a matrix go to which outputs (columns), and which inputs have a signal.
class CrosspointModel : public QAbstractTableModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int size READ size WRITE setSize NOTIFY sizeChanged FINAL)

public:
    enum Role { RoutedRole = Qt::UserRole, SignalRole };

    using QAbstractTableModel::QAbstractTableModel;

    /// Count of inputs, and of outputs; at first each input goes to the output of its number.
    int size() const { return m_size; }
    void setSize(int size);

    Q_INVOKABLE void route(int row, int column, bool routed);

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_size; }
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_size; }
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void sizeChanged();

private:
    int m_size = 0;
    QBitArray m_routes; ///< Row by row.
};
