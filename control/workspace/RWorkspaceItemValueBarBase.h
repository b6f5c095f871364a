#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "style/SheetColors.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <array>
#include <optional>

namespace tamble::client {

/// Draws a value as a bar, natively: hundreds of them move several times a second. One that cannot be seen does nothing
/// with a new value but to keep it, and one that lights the same pixels repaints nothing. It is never mirrored.
class TAMBLE_CLIENT_CONTROL_EXPORT RWorkspaceItemValueBarBase : public QQuickItem,
                                                                public SpokenControl,
                                                                private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceItemValueBarBase)
    /// What is shown, cut to `from` and `to`, which are 0 and 100 by default; `from` may be the greater one. No number
    /// is an empty bar.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(double from MEMBER m_from WRITE setFrom NOTIFY fromChanged FINAL)
    Q_PROPERTY(double to MEMBER m_to WRITE setTo NOTIFY toChanged FINAL)
    /// The value that has a mark; no number, the default, for none.
    Q_PROPERTY(double delimiterValue MEMBER m_delimiterValue WRITE setDelimiterValue NOTIFY delimiterValueChanged FINAL)
    Q_PROPERTY(bool alarm READ hasAlarm WRITE setAlarm RESET resetAlarm NOTIFY alarmChanged FINAL)
    /// Whether the bar grows from its other end; false by default.
    Q_PROPERTY(bool reverse MEMBER m_reverse WRITE setReverse NOTIFY reverseChanged FINAL)
    /// What assistive tools are told: `label` is the name of the value, `text` its present state; a percentage stands
    /// in for an empty text.
    Q_PROPERTY(QString label MEMBER m_label WRITE setLabel NOTIFY labelChanged FINAL)
    Q_PROPERTY(QString text MEMBER m_text WRITE setText NOTIFY textChanged FINAL)
    /// Pixels per density-independent unit.
    Q_PROPERTY(qreal unit MEMBER m_unit WRITE setUnit NOTIFY unitChanged FINAL)
    /// Of the style: `ssBackground`, `ssBackgroundBar`, `ssBackgroundDelimiter`.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssBackgroundBar READ ssBackgroundBar WRITE setSsBackgroundBar NOTIFY ssBackgroundBarChanged)
    Q_PROPERTY(QColor ssBackgroundDelimiter READ ssBackgroundDelimiter WRITE setSsBackgroundDelimiter NOTIFY
                   ssBackgroundDelimiterChanged)

public:
    explicit RWorkspaceItemValueBarBase(QQuickItem *parent = nullptr);
    ~RWorkspaceItemValueBarBase() override;

    double value() const { return m_value; }
    void setValue(double value);
    void setFrom(double from);
    void setTo(double to);
    void setDelimiterValue(double value);
    /// Whether the value is to be noticed, which the sheets' class word "red" shows; unless it is set, it is while the
    /// value is above `delimiterValue`.
    bool hasAlarm() const { return m_givenAlarm.value_or(m_value > m_delimiterValue); }
    void setAlarm(bool alarm) { assignAlarm(alarm); }
    void resetAlarm() { assignAlarm({}); }
    void setReverse(bool reverse);
    void setLabel(const QString &label);
    void setText(const QString &text);
    void setUnit(qreal unit);
    /// Width of the mark at `delimiterValue` in density-independent units, more than 1, the default, where it would be
    /// too thin to be seen.
    void setMarkWidth(qreal width);

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssBackgroundBar() const { return m_colors.color(hasAlarm() ? AlarmBar : Bar); }
    void setSsBackgroundBar(const QColor &color);
    QColor ssBackgroundDelimiter() const { return m_colors.color(Delimiter); }
    void setSsBackgroundDelimiter(const QColor &color) { m_colors.setColor(Delimiter, color); }

    /// Lit part and mark in pixels from the left; no mark is an empty rectangle.
    QRectF barRect() const { return m_barRect; }
    QRectF delimiterRect() const { return m_delimiterRect; }

    QAccessible::Role spokenRole() const override { return QAccessible::ProgressBar; }
    QString spokenName() const override { return m_label.isEmpty() ? tr("value") : m_label; }
    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void valueChanged();
    void fromChanged();
    void toChanged();
    void delimiterValueChanged();
    void alarmChanged();
    void reverseChanged();
    void labelChanged();
    void textChanged();
    void unitChanged();
    void ssBackgroundChanged();
    void ssBackgroundBarChanged();
    void ssBackgroundDelimiterChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override;

private:
    enum ColorName : std::size_t { Background, Bar, Delimiter, AlarmBar };
    static const std::array<SheetColors::Source, 8> colorSources;

    void assign(double &stored, double value, void (RWorkspaceItemValueBarBase::*changed)());
    void assignAlarm(std::optional<bool> alarm);
    void tellAlarm(bool before);
    void accessibilityActiveChanged(bool active) override;
    void refresh();
    void showAlarm();
    double pixelOf(double value) const;

    SheetColors m_colors;
    double m_value = 0.0;
    double m_from = 0.0;
    double m_to = 100.0;
    double m_delimiterValue;
    std::optional<bool> m_givenAlarm;
    qreal m_unit = 1.0;
    qreal m_markWidth = 1.0;
    QRectF m_barRect;
    QRectF m_delimiterRect;
    QString m_label;
    QString m_text;
    bool m_reverse = false;
    bool m_isRed = false; // the style set has the class word of this bar
};

} // namespace tamble::client
