#pragma once

#include "base/ControlExport.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickrectangle_p.h>

namespace tamble::client {

/// Rectangle behind a control, with a bar along one edge and the frame of the keyboard focus.
///
/// Most controls of a page never show either, so both are made from their QML files when they are first shown, or when
/// a page reaches for `line`.
class TAMBLE_CLIENT_CONTROL_EXPORT RControlBackground : public QQuickRectangle
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RControlBackground)
    Q_PROPERTY(bool lineVisible READ lineVisible WRITE setLineVisible NOTIFY lineVisibleChanged FINAL)
    /// Edge that the bar lies at.
    Q_PROPERTY(Qt::Edge lineEdge MEMBER m_lineEdge NOTIFY lineEdgeChanged FINAL)
    /// Distance in pixels of the bar's ends from the corners.
    Q_PROPERTY(qreal lineInset MEMBER m_lineInset NOTIFY lineInsetChanged FINAL)
    Q_PROPERTY(QQuickRectangle *line READ line CONSTANT FINAL)
    Q_PROPERTY(bool focusVisible READ focusVisible WRITE setFocusVisible NOTIFY focusVisibleChanged FINAL)

public:
    explicit RControlBackground(QQuickItem *parent = nullptr);

    /// Whether the bar shows; false by default.
    bool lineVisible() const { return m_lineVisible; }
    void setLineVisible(bool visible);
    /// The bar along `lineEdge` (the bottom by default), `lineInset` pixels short of both its ends, in the colour
    /// `ssLineColor` of the control whose background this is. Null outside of QML.
    QQuickRectangle *line();
    /// Whether the control has the keyboard focus; false by default.
    bool focusVisible() const { return m_focusVisible; }
    void setFocusVisible(bool visible);

Q_SIGNALS:
    void lineVisibleChanged();
    void lineEdgeChanged();
    void lineInsetChanged();
    void focusVisibleChanged();

private:
    Qt::Edge m_lineEdge = Qt::BottomEdge;
    qreal m_lineInset = 0.0;
    QQuickRectangle *m_line = nullptr;  // a child, made on demand
    QQuickItem *m_focusFrame = nullptr; // likewise
    bool m_lineVisible = false;
    bool m_isMakingLine = false;
    bool m_focusVisible = false;
};

} // namespace tamble::client
