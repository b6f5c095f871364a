#pragma once

#include "base/ControlExport.h"
#include "base/SeenWatch.h"
#include "base/SpokenControl.h"

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickprogressbar_p.h>

#include <memory>

namespace tamble::client {

/// Progress with a text and with failure. What it shows of these, and the travel of an indeterminate bar, are made when
/// they are first needed. The background is the trough, the content item the bar, which the padding keeps in its place.
class TAMBLE_CLIENT_CONTROL_EXPORT RProgressBarBase : public QQuickProgressBar, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RProgressBarBase)
    Q_PROPERTY(QString label READ label WRITE setLabel NOTIFY labelChanged FINAL)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(QString shownText READ shownText NOTIFY shownTextChanged FINAL)
    Q_PROPERTY(bool failed READ hasFailed WRITE setFailed NOTIFY failedChanged FINAL)
    Q_PROPERTY(double fraction READ fraction NOTIFY fractionChanged FINAL)
    // Bound to `position` and to `indeterminate`: a connection to their signals takes a kilobyte more.
    /// What tells of each change of the progress (`reached`), and of whether its end is known (`endless`).
    Q_PROPERTY(double reached READ fraction WRITE setReached NOTIFY fractionChanged FINAL)
    Q_PROPERTY(bool endless MEMBER m_isEndless WRITE setEndless NOTIFY endlessChanged FINAL)
    /// Pixels per density-independent unit; 1 by default.
    Q_PROPERTY(qreal unit MEMBER m_unit WRITE setUnit NOTIFY unitChanged FINAL)
    /// How far the indeterminate bar has travelled, 0 to 1.
    Q_PROPERTY(double travel MEMBER m_travel WRITE setTravel NOTIFY travelChanged FINAL)
    /// Whether it travels: it neither has failed nor is out of sight.
    Q_PROPERTY(bool travelling READ isTravelling NOTIFY travellingChanged FINAL)
    /// Of the style: `ssBackground` of the trough and `ssLineColor` of the bar.
    Q_PROPERTY(QColor ssBackground MEMBER m_ssBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssLineColor MEMBER m_ssLineColor NOTIFY ssLineColorChanged)

public:
    explicit RProgressBarBase(QQuickItem *parent = nullptr);

    /// What progresses, for assistive tools; empty by default.
    QString label() const { return m_label; }
    void setLabel(const QString &label);
    /// Shown above the bar, with the whole percent in place of "%p"; empty by default.
    QString text() const { return m_text; }
    void setText(const QString &text);
    /// `text` as it is shown, with the percent.
    QString shownText() const;
    /// Whether what progressed has failed: the bar stops, and an icon says so; false by default.
    bool hasFailed() const { return m_hasFailed; }
    void setFailed(bool failed);
    /// How far `value` has come between `from` and `to`, 0 to 1.
    double fraction() const;
    void setReached(double position);
    void setEndless(bool endless);
    void setUnit(qreal unit);
    void setTravel(double travel);
    bool isTravelling() const { return m_isTravelling; }

    QAccessible::Role spokenRole() const override { return QAccessible::ProgressBar; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void labelChanged();
    void textChanged();
    void shownTextChanged();
    void failedChanged();
    void fractionChanged();
    void endlessChanged();
    void unitChanged();
    void travelChanged();
    void travellingChanged();
    void ssBackgroundChanged();
    void ssLineColorChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void mirrorChange() override;
    void accessibilityActiveChanged(bool active) override;

private:
    int percent() const;
    void placeBar();
    void updateMarks();
    void updateTravel();

    QString m_label;
    QString m_text;
    std::unique_ptr<SeenWatch> m_seen; // once the bar was indeterminate
    QQuickItem *m_marks = nullptr;     // a child, made for the first text or failure
    QColor m_ssBackground;
    QColor m_ssLineColor;
    qreal m_unit = 1.0;
    double m_travel = 0.0;
    bool m_isEndless = false;
    bool m_hasFailed = false;
    bool m_isTravelling = false;
};

} // namespace tamble::client
