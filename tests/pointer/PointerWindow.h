#pragma once

#include "support/TestProgram.h"

#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

/// A window on the screen with an item of 100 × 100 at (50, 50), and the mouse over it.
class PointerWindow : public QQuickWindow
{
public:
    static constexpr QPoint middle{100, 100}; ///< of the item
    static constexpr QPoint outside{10, 10};  ///< in the window beside it

    PointerWindow()
    {
        // Not where the windows before it were, since the mouse is not moved to where it is.
        static int windows = 0;
        setGeometry(200 * (windows++ % 16), 0, 200, 200);
        box.setParentItem(contentItem());
        box.setPosition({50, 50});
        box.setSize({100, 100});
        show();
        if (!QTest::qWaitForWindowExposed(this))
            qWarning("no window");
    }

    void moveTo(const QPoint &point) { QTest::mouseMove(this, point); }

    QQuickItem box;
};
