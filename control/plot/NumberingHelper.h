#pragma once

#include "base/ControlExport.h"
#include "scale/AxisRange.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtQml/qqmlparserstatus.h>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Numbers along an axis: their values, texts and normalised positions.
///
/// `labels` holds an object { value, text, position } for each multiple of `step` (default 0.1) within `from`…`to`
/// (defaults 0 and 1), lowest value first; with `scale` 1 (logarithmic) for 1…9 times each power of ten. `decimals` -1
/// (default) means those of the step. `unit` is appended to the text of the last label. `maximumCount` above 0 thins
/// the labels to at most as many. A step that is not positive or gives more than 1000 labels yields none and one log
/// line. A component's properties take effect together when it is complete.
class TAMBLE_CLIENT_CONTROL_EXPORT NumberingHelper : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RNumberingHelper)
    /// `from` and `to`: ends of the axis, at the positions 0 and 1.
    Q_PROPERTY(double from MEMBER m_from NOTIFY fromChanged)
    Q_PROPERTY(double to MEMBER m_to NOTIFY toChanged)
    /// Distance of the numbers on a linear axis, above 0.
    Q_PROPERTY(double step MEMBER m_step NOTIFY stepChanged)
    /// 0 for a linear axis, the default; 1 for a logarithmic one.
    Q_PROPERTY(int scale MEMBER m_scale NOTIFY scaleChanged)
    /// Digits after the point; -1 for as many as the step has.
    Q_PROPERTY(int decimals MEMBER m_decimals NOTIFY decimalsChanged)
    /// Appended to the text of the last label.
    Q_PROPERTY(QString unit MEMBER m_unit NOTIFY unitChanged)
    /// Most labels that are given; 0 for any number.
    Q_PROPERTY(int maximumCount MEMBER m_maximumCount NOTIFY maximumCountChanged)
    /// Objects { value, text, position } with positions of 0 to 1, lowest value first.
    Q_PROPERTY(QVariantList labels READ labels NOTIFY labelsChanged)

public:
    explicit NumberingHelper(QObject *parent = nullptr);

    QVariantList labels() const { return m_labels; }

    void classBegin() override;
    void componentComplete() override;

Q_SIGNALS:
    void fromChanged();
    void toChanged();
    void stepChanged();
    void scaleChanged();
    void decimalsChanged();
    void unitChanged();
    void maximumCountChanged();
    void labelsChanged();

private:
    void recalculate();
    QVariantList labelsFor(const QList<double> &values, const AxisRange &range) const;

    double m_from = 0.0;
    double m_to = 1.0;
    double m_step = 0.1;
    int m_scale = int(AxisScale::Linear);
    int m_decimals = -1;
    int m_maximumCount = 0;
    bool m_complete = true;
    QString m_unit;
    QVariantList m_labels;
};

} // namespace tamble::client
