#include "FocusScroller.h"
#include "support/TestProgram.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickView>

namespace {

constexpr auto page = R"(
    import QtQuick
    import Scrolling

    Flickable {
        id: view
        width: 100
        height: 100
        contentWidth: 300
        contentHeight: 1000

        FocusScroller { view: view; margin: 5 }
        Rectangle { objectName: "first"; y: 10; width: 50; height: 20; activeFocusOnTab: true }
        Rectangle { objectName: "far"; x: 220; y: 500; width: 50; height: 20; activeFocusOnTab: true }
        Rectangle { objectName: "last"; y: 980; width: 50; height: 20; activeFocusOnTab: true }
        Rectangle { objectName: "tall"; y: 300; width: 50; height: 200; activeFocusOnTab: true }
        Rectangle {
            objectName: "fader"
            property Item handle: Item { parent: view.contentItem; y: 450; width: 50; height: 20 }
            y: 300; width: 50; height: 200
        }
    })";

} // namespace

class tst_FocusScroller : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qmlRegisterType<FocusScroller>("Scrolling", 1, 0, "FocusScroller");
        QQmlComponent component(m_view.engine());
        component.setData(page, {});
        m_flickable = qobject_cast<QQuickItem *>(component.create());
        QVERIFY2(m_flickable, qPrintable(component.errorString()));
        m_view.setContent({}, nullptr, m_flickable);
        m_view.show();
    }

    void itemWithTheFocusIsSeen_data()
    {
        QTest::addColumn<QPointF>("position");
        QTest::newRow("first") << QPointF(0.0, 5.0);
        QTest::newRow("far") << QPointF(175.0, 425.0);
        // The end of the content stops it.
        QTest::newRow("last") << QPointF(0.0, 900.0);
        // From the beginning, since the whole has no room.
        QTest::newRow("tall") << QPointF(0.0, 295.0);
        QTest::newRow("fader") << QPointF(0.0, 375.0);
    }
    void itemWithTheFocusIsSeen()
    {
        QFETCH(const QPointF, position);
        m_flickable->setProperty("contentX", 0.0);
        m_flickable->setProperty("contentY", position.y() > 400.0 ? 0.0 : 600.0);
        m_view.contentItem()->forceActiveFocus();
        m_flickable->findChild<QQuickItem *>(QString::fromLatin1(QTest::currentDataTag()))->forceActiveFocus();
        QTRY_COMPARE(QPointF(m_flickable->property("contentX").toReal(), m_flickable->property("contentY").toReal()),
                     position);
    }

private:
    QQuickView m_view;
    QQuickItem *m_flickable = nullptr;
};

template struct TestClass<tst_FocusScroller>;
#include "tst_FocusScroller.moc"
