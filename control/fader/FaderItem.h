#pragma once

#include "base/ControlExport.h"
#include "fader/FaderTravel.h"
#include "fader/RFaderMark.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickslider_p.h>

#include <tambleclient-common/RValueConverter.h>

#include <optional>

namespace tamble::client {

/// What a fader shows: its value's place on the travel, the scale beside it, and what assistive tools read.
///
/// Levels are in dB, sizes in pixels. The value is kept inside the range; a value that is not a number counts as
/// `from`.
class TAMBLE_CLIENT_CONTROL_EXPORT FaderItem : public QQuickSlider
{
    /// Level in dB that a double click and the resetting keys lead to; undefined, or outside the range, for no reset.
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QVariant defaultValue MEMBER m_defaultValue NOTIFY defaultValueChanged FINAL)
    /// Steps in dB: `fineStepSize` with Shift, `pageStepSize` with Ctrl and of PageUp and PageDown.
    Q_PROPERTY(qreal fineStepSize MEMBER m_fineStepSize NOTIFY fineStepSizeChanged FINAL)
    Q_PROPERTY(qreal pageStepSize MEMBER m_pageStepSize NOTIFY pageStepSizeChanged FINAL)
    /// Exponential law, with more travel for high levels, instead of a linear one. `jtSpread` wins over it.
    Q_PROPERTY(bool exponential MEMBER m_exponential NOTIFY exponentialChanged FINAL)
    /// The piecewise linear law of TransferFunctions.
    Q_PROPERTY(bool jtSpread MEMBER m_jtSpread NOTIFY jtSpreadChanged FINAL)
    /// Levels in dB that have a short tick and a number; empty for automatic ones.
    Q_PROPERTY(QList<qreal> ticks MEMBER m_ticks NOTIFY ticksChanged FINAL)
    /// Levels in dB that have a long tick in a colour of its own.
    Q_PROPERTY(QList<qreal> extraTicks MEMBER m_extraTicks NOTIFY extraTicksChanged FINAL)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged FINAL)
    /// False while several devices differ ("mixed").
    Q_PROPERTY(bool consistent MEMBER m_consistent NOTIFY consistentChanged FINAL)
    /// False while a device has not acknowledged the value.
    Q_PROPERTY(bool confirmed MEMBER m_confirmed NOTIFY confirmedChanged FINAL)
    Q_PROPERTY(
        tamble::client::RValueConverter *converter READ converter WRITE setConverter NOTIFY converterChanged FINAL)
    /// Name for assistive tools, such as the channel's.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    Q_PROPERTY(qreal travelPosition READ travelPosition NOTIFY travelPositionChanged FINAL)
    /// Bar inside the track, in dB: it goes from `trackIndicatorFrom` to `trackIndicatorValue`, the level really in
    /// force.
    Q_PROPERTY(qreal trackIndicatorValue MEMBER m_indicatorValue NOTIFY trackIndicatorValueChanged FINAL)
    Q_PROPERTY(qreal trackIndicatorFrom MEMBER m_indicatorFrom NOTIFY trackIndicatorFromChanged FINAL)
    /// Ends of the bar inside the track as places on the travel, 0 to 1: `trackIndicatorBottom` is the lower one,
    /// `trackIndicatorTop` the upper.
    Q_PROPERTY(qreal trackIndicatorBottom READ trackIndicatorBottom NOTIFY trackIndicatorMoved FINAL)
    Q_PROPERTY(qreal trackIndicatorTop READ trackIndicatorTop NOTIFY trackIndicatorMoved FINAL)
    /// Distance in pixels between the ends of the fader and those of the handle's travel.
    Q_PROPERTY(qreal travelInset MEMBER m_travelInset NOTIFY travelInsetChanged FINAL)
    /// Least distance in pixels between the middles of two numbers.
    Q_PROPERTY(qreal labelSpacing MEMBER m_labelSpacing NOTIFY labelSpacingChanged FINAL)
    Q_PROPERTY(QList<tamble::client::RFaderMark> marks READ marks NOTIFY marksChanged FINAL)

public:
    explicit FaderItem(QQuickItem *parent = nullptr);

    /// Shows the value and never edits it; false by default.
    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    /// Texts of levels. Without one of the page's own: dB with one decimal and a sign, and "−∞" at `from`.
    RValueConverter *converter() const;
    void setConverter(RValueConverter *converter);
    /// Where the handle stands on its travel, 0 (at `from`) to 1.
    qreal travelPosition() const { return m_travelPosition; }
    /// Ends of the bar inside the track, which goes from `trackIndicatorFrom` to `trackIndicatorValue`, on the travel.
    qreal trackIndicatorBottom() const;
    qreal trackIndicatorTop() const;
    /// The ticks that have room, in no order. They follow changes before the next frame.
    const QList<RFaderMark> &marks() const { return m_marks; }

    /// Range and law in force.
    FaderTravel travel() const;
    /// Length of the travel in pixels, at least 0: the fader without `travelInset` at both its ends.
    qreal travelLength() const;
    /// The level that resets lead to; none when `defaultValue` is no number of the range.
    std::optional<double> resetLevel() const;

Q_SIGNALS:
    void defaultValueChanged();
    void fineStepSizeChanged();
    void pageStepSizeChanged();
    void exponentialChanged();
    void jtSpreadChanged();
    void ticksChanged();
    void extraTicksChanged();
    void readOnlyChanged();
    void consistentChanged();
    void confirmedChanged();
    void converterChanged();
    void labelChanged();
    void travelPositionChanged();
    void trackIndicatorValueChanged();
    void trackIndicatorFromChanged();
    void trackIndicatorMoved();
    void travelInsetChanged();
    void labelSpacingChanged();
    void marksChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;
    void accessibilityActiveChanged(bool active) override;

    double fineStepSize() const { return m_fineStepSize; }
    double pageStepSize() const { return m_pageStepSize; }
    bool isConsistent() const { return m_consistent; }

private:
    void followRange();
    void followTravel();
    void followScale();
    QString markText(double level) const;
    void tellAssistiveTools();
    void warnAboutMissingName() const;

    QVariant m_defaultValue = 0.0;
    qreal m_fineStepSize = 0.1;
    qreal m_pageStepSize = 3.0;
    QList<qreal> m_ticks; // empty: automatic
    QList<qreal> m_extraTicks{0.0};
    QPointer<RValueConverter> m_converter;
    mutable RValueConverter *m_ownConverter = nullptr; // a child, made when first asked for
    QString m_label;
    qreal m_travelPosition = 0.0;
    qreal m_indicatorValue = -80.0;
    qreal m_indicatorFrom = -80.0;
    qreal m_travelInset = 24.0;
    qreal m_labelSpacing = 14.0;
    QList<RFaderMark> m_marks;
    QString m_description; // as given to assistive tools
    bool m_exponential = false;
    bool m_jtSpread = false;
    bool m_readOnly = false;
    bool m_consistent = true;
    bool m_confirmed = true;
};

} // namespace tamble::client
