#include "fader/FaderItem.h"

#include "base/ControlLog.h"
#include "base/PropertyGate.h"
#include "base/StyleTypeName.h"
#include "fader/FaderMarks.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtGui/QAccessible>
#include <QtGui/QCursor>
#include <QtQml/QQmlProperty>

#include <tambleclient-common/DoubleValueConverter.h>

#include <algorithm>
#include <initializer_list>

namespace tamble::client {

namespace {

QString minusInfinity()
{
    return QStringLiteral("\u2212\u221e");
}

// Beside a travel there is room for "Off" or a sign, not for "-80.0 dB".
bool isShortText(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

} // namespace

FaderItem::FaderItem(QQuickItem *parent)
    : QQuickSlider(parent)
{
    setOrientation(Qt::Vertical);
    setFrom(-80.0);
    setTo(10.0);
    setValue(-80.0);
    setStepSize(0.5);
    setFocusPolicy(Qt::StrongFocus);

    using Change = void (FaderItem::*)();
    const auto answer = [this](std::initializer_list<Change> changes, Change slot) {
        for (const Change changed : changes)
            connect(this, changed, this, slot);
    };
    using F = FaderItem;
    answer({&F::fromChanged, &F::toChanged}, &F::followRange);
    answer({&F::valueChanged, &F::exponentialChanged, &F::jtSpreadChanged}, &F::followTravel);
    answer({&F::exponentialChanged, &F::jtSpreadChanged, &F::ticksChanged, &F::extraTicksChanged, &F::converterChanged,
            &F::travelInsetChanged, &F::labelSpacingChanged, &F::orientationChanged},
           &F::followScale);
    answer({&F::trackIndicatorValueChanged, &F::trackIndicatorFromChanged, &F::fromChanged, &F::toChanged,
            &F::exponentialChanged, &F::jtSpreadChanged},
           &F::trackIndicatorMoved);
    answer({&F::valueChanged, &F::consistentChanged, &F::confirmedChanged, &F::readOnlyChanged, &F::converterChanged,
            &F::labelChanged},
           &F::tellAssistiveTools);
}

void FaderItem::setReadOnly(bool readOnly)
{
    if (m_readOnly == readOnly)
        return;
    m_readOnly = readOnly;
    if (readOnly)
        setCursor(Qt::ForbiddenCursor);
    else
        unsetCursor();
    Q_EMIT readOnlyChanged();
}

RValueConverter *FaderItem::converter() const
{
    if (m_converter || m_ownConverter)
        return m_converter ? m_converter.data() : m_ownConverter;
    // The property's getter is const, yet the converter belongs to the fader.
    auto *converter = new DoubleValueConverter(const_cast<FaderItem *>(this));
    converter->setUnit(QStringLiteral("dB"));
    converter->setPlusSign(true);
    converter->setMinimumText(minusInfinity());
    const auto followFrom = [this, converter] { converter->setMinimum(from()); };
    followFrom();
    connect(this, &FaderItem::fromChanged, converter, followFrom);
    m_ownConverter = converter;
    return converter;
}

void FaderItem::setConverter(RValueConverter *converter)
{
    if (m_converter == converter)
        return;
    m_converter = converter;
    Q_EMIT converterChanged();
}

qreal FaderItem::trackIndicatorBottom() const
{
    return std::min(travel().position(m_indicatorFrom), travel().position(m_indicatorValue));
}

qreal FaderItem::trackIndicatorTop() const
{
    return std::max(travel().position(m_indicatorFrom), travel().position(m_indicatorValue));
}

FaderTravel FaderItem::travel() const
{
    const FaderLaw law = m_jtSpread ? FaderLaw::Table : m_exponential ? FaderLaw::Exponential : FaderLaw::Linear;
    return {from(), to(), law};
}

qreal FaderItem::travelLength() const
{
    return std::max(0.0, (isVertical() ? height() : width()) - 2.0 * m_travelInset);
}

std::optional<double> FaderItem::resetLevel() const
{
    bool isNumber = false;
    const double level = m_defaultValue.isNull() ? 0.0 : m_defaultValue.toDouble(&isNumber);
    if (!isNumber || !travel().contains(level))
        return std::nullopt;
    return level;
}

void FaderItem::componentComplete()
{
    QQuickSlider::componentComplete();
    followTravel();
    followScale();
}

void FaderItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickSlider::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        followScale();
}

// The base limits the value to each range it is given and forgets what lay beyond. A device may tell its range after
// its value, so the page's binding is read again.
void FaderItem::followRange()
{
    followScale();
    if (!isComponentComplete())
        return;
    readBindingOf(QQmlProperty(this, QStringLiteral("value")));
    followTravel();
}

void FaderItem::followTravel()
{
    if (!isComponentComplete())
        return;
    const double position = travel().position(value());
    if (m_travelPosition == position)
        return;
    m_travelPosition = position;
    Q_EMIT travelPositionChanged();
}

void FaderItem::followScale()
{
    polish();
}

void FaderItem::updatePolish()
{
    QQuickSlider::updatePolish();
    const FaderTravel travel = this->travel();
    const double length = travelLength();
    const double spacing = length > 0.0 ? m_labelSpacing / length : 1.0;
    QList<RFaderMark> marks;
    for (const FaderMark &mark :
         m_ticks.isEmpty() ? automaticMarks(travel, spacing) : marksAt(travel, m_ticks, spacing)) {
        marks.append(RFaderMark{mark.position, mark.isLabelled ? markText(mark.level) : QString(),
                                m_extraTicks.contains(mark.level)});
    }
    for (const FaderMark &mark : marksAt(travel, m_extraTicks, spacing)) {
        const bool isThere = std::any_of(marks.begin(), marks.end(), [&](const RFaderMark &other) {
            return other.isExtra && other.position == mark.position;
        });
        if (!isThere)
            marks.append(RFaderMark{mark.position, QString(), true});
    }
    if (m_marks == marks)
        return;
    m_marks = marks;
    Q_EMIT marksChanged();
}

QString FaderItem::markText(double level) const
{
    if (level == from()) {
        const QString text = m_converter ? m_converter->toText(level) : minusInfinity();
        if (isShortText(text))
            return text;
    }
    return QString::number(level, 'g', 4);
}

void FaderItem::accessibilityActiveChanged(bool active)
{
    QQuickSlider::accessibilityActiveChanged(active);
    if (!active)
        return;
    tellAssistiveTools();
    warnAboutMissingName();
}

void FaderItem::warnAboutMissingName() const
{
    static QSet<QString> warnedTypes;
    const QString type = styleTypeName(metaObject()->className());
    if (accessibleName().isEmpty() && !warnedTypes.contains(type)) {
        warnedTypes.insert(type);
        qCWarning(controlLog, "WARN: %s has no accessible name", qPrintable(type));
    }
}

void FaderItem::tellAssistiveTools()
{
    if (!QAccessible::isActive())
        return;
    maybeSetAccessibleName(m_label);
    QStringList parts{converter()->toText(value())};
    if (!m_consistent)
        parts.append(tr("mixed"));
    if (!m_confirmed)
        parts.append(tr("not confirmed"));
    if (m_readOnly)
        parts.append(tr("read only"));
    // A description that the page gave stays.
    const QString description = accessibleProperty("description").toString();
    if (!description.isEmpty() && description != m_description)
        return;
    m_description = parts.join(QStringLiteral(", "));
    setAccessibleProperty("description", m_description);
}

} // namespace tamble::client
