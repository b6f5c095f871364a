#pragma once

#include "base/ControlExport.h"
#include "base/LateToolTip.h"
#include "base/PartComponents.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicklabel_p.h>

class QQuickShortcut;

namespace tamble::client {

/// Caption that stands for another item, its buddy: gives it its name, and the focus by a click or by Alt and the
/// letter behind "&".
///
/// Keys: Alt and the marked letter give the buddy the focus.
///
/// The parts that few captions show, a line and a tool tip, are made from their QML files when they are first shown.
class TAMBLE_CLIENT_CONTROL_EXPORT RLabelBase : public QQuickLabel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLabelBase)
    // Hides the text of the base, which is what is shown.
    Q_PROPERTY(QString text READ caption WRITE setCaption NOTIFY captionChanged)
    Q_PROPERTY(QQuickItem *buddy READ buddy WRITE setBuddy NOTIFY buddyChanged FINAL)
    Q_PROPERTY(bool required READ isRequired WRITE setRequired NOTIFY requiredChanged FINAL)
    Q_PROPERTY(bool lineVisible READ lineVisible WRITE setLineVisible NOTIFY lineVisibleChanged FINAL)
    /// Colour of the line along the bottom.
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor NOTIFY lineColorChanged FINAL)
    Q_PROPERTY(QString plainCaption READ plainCaption NOTIFY captionChanged FINAL)

public:
    explicit RLabelBase(QQuickItem *parent = nullptr);

    /// With a buddy, "&" marks the key; "&&" is then one "&". Without one "&" stands for itself.
    QString caption() const { return m_caption; }
    void setCaption(const QString &caption);
    /// The caption as it is read out.
    QString plainCaption() const;
    /// The item that the caption stands for; null by default. A buddy with a name, label, title or text of
    /// its own keeps that.
    QQuickItem *buddy() const { return m_buddy; }
    void setBuddy(QQuickItem *buddy);
    /// Whether a star marks the buddy as one that must be filled in; false by default.
    bool isRequired() const { return m_required; }
    void setRequired(bool required);
    /// Whether a line runs along the bottom; false by default.
    bool lineVisible() const { return m_lineVisible; }
    void setLineVisible(bool visible);
    QColor lineColor() const { return m_lineColor; }
    void setLineColor(const QColor &color);

Q_SIGNALS:
    void captionChanged();
    void buddyChanged();
    void requiredChanged();
    void lineVisibleChanged();
    void lineColorChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;

private:
    void showCaption();
    void nameItems();
    void takeShortcut(QChar key);
    void updateLine();
    void focusBuddy(Qt::FocusReason reason);
    QObject *makePart(Part part);

    QString m_caption;
    QString m_givenName; // to the buddy
    QPointer<QQuickItem> m_buddy;
    QColor m_lineColor;
    QQuickShortcut *m_shortcut = nullptr; // a child, made for the first mnemonic
    QObject *m_line = nullptr;            // likewise, when first shown
    LateToolTip *m_toolTip = nullptr;     // likewise, when an elided caption is first pointed at
    bool m_required = false;
    bool m_lineVisible = false;
};

} // namespace tamble::client
