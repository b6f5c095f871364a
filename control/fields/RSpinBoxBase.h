#pragma once

#include "base/ControlExport.h"
#include "fields/FieldSpeech.h"
#include "fields/HeldSpinButton.h"
#include "fields/NumberSteps.h"
#include "style/SheetColors.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickcontrol_p.h>

#include <array>

namespace tamble::client {

class SpinButtons;

/// A number with two buttons; FieldEdit is its conversation with the device, NumberSteps knows its range.
///
/// A held button steps after 500 ms, then every 60 ms, and after 20 such steps by pages while Ctrl is held. Shift and
/// Ctrl count as for the keys.
class TAMBLE_CLIENT_CONTROL_EXPORT RSpinBoxBase : public QQuickControl, public FieldSpeech
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSpinBoxBase)
    Q_PROPERTY(tamble::client::FieldEdit *edit READ edit WRITE setEdit NOTIFY editChanged REQUIRED FINAL)
    Q_PROPERTY(tamble::client::NumberSteps *steps READ steps WRITE setSteps NOTIFY stepsChanged REQUIRED FINAL)
    /// What the box is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    Q_PROPERTY(bool buttonsVisible READ buttonsVisible WRITE setButtonsVisible NOTIFY buttonsVisibleChanged FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    Q_PROPERTY(qreal buttonWidth READ buttonWidth NOTIFY unitChanged FINAL)
    /// Whether a held button goes on; true by default.
    Q_PROPERTY(bool autoRepeat MEMBER m_autoRepeat NOTIFY autoRepeatChanged FINAL)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix NOTIFY prefixChanged FINAL)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix NOTIFY suffixChanged FINAL)
    Q_PROPERTY(int pressedButton READ pressedButton NOTIFY pressedButtonChanged FINAL)
    /// Of the style: what is behind the number, the number, the line below and the border: `ssBackground`, `ssColor`,
    /// `ssLineColor`, `ssBorderColor`; the selection, and the text within: `ssSelection`, `ssForegroundSelection`; the
    /// marks: `ssConfirmIndicator`, `ssInconsistentFlag`.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssColor READ ssColor WRITE setSsColor NOTIFY ssColorChanged)
    Q_PROPERTY(QColor ssLineColor READ ssLineColor WRITE setSsLineColor NOTIFY ssLineColorChanged)
    Q_PROPERTY(QColor ssBorderColor READ ssBorderColor WRITE setSsBorderColor NOTIFY ssBorderColorChanged)
    Q_PROPERTY(QColor ssSelection READ ssSelection WRITE setSsSelection NOTIFY ssSelectionChanged)
    Q_PROPERTY(QColor ssForegroundSelection READ ssForegroundSelection WRITE setSsForegroundSelection NOTIFY
                   ssForegroundSelectionChanged)
    Q_PROPERTY(
        QColor ssConfirmIndicator READ ssConfirmIndicator WRITE setSsConfirmIndicator NOTIFY ssConfirmIndicatorChanged)
    Q_PROPERTY(
        QColor ssInconsistentFlag READ ssInconsistentFlag WRITE setSsInconsistentFlag NOTIFY ssInconsistentFlagChanged)
    /// The colours of an unacceptable number, those of text fields: `ssForegroundInvalid`, `ssLineInvalid`.
    Q_PROPERTY(QColor ssForegroundInvalid READ ssForegroundInvalid WRITE setSsForegroundInvalid NOTIFY
                   ssForegroundInvalidChanged)
    Q_PROPERTY(QColor ssLineInvalid READ ssLineInvalid WRITE setSsLineInvalid NOTIFY ssLineInvalidChanged)

public:
    explicit RSpinBoxBase(QQuickItem *parent = nullptr);
    ~RSpinBoxBase() override;

    /// The conversation with the device.
    FieldEdit *edit() const { return m_edit; }
    void setEdit(FieldEdit *edit);
    /// The range and the steps.
    NumberSteps *steps() const { return m_steps; }
    void setSteps(NumberSteps *steps);
    /// Whether the buttons show; true by default.
    bool buttonsVisible() const { return m_buttonsVisible; }
    void setButtonsVisible(bool visible);
    /// Pixels of one density-independent unit.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Width in pixels of one button, "minus" or "plus"; both stand at the end.
    qreal buttonWidth() const { return 32.0 * m_unit; }
    /// `prefix` and `suffix`: text right before the number, and after it with a small gap, which is not part of what is
    /// typed; none by default.
    QString prefix() const { return m_prefix; }
    void setPrefix(const QString &prefix);
    QString suffix() const { return m_suffix; }
    void setSuffix(const QString &suffix);
    /// -1 while "minus" is held, 1 for "plus", else 0.
    int pressedButton() const { return m_held.button(); }

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssColor() const { return m_colors.color(Color); }
    void setSsColor(const QColor &color) { m_colors.setColor(Color, color); }
    QColor ssLineColor() const { return m_colors.color(LineColor); }
    void setSsLineColor(const QColor &color) { m_colors.setColor(LineColor, color); }
    QColor ssBorderColor() const { return m_colors.color(BorderColor); }
    void setSsBorderColor(const QColor &color) { m_colors.setColor(BorderColor, color); }
    QColor ssSelection() const { return m_colors.color(Selection); }
    void setSsSelection(const QColor &color) { m_colors.setColor(Selection, color); }
    QColor ssForegroundSelection() const { return m_colors.color(ForegroundSelection); }
    void setSsForegroundSelection(const QColor &color) { m_colors.setColor(ForegroundSelection, color); }
    QColor ssConfirmIndicator() const { return m_colors.color(ConfirmIndicator); }
    void setSsConfirmIndicator(const QColor &color) { m_colors.setColor(ConfirmIndicator, color); }
    QColor ssInconsistentFlag() const { return m_colors.color(InconsistentFlag); }
    void setSsInconsistentFlag(const QColor &color) { m_colors.setColor(InconsistentFlag, color); }

    QColor ssForegroundInvalid() const { return m_foregroundInvalid.isValid() ? m_foregroundInvalid : ssColor(); }
    void setSsForegroundInvalid(const QColor &color);
    QColor ssLineInvalid() const { return m_lineInvalid.isValid() ? m_lineInvalid : ssLineColor(); }
    void setSsLineInvalid(const QColor &color);

    /// For assistive tools: sets a number as the user does.
    Q_INVOKABLE void requestValue(const QVariant &value);

    QAccessible::Role spokenRole() const override { return QAccessible::SpinBox; }
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void ssBackgroundChanged();
    void ssColorChanged();
    void ssLineColorChanged();
    void ssBorderColorChanged();
    void ssSelectionChanged();
    void ssForegroundSelectionChanged();
    void ssConfirmIndicatorChanged();
    void ssInconsistentFlagChanged();
    void ssForegroundInvalidChanged();
    void ssLineInvalidChanged();
    void editChanged();
    void stepsChanged();
    void labelChanged();
    void buttonsVisibleChanged();
    void unitChanged();
    void autoRepeatChanged();
    void prefixChanged();
    void suffixChanged();
    void pressedButtonChanged();
    /// The user has entered this, or made a step to it.
    void valueEdited(double value);
    /// What the user entered, or the last step of a gesture.
    void valueCommitted(double value);
    /// What was typed was taken back.
    void editCanceled();
    /// Enter was pressed on a text that is not acceptable.
    void rejected(const QString &text, const QString &reason);
    /// A step of a mixed box, in units of `stepSize`: the page moves each device from its own value.
    void stepped(double steps);

protected:
    void componentComplete() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void accessibilityActiveChanged(bool active) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void mirrorChange() override;

private:
    enum ColorName : std::size_t {
        Background,
        Color,
        LineColor,
        BorderColor,
        Selection,
        ForegroundSelection,
        ConfirmIndicator,
        InconsistentFlag
    };
    static const std::array<SheetColors::Source, 8> colorSources;

    int buttonAt(qreal x) const;
    void updateFrame();
    void stepByButton();
    void release();
    void needAffixes();
    void updateButtons();
    void onInvalid();

    SheetColors m_colors;
    QColor m_foregroundInvalid;
    QColor m_lineInvalid;
    QPointer<NumberSteps> m_steps;
    SpinButtons *m_buttons = nullptr; // these are children, made when first shown
    QObject *m_affixes = nullptr;
    QObject *m_invalidLook = nullptr;
    QString m_prefix;
    QString m_suffix;
    qreal m_unit = 1.0;
    HeldSpinButton m_held;
    bool m_buttonsVisible = true;
    bool m_autoRepeat = true;
};

} // namespace tamble::client
