#pragma once

#include "ControlExport.h"
#include "bodeplot/BodeplotEnums.h"
#include "bodeplot/RBodeplotCalculationItem.h"
#include "bodeplot/RBodeplotPointModel.h"

#include <QtCore/QList>
#include <QtQml/QQmlListProperty>
#include <QtQml/QQmlListReference>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Frequency response of a set of filters, drawn inside a plot frame, with one handle per editable corner.
///
/// Frequencies are in Hz, levels in dB. The filters are declared in `calculationItems` or given as a list of
/// arbitrary objects with filter-named properties (`calculationItemsReference`).
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotCurve : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotCurveTemplate)
    Q_PROPERTY(QObject *style MEMBER m_style NOTIFY styleChanged)
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)
    Q_PROPERTY(qreal trim MEMBER m_trim NOTIFY trimChanged)
    Q_PROPERTY(int spectrum MEMBER m_spectrum NOTIFY spectrumChanged)
    Q_PROPERTY(bool hideIndividualCurves MEMBER m_hideIndividualCurves NOTIFY hideIndividualCurvesChanged)
    Q_PROPERTY(qreal samplerate MEMBER m_samplerate NOTIFY samplerateChanged)
    Q_PROPERTY(int resolution MEMBER m_resolution NOTIFY resolutionChanged)
    Q_PROPERTY(QQmlListProperty<tamble::client::RBodeplotCalculationItem> calculationItems READ calculationItems NOTIFY
                   calculationItemsChanged)
    Q_PROPERTY(QQmlListReference calculationItemsReference READ calculationItemsReference WRITE
                   setCalculationItemsReference NOTIFY calculationItemsReferenceChanged)
    Q_PROPERTY(QList<QObject *> filterPointModels READ filterPointModels NOTIFY filterPointModelsChanged)

public:
    explicit RBodeplotCurve(QQuickItem *parent = nullptr);

    /// The filters. A filter that is destroyed leaves the list by itself.
    QQmlListProperty<RBodeplotCalculationItem> calculationItems();

    QQmlListReference calculationItemsReference() const { return m_calculationItemsReference; }
    void setCalculationItemsReference(const QQmlListReference &reference);

    QList<QObject *> filterPointModels() const { return m_filterPointModels; }

Q_SIGNALS:
    void styleChanged();
    void xMinimumChanged();
    void xMaximumChanged();
    void yMinimumChanged();
    void yMaximumChanged();
    void trimChanged();
    void spectrumChanged();
    void hideIndividualCurvesChanged();
    void samplerateChanged();
    void resolutionChanged();
    void calculationItemsChanged();
    void calculationItemsReferenceChanged();
    void filterPointModelsChanged();
    void userSelectedFilterPoint(int index, int selectedIndex);
    void userChangedFilterPoint(int index, const QString &type, float frequency, float gain, float quality);

private:
    using ItemList = QQmlListProperty<RBodeplotCalculationItem>;

    static void appendItem(ItemList *list, RBodeplotCalculationItem *item);
    static qsizetype itemCount(ItemList *list);
    static RBodeplotCalculationItem *itemAt(ItemList *list, qsizetype index);
    static void clearItems(ItemList *list);
    void forgetItem(QObject *item);

    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
    qreal m_trim = 0.0;
    int m_spectrum = RBodeplotSpectrumEnum::MAGNITUDE;
    bool m_hideIndividualCurves = false;
    qreal m_samplerate = 48000.0;
    int m_resolution = 4096;
    QList<RBodeplotCalculationItem *> m_calculationItems;
    QQmlListReference m_calculationItemsReference;
    QList<QObject *> m_filterPointModels;
};

} // namespace tamble::client
