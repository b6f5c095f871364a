#include "workspace/RWorkspaceItemValueBarBase.h"

#include "controls/ProgressFraction.h"
#include "scenegraph/RectanglesNode.h"
#include "scenegraph/SoftwarePicture.h"
#include "style/StyleSet.h"

#include <QtQml/qqml.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tamble::client {

namespace {

const QString alarmClass = QStringLiteral("red");

// Of the largest zoom that a workspace has by default: less than a quarter of a pixel cannot be seen there either.
constexpr double stepsPerPixel = 4.0;

} // namespace

// The key of the bar decides for all: without it there are no rules for value bars, and none for the class word.
const std::array<SheetColors::Source, 8> RWorkspaceItemValueBarBase::colorSources = {{
    {&StyleSetProps::background, "background-bar", 4},
    {&StyleSetProps::backgroundBar, "background-bar", 5},
    {&StyleSetProps::backgroundDelimiter, "background-bar", 6},
    {&StyleSetProps::backgroundBar, "background-bar", 7},
    {&StyleSetProps::background, nullptr, -1, "RMeter"},
    {&StyleSetProps::line, nullptr, -1, "RAppBarNavButton"},
    {&StyleSetProps::foreground, nullptr, -1, "RButton"},
    {&StyleSetProps::backgroundRed, nullptr, -1, "RMeter"},
}};

RWorkspaceItemValueBarBase::RWorkspaceItemValueBarBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_colors(*this, colorSources,
               [this](std::size_t begin, std::size_t end) {
                   update();
                   if (begin <= Background)
                       Q_EMIT ssBackgroundChanged();
                   if (begin <= Bar && end > Bar)
                       Q_EMIT ssBackgroundBarChanged();
                   if (begin <= Delimiter && end > Delimiter)
                       Q_EMIT ssBackgroundDelimiterChanged();
               })
    , m_delimiterValue(std::numeric_limits<double>::quiet_NaN())
{
    setFlag(ItemHasContents);
    QAccessible::installActivationObserver(this);
}

RWorkspaceItemValueBarBase::~RWorkspaceItemValueBarBase()
{
    QAccessible::removeActivationObserver(this);
}

void RWorkspaceItemValueBarBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

void RWorkspaceItemValueBarBase::assign(double &stored, double value, void (RWorkspaceItemValueBarBase::*changed)())
{
    if (stored == value || (std::isnan(stored) && std::isnan(value)))
        return;
    const bool hadAlarm = hasAlarm();
    stored = value;
    refresh();
    Q_EMIT(this->*changed)();
    tellAlarm(hadAlarm);
}

void RWorkspaceItemValueBarBase::setValue(double value)
{
    assign(m_value, value, &RWorkspaceItemValueBarBase::valueChanged);
}

void RWorkspaceItemValueBarBase::setFrom(double from)
{
    assign(m_from, from, &RWorkspaceItemValueBarBase::fromChanged);
}

void RWorkspaceItemValueBarBase::setTo(double to)
{
    assign(m_to, to, &RWorkspaceItemValueBarBase::toChanged);
}

void RWorkspaceItemValueBarBase::setDelimiterValue(double value)
{
    assign(m_delimiterValue, value, &RWorkspaceItemValueBarBase::delimiterValueChanged);
}

void RWorkspaceItemValueBarBase::assignAlarm(std::optional<bool> alarm)
{
    const bool hadAlarm = hasAlarm();
    m_givenAlarm = alarm;
    refresh();
    tellAlarm(hadAlarm);
}

void RWorkspaceItemValueBarBase::tellAlarm(bool before)
{
    if (hasAlarm() == before)
        return;
    Q_EMIT alarmChanged();
    Q_EMIT ssBackgroundBarChanged();
}

void RWorkspaceItemValueBarBase::setReverse(bool reverse)
{
    if (std::exchange(m_reverse, reverse) == reverse)
        return;
    refresh();
    Q_EMIT reverseChanged();
}

void RWorkspaceItemValueBarBase::setLabel(const QString &label)
{
    if (m_label == label)
        return;
    m_label = label;
    announce(*this, QAccessible::NameChanged);
    Q_EMIT labelChanged();
}

void RWorkspaceItemValueBarBase::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT textChanged();
}

void RWorkspaceItemValueBarBase::setUnit(qreal unit)
{
    if (!std::isfinite(unit) || std::exchange(m_unit, unit) == unit)
        return;
    refresh();
    Q_EMIT unitChanged();
}

void RWorkspaceItemValueBarBase::setMarkWidth(qreal width)
{
    if (std::exchange(m_markWidth, width) != width)
        refresh();
}

void RWorkspaceItemValueBarBase::setSsBackgroundBar(const QColor &color)
{
    m_colors.setColor(Bar, color);
    m_colors.setColor(AlarmBar, color);
}

double RWorkspaceItemValueBarBase::pixelOf(double value) const
{
    const double share = progressFraction(m_from, m_to, value);
    return std::round((m_reverse ? 1.0 - share : share) * width() * stepsPerPixel) / stepsPerPixel;
}

void RWorkspaceItemValueBarBase::refresh()
{
    if (!isComponentComplete() || !isVisible())
        return;
    showAlarm();
    announce(*this, QAccessible::DescriptionChanged);

    const double end = pixelOf(m_value);
    const QRectF bar = m_reverse ? QRectF(end, 0.0, width() - end, height()) : QRectF(0.0, 0.0, end, height());
    QRectF delimiter;
    if (std::isfinite(m_delimiterValue)) {
        const double markWidth = m_unit * m_markWidth;
        const double begin = std::round(pixelOf(m_delimiterValue) - markWidth / 2.0);
        delimiter = {std::clamp(begin, 0.0, std::max(0.0, width() - markWidth)), 0.0, markWidth, height()};
    }
    const bool isBarNew = std::exchange(m_barRect, bar) != bar;
    const bool isDelimiterNew = std::exchange(m_delimiterRect, delimiter) != delimiter;
    if (isBarNew || isDelimiterNew)
        update();
}

// The page may have class words of its own.
void RWorkspaceItemValueBarBase::showAlarm()
{
    if (std::exchange(m_isRed, hasAlarm()) == hasAlarm())
        return;
    auto *styleSet = static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(this));
    QStringList words = styleSet->name().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.removeAll(alarmClass);
    if (m_isRed)
        words.append(alarmClass);
    styleSet->setName(words.join(QLatin1Char(' ')));
    update();
}

void RWorkspaceItemValueBarBase::componentComplete()
{
    QQuickItem::componentComplete();
    accessibilityActiveChanged(QAccessible::isActive());
    refresh();
}

void RWorkspaceItemValueBarBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        refresh();
        update();
    }
}

void RWorkspaceItemValueBarBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged && data.boolValue)
        refresh();
}

QSGNode *RWorkspaceItemValueBarBase::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) {
        auto *node = old ? static_cast<RectanglesNode *>(old) : new RectanglesNode;
        node->setRectangles(std::array<ColoredRectangle, 3>{{{boundingRect(), ssBackground()},
                                                             {m_barRect, ssBackgroundBar()},
                                                             {m_delimiterRect, ssBackgroundDelimiter()}}});
        return node;
    });
}

QString RWorkspaceItemValueBarBase::spokenDescription(const QString &given) const
{
    if (!given.isEmpty() || !m_text.isEmpty())
        return given.isEmpty() ? m_text : given;
    if (std::isnan(m_value))
        return tr("no value");
    return tr("%1 %").arg(std::lround(100.0 * progressFraction(m_from, m_to, m_value)));
}

} // namespace tamble::client
