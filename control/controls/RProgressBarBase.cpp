#include "controls/RProgressBarBase.h"

#include "base/PartComponents.h"
#include "controls/ProgressFraction.h"

#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

RProgressBarBase::RProgressBarBase(QQuickItem *parent)
    : QQuickProgressBar(parent)
{}

void RProgressBarBase::setLabel(const QString &label)
{
    if (m_label == label)
        return;
    m_label = label;
    announce(*this, QAccessible::NameChanged);
    Q_EMIT labelChanged();
}

void RProgressBarBase::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    updateMarks();
    Q_EMIT textChanged();
    Q_EMIT shownTextChanged();
}

QString RProgressBarBase::shownText() const
{
    return QString(m_text).replace(QLatin1String("%p"), QString::number(percent()));
}

void RProgressBarBase::setFailed(bool failed)
{
    if (m_hasFailed == failed)
        return;
    m_hasFailed = failed;
    updateMarks();
    updateTravel();
    Q_EMIT failedChanged();
}

double RProgressBarBase::fraction() const
{
    return progressFraction(from(), to(), value());
}

int RProgressBarBase::percent() const
{
    return int(fraction() * 100.0);
}

void RProgressBarBase::setReached(double)
{
    placeBar();
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT fractionChanged();
    if (!m_text.isEmpty())
        Q_EMIT shownTextChanged();
}

void RProgressBarBase::setEndless(bool endless)
{
    if (std::exchange(m_isEndless, endless) == endless)
        return;
    placeBar();
    updateTravel();
    Q_EMIT endlessChanged();
}

void RProgressBarBase::setUnit(qreal unit)
{
    if (!std::isfinite(unit) || std::exchange(m_unit, unit) == unit)
        return;
    placeBar();
    Q_EMIT unitChanged();
}

void RProgressBarBase::setTravel(double travel)
{
    if (std::exchange(m_travel, travel) == travel)
        return;
    placeBar();
    Q_EMIT travelChanged();
}

void RProgressBarBase::placeBar()
{
    if (!isComponentComplete())
        return;
    const bool hasText = !m_text.isEmpty();
    setImplicitSize(144.0 * m_unit, (hasText || m_hasFailed ? 16.0 : 8.0) * m_unit);

    const double iconSpace = m_hasFailed ? 20.0 * m_unit : 0.0;
    const double above = hasText ? 12.0 * m_unit : m_hasFailed ? 4.0 * m_unit : 0.0;
    const double below = m_hasFailed && !hasText ? 4.0 * m_unit : 0.0;
    const double left = isMirrored() ? iconSpace : 0.0;
    const double right = iconSpace - left;
    setTopInset(above);
    setBottomInset(below);
    setLeftInset(left);
    setRightInset(right);

    // A bar without an end is a third of the trough, which it enters and leaves.
    const double begin = m_isEndless ? std::max(0.0, (4.0 * m_travel - 1.0) / 3.0) : 0.0;
    const double end = m_isEndless ? std::min(1.0, 4.0 * m_travel / 3.0) : fraction();
    const double length = std::max(0.0, width() - iconSpace);
    setTopPadding(above);
    setBottomPadding(below);
    setLeftPadding(left + length * (isMirrored() ? 1.0 - end : begin));
    setRightPadding(right + length * (isMirrored() ? begin : 1.0 - end));
}

void RProgressBarBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickProgressBar::geometryChange(newGeometry, oldGeometry);
    placeBar();
}

void RProgressBarBase::mirrorChange()
{
    QQuickProgressBar::mirrorChange();
    placeBar();
}

void RProgressBarBase::updateMarks()
{
    placeBar();
    announce(*this, QAccessible::DescriptionChanged);
    if (!m_marks && (m_hasFailed || !m_text.isEmpty()))
        m_marks = PartComponents::makeItem(Part::ProgressMarks, *this);
}

void RProgressBarBase::componentComplete()
{
    QQuickProgressBar::componentComplete();
    placeBar();
    updateTravel();
}

void RProgressBarBase::updateTravel()
{
    if (!isComponentComplete())
        return;
    if (m_isEndless && !m_seen) {
        m_seen = std::make_unique<SeenWatch>(*this);
        connect(m_seen.get(), &SeenWatch::seenChanged, this, &RProgressBarBase::updateTravel);
        if (QQmlEngine *engine = qmlEngine(this))
            PartComponents::of(engine).make(Part::ProgressTravel, this,
                                            {{QStringLiteral("target"), QVariant::fromValue<QObject *>(this)}});
    }
    const bool isTravelling = m_isEndless && !m_hasFailed && m_seen->isSeen();
    if (std::exchange(m_isTravelling, isTravelling) != isTravelling)
        Q_EMIT travellingChanged();
}

void RProgressBarBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

QString RProgressBarBase::spokenName() const
{
    return m_label.isEmpty() ? tr("progress") : m_label;
}

QString RProgressBarBase::spokenDescription(const QString &given) const
{
    QStringList parts{isIndeterminate() ? QString() : tr("%1 %").arg(percent()), shownText(),
                      m_hasFailed ? tr("failed") : QString(), given};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace tamble::client
