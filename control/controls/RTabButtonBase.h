#pragma once

#include "base/ControlExport.h"
#include "controls/FocusRow.h"
#include "controls/RButtonBase.h"

#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// The behaviour of tabs. Those with a common parent are a row, which is one stop of the Tab key: it reaches the
/// selected tab, and leaves the row from any.
///
/// Keys: Left and Right move the focus within the row, Home and End to its ends. Space and Enter choose, Delete asks to
/// close a closable tab.
class TAMBLE_CLIENT_CONTROL_EXPORT RTabButtonBase : public tamble::client::RButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTabButtonBase)
    Q_PROPERTY(QString iconKey READ iconKey WRITE setIconKey NOTIFY iconKeyChanged FINAL)
    Q_PROPERTY(bool closable READ isClosable WRITE setClosable NOTIFY closableChanged FINAL)
    Q_PROPERTY(bool modified READ isModified WRITE setModified NOTIFY modifiedChanged FINAL)
    Q_PROPERTY(QString badge READ badge WRITE setBadge NOTIFY badgeChanged FINAL)
    Q_PROPERTY(bool marked READ isMarked NOTIFY markedChanged FINAL)
    Q_PROPERTY(qreal endSpace READ endSpace NOTIFY endSpaceChanged FINAL)
    /// Of the style: `ssBorderColor` and `ssBorderVisible` of the frame along the edges, `ssBorderFocus`, its colour
    /// with the keyboard focus, and `ssLineAtTop`, the edge that the bar lies at; transparent and false where no sheet
    /// says it.
    Q_PROPERTY(QColor ssBorderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged FINAL)
    Q_PROPERTY(bool ssBorderVisible READ borderVisible WRITE setBorderVisible NOTIFY borderVisibleChanged FINAL)
    Q_PROPERTY(QColor ssBorderFocus READ borderFocus WRITE setBorderFocus NOTIFY borderFocusChanged FINAL)
    Q_PROPERTY(bool ssLineAtTop READ lineAtTop WRITE setLineAtTop NOTIFY lineAtTopChanged FINAL)

public:
    explicit RTabButtonBase(QQuickItem *parent = nullptr);

    /// Name of the picture in the icon set, in tabs that show one; empty, the default, for none.
    QString iconKey() const { return m_iconKey; }
    void setIconKey(const QString &key);
    /// Whether the user can ask to close the tab; false by default.
    bool isClosable() const { return m_isClosable; }
    void setClosable(bool closable);
    /// Whether what the tab stands for has changes that are not stored; false by default.
    bool isModified() const { return m_isModified; }
    void setModified(bool modified);
    /// A short text in a mark of its own, such as a number of faults; empty, the default, for none.
    QString badge() const { return m_badge; }
    void setBadge(const QString &badge);

    /// Whether something stands at the end: the badge, the button that closes, or the sign for "mixed".
    bool isMarked() const { return m_isClosable || !m_badge.isEmpty() || !isConsistent(); }
    /// Width in pixels that dot and marks take at the end.
    qreal endSpace() const { return m_endSpace; }

    /// Asks the page to close the tab. When it does so at once, the focus stays in the row.
    Q_INVOKABLE void requestClose();

    QColor borderColor();
    void setBorderColor(const QColor &color);
    bool borderVisible();
    void setBorderVisible(bool on);
    QColor borderFocus();
    void setBorderFocus(const QColor &color);
    bool lineAtTop();
    void setLineAtTop(bool on);

    QAccessible::Role spokenRole() const override { return QAccessible::PageTab; }
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void iconKeyChanged();
    void closableChanged();
    void modifiedChanged();
    void badgeChanged();
    void markedChanged();
    void endSpaceChanged();
    void borderColorChanged();
    void borderVisibleChanged();
    void borderFocusChanged();
    void lineAtTopChanged();
    /// The user wants the tab closed; whether that happens is up to the page.
    void closeRequested();

protected:
    void selectionChange() override;
    void styleChange() override;
    void componentComplete() override;
    void paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding) override;
    void mirrorChange() override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    FocusRow row() const;
    void passFocusToSelected();
    void updateDot();
    void updateMarks();
    void updateEndSpace();
    void updatePadding();

    // What the page has set, in place of what the sheets say.
    std::optional<QColor> m_borderColor;
    std::optional<bool> m_borderVisible;
    std::optional<QColor> m_borderFocus;
    std::optional<bool> m_lineAtTop;
    QString m_iconKey;
    QString m_badge;
    QQuickItem *m_marks = nullptr; // a child, made when first needed
    QQuickItem *m_dot = nullptr;   // likewise
    qreal m_endSpace = 0.0;
    bool m_isClosable = false;
    bool m_isModified = false;
};

} // namespace tamble::client
