#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QSizeF>

class QQuickItem;

namespace tamble::client {

class RDialogBase;

/// Where a dialog stands in its window: in the middle, or as far from there as the user has dragged it, but inside.
class DialogPlace : public QObject
{
public:
    /// A member of the dialog.
    explicit DialogPlace(RDialogBase &dialog);

    /// What covers the window that the dialog was last opened in; null before.
    QQuickItem *overlay() const { return m_overlay; }
    /// The most of the window that a dialog takes, in pixels.
    QSizeF maximumSize() const;

    /// Puts the dialog above all of its window.
    void enterWindow();
    /// Takes back what the user has dragged.
    void centre();
    /// A drag begins, and has come so far, in pixels.
    void beginMove();
    void moveBy(QPointF distance);
    /// The size of the dialog or its window has changed.
    void update();

private:
    QPointF middle() const;

    RDialogBase &m_dialog;
    QPointer<QQuickItem> m_overlay;
    QPointF m_shift; ///< From the middle of the window, in pixels.
    QPointF m_shiftAtPress;
};

} // namespace tamble::client
