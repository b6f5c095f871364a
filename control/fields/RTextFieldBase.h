#pragma once

#include "base/ControlExport.h"
#include "fields/FieldEdit.h"
#include "fields/FieldSpeech.h"
#include "style/SheetColors.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicktextfield_p.h>

#include <array>

namespace tamble::client {

/// One line of text that a device stores; FieldEdit is its conversation with the device. What few fields show is made
/// when it is first needed.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldBase : public QQuickTextField, public FieldSpeech
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextFieldBase)
    Q_PROPERTY(tamble::client::FieldEdit *edit READ edit WRITE setEdit NOTIFY editChanged REQUIRED FINAL)
    /// What the field is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    Q_PROPERTY(bool clearable READ isClearable WRITE setClearable NOTIFY clearableChanged FINAL)
    Q_PROPERTY(bool revealable READ isRevealable WRITE setRevealable NOTIFY revealableChanged FINAL)
    Q_PROPERTY(QString iconKey READ iconKey WRITE setIconKey NOTIFY iconKeyChanged FINAL)
    /// Of the style: what is behind the text, and the text itself, also an unacceptable one: `ssBackground`, `ssColor`,
    /// `ssForegroundInvalid`; the line below, also for unacceptable and for unconfirmed texts, and the border:
    /// `ssLineColor`, `ssLineInvalid`, `ssLineUnconfirmed`, `ssBorderColor`; the selection, and the text within:
    /// `ssSelection`, `ssForegroundSelection`; the marks: `ssConfirmIndicator`, `ssInconsistentFlag`.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssColor READ ssColor WRITE setSsColor NOTIFY ssColorChanged)
    Q_PROPERTY(QColor ssForegroundInvalid READ ssForegroundInvalid WRITE setSsForegroundInvalid NOTIFY
                   ssForegroundInvalidChanged)
    Q_PROPERTY(QColor ssLineColor READ ssLineColor WRITE setSsLineColor NOTIFY ssLineColorChanged)
    Q_PROPERTY(QColor ssLineInvalid READ ssLineInvalid WRITE setSsLineInvalid NOTIFY ssLineInvalidChanged)
    Q_PROPERTY(
        QColor ssLineUnconfirmed READ ssLineUnconfirmed WRITE setSsLineUnconfirmed NOTIFY ssLineUnconfirmedChanged)
    Q_PROPERTY(QColor ssBorderColor READ ssBorderColor WRITE setSsBorderColor NOTIFY ssBorderColorChanged)
    Q_PROPERTY(QColor ssSelection READ ssSelection WRITE setSsSelection NOTIFY ssSelectionChanged)
    Q_PROPERTY(QColor ssForegroundSelection READ ssForegroundSelection WRITE setSsForegroundSelection NOTIFY
                   ssForegroundSelectionChanged)
    Q_PROPERTY(
        QColor ssConfirmIndicator READ ssConfirmIndicator WRITE setSsConfirmIndicator NOTIFY ssConfirmIndicatorChanged)
    Q_PROPERTY(
        QColor ssInconsistentFlag READ ssInconsistentFlag WRITE setSsInconsistentFlag NOTIFY ssInconsistentFlagChanged)

public:
    explicit RTextFieldBase(QQuickItem *parent = nullptr);
    ~RTextFieldBase() override;

    /// The conversation with the device, whose properties the field has as its own.
    FieldEdit *edit() const { return m_edit; }
    void setEdit(FieldEdit *edit);
    /// Whether a button takes the whole text away; false by default.
    bool isClearable() const { return m_isClearable; }
    void setClearable(bool clearable);
    /// Whether a button shows what is typed where the echo hides it; false by default.
    bool isRevealable() const { return m_isRevealable; }
    void setRevealable(bool revealable);
    /// Picture in front of the text; none by default.
    QString iconKey() const { return m_iconKey; }
    void setIconKey(const QString &key);

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssColor() const { return m_colors.color(Color); }
    void setSsColor(const QColor &color) { m_colors.setColor(Color, color); }
    QColor ssForegroundInvalid() const { return m_colors.color(ForegroundInvalid); }
    void setSsForegroundInvalid(const QColor &color) { m_colors.setColor(ForegroundInvalid, color); }
    QColor ssLineColor() const { return m_colors.color(LineColor); }
    void setSsLineColor(const QColor &color) { m_colors.setColor(LineColor, color); }
    QColor ssLineInvalid() const { return m_colors.color(LineInvalid); }
    void setSsLineInvalid(const QColor &color) { m_colors.setColor(LineInvalid, color); }
    QColor ssLineUnconfirmed() const { return m_colors.color(LineUnconfirmed); }
    void setSsLineUnconfirmed(const QColor &color) { m_colors.setColor(LineUnconfirmed, color); }
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

    /// Shows the text, or hides it again as the page's `echoMode` did.
    Q_INVOKABLE void reveal(bool shown);
    /// Pastes from the clipboard, in place of the selection.
    Q_INVOKABLE void paste();
    /// Takes the whole text away, as typing does.
    Q_INVOKABLE void clearByUser();

    QAccessible::Role spokenRole() const override { return QAccessible::EditableText; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void ssBackgroundChanged();
    void ssColorChanged();
    void ssForegroundInvalidChanged();
    void ssLineColorChanged();
    void ssLineInvalidChanged();
    void ssLineUnconfirmedChanged();
    void ssBorderColorChanged();
    void ssSelectionChanged();
    void ssForegroundSelectionChanged();
    void ssConfirmIndicatorChanged();
    void ssInconsistentFlagChanged();
    void editChanged();
    void labelChanged();
    void clearableChanged();
    void revealableChanged();
    void iconKeyChanged();
    /// `valueEdited` and `valueCommitted`, together: the user has entered this.
    void valueEdited(const QVariant &value);
    void valueCommitted(const QVariant &value);
    /// What was typed was taken back.
    void editCanceled();
    /// Enter was pressed on a text that is not acceptable.
    void rejected(const QString &text, const QString &reason);
    /// Another value has come while something was typed; Esc shows it.
    void valueWaits();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QString spokenHint() const override { return placeholderText(); }
    enum ColorName : std::size_t {
        Background,
        Color,
        ForegroundInvalid,
        LineColor,
        LineInvalid,
        LineUnconfirmed,
        BorderColor,
        Selection,
        ForegroundSelection,
        ConfirmIndicator,
        InconsistentFlag
    };
    static const std::array<SheetColors::Source, 11> colorSources;

    void updateHint();
    void updateFrame();
    void needButtons();

    SheetColors m_colors;

    QObject *m_hint = nullptr; // these are children, made when first shown
    QObject *m_buttons = nullptr;
    QObject *m_icon = nullptr;
    QString m_iconKey;
    bool m_isClearable = false;
    bool m_isRevealable = false;
    EchoMode m_hidingEcho = Password; ///< What hid a text that is shown at present.
};

} // namespace tamble::client
