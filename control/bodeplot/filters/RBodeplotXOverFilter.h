#pragma once

#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/filters/RBodeplotCalculationItem.h"

namespace tamble::client {

/// One side of a crossover: corner frequency in Hz, slope by `type`, low or high pass by `category`.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotXOverFilter : public tamble::client::RBodeplotCalculationItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotXOverFilter)
    /// Slope and alignment, an `RBodeplotXOverTypeEnum` value.
    Q_PROPERTY(int type MEMBER m_type NOTIFY typeChanged)
    /// Corner frequency in Hz.
    Q_PROPERTY(qreal freq MEMBER m_freq NOTIFY freqChanged)
    /// Whether the handle is the selected one.
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    /// Up to three letters on the handle.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    /// Low or high pass, an `RBodeplotXOverCategoryEnum` value.
    Q_PROPERTY(int category MEMBER m_category NOTIFY categoryChanged)
    /// Marks the handle as one whose device reports an error.
    Q_PROPERTY(bool errorFlag MEMBER m_errorFlag NOTIFY errorFlagChanged)
    /// Takes the filter out of the sum; its handle is drawn hollow.
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)

public:
    explicit RBodeplotXOverFilter(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void typeChanged(int value);
    void freqChanged(qreal value);
    /// Follows a change of the item's `visible`, which tells whether handle and individual curve are drawn.
    void visibleChanged(bool value);
    void selectedChanged(bool value);
    void labelChanged(const QString &value);
    void categoryChanged(int value);
    void errorFlagChanged(bool value);
    void bypassChanged(bool value);

private:
    int m_type = RBodeplotXOverTypeEnum::XOVER_THRU;
    qreal m_freq = 20.0;
    bool m_selected = false;
    QString m_label;
    int m_category = RBodeplotXOverCategoryEnum::XOVERCATEGORY_LOPASS;
    bool m_errorFlag = false;
    bool m_bypass = false;
};

} // namespace tamble::client
