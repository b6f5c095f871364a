#include "TambleClientControlModule.h"
#include "support/ColourMetrics.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QHash>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <algorithm>

using namespace tamble::client;

namespace {

/// Greatest contrast of any pixel with the commonest one, which is taken for the ground of a text.
double textContrast(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const auto isRarer = [&](QRgb a, QRgb b) { return counts[a] < counts[b]; };
    const QList<QRgb> colours = counts.keys();
    const QColor ground(*std::max_element(colours.begin(), colours.end(), isRarer));
    double best = 1.0;
    for (const QRgb colour : colours)
        best = std::max(best, contrastRatio(ground, QColor(colour)));
    return best;
}

constexpr const char *pageText = R"(
import QtQuick
import QtQuick.Controls.Basic as Basic
import QtQuick.Controls.Fusion as Fusion
import TambleClient.Control 1.0

RApplicationWindow {
    id: window
    property alias page: page
    appStyleSheetKey: ""
    width: 1400; height: 1400
    font.pixelSize: 32 // strokes that have their full colour
    visible: true

    Rectangle { anchors.fill: parent; color: window.palette.window }
    Flow {
        id: page
        anchors.fill: parent
        Basic.Label { objectName: "label"; text: "III" }
        Basic.Button { objectName: "button"; text: "III" }
        Basic.Button { objectName: "checked button"; text: "III"; checked: true }
        Basic.CheckBox { objectName: "check box"; text: "III" }
        Basic.ComboBox { objectName: "button combo box"; model: ["III"] }
        Basic.GroupBox { objectName: "group box"; title: "III" }
        Basic.ItemDelegate { objectName: "entry"; text: "III" }
        Basic.ItemDelegate { objectName: "highlighted entry"; text: "III"; highlighted: true }
        Basic.MenuItem { objectName: "menu item"; text: "III"; highlighted: true }
        Basic.RadioButton { objectName: "radio button"; text: "III" }
        Basic.SpinBox { objectName: "spin box"; value: 111 }
        Basic.TabButton { objectName: "tab"; text: "III"; width: 80 }
        Basic.TextArea { objectName: "text area"; text: "III" }
        Basic.TextField { objectName: "text field"; text: "III" }
        Basic.TextField { objectName: "hint"; placeholderText: "III" }
        Fusion.Button { objectName: "fusion button"; text: "III" }
        Fusion.CheckBox { objectName: "fusion check box"; text: "III" }
        Fusion.ComboBox { objectName: "fusion button combo box"; model: ["III"] }
        Fusion.ItemDelegate { objectName: "fusion entry"; text: "III"; highlighted: true }
        Fusion.RadioButton { objectName: "fusion radio button"; text: "III" }
        Fusion.SpinBox { objectName: "fusion spin box"; value: 111 }
        Fusion.TextField { objectName: "fusion text field"; text: "III" }
    }
}
)";

} // namespace

/// Qt's own controls in a window that has its colours from the sheets.
class tst_WindowPalette : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&m_engine, "TambleClient.Control");
        m_page = objectFrom(m_engine, pageText);
        QVERIFY(m_page);
        QVERIFY(QTest::qWaitForWindowExposed(window()));
    }

    void texts_data()
    {
        // The light sheet has buttons of 2.6 and captions of 1.9.
        const auto row = rowsOf([this](const QString &theme, const QColor &ground, double onButtons, double hints) {
            QMetaObject::invokeMethod(window(), "setTheme", Q_ARG(QString, theme));
            const QImage picture = window()->grabWindow();
            QCOMPARE(picture.pixelColor(picture.width() - 1, picture.height() - 1), ground);
            const auto *page = m_page->property("page").value<QQuickItem *>();
            const QList<QQuickItem *> controls = page->childItems();
            for (const QQuickItem *control : controls) {
                // The bounding rectangle of an editor is that of its text.
                const QRectF place = control->mapRectToScene({{}, control->size()});
                const double found = textContrast(picture.copy(place.toRect()));
                const bool isButton = control->objectName().contains(QStringLiteral("button")) &&
                                      !control->objectName().contains(QStringLiteral("radio")) &&
                                      !control->objectName().contains(QStringLiteral("checked"));
                // Fusion shades what it is given.
                const bool isShaded = control->objectName().startsWith(QStringLiteral("fusion"));
                const double least = control->objectName() == QStringLiteral("hint") ? hints
                                     : isButton && isShaded                          ? std::min(onButtons, 4.4)
                                     : isButton                                      ? onButtons
                                                                                     : 3.2;
                QVERIFY2(found >= least, qPrintable(QStringLiteral("%1: %2").arg(control->objectName()).arg(found)));
            }
        });
        row("dark", "dark", QColor("#323232"), 4.5, 3.0);
        row("light", "light", QColor("#dcdcdc"), 2.5, 2.5);
        row("contrast-dark", "contrast-dark", Qt::black, 7.0, 7.0);
        row("contrast-light", "contrast-light", Qt::white, 7.0, 7.0);
    }
    void texts() { checkRow(); }

    void openPopupsFollow()
    {
        const auto page = objectFrom(m_engine, R"(
            import QtQuick.Controls.Basic
            import TambleClient.Control 1.0
            RApplicationWindow { id: window; appStyleSheetKey: ''; width: 200; height: 200; visible: true
                property alias field: field
                Dialog { visible: true; palette.button: '#123456'; TextField { id: field } } })");
        QVERIFY(page && QTest::qWaitForWindowExposed(qobject_cast<QWindow *>(page.get())));
        const auto colour = [](const QObject *of, const char *role) {
            return of->property("palette").value<QObject *>()->property(role).value<QColor>();
        };
        const auto *field = page->property("field").value<QQuickItem *>();
        for (const char *theme : {"light", "contrast-dark"}) {
            QMetaObject::invokeMethod(page.get(), "setTheme", Q_ARG(QString, QString::fromLatin1(theme)));
            QCOMPARE(colour(field, "text"), colour(page.get(), "text"));
            QCOMPARE(colour(field, "button"), QColor("#123456"));
        }
    }

    void whatThePageSetsStays()
    {
        const auto page =
            objectFrom(m_engine, "import TambleClient.Control 1.0\n"
                                 "RApplicationWindow { appStyleSheetKey: ''; palette.button: '#123456' }");
        QVERIFY(page);
        const auto colour = [&](const char *role) {
            return page->property("palette").value<QObject *>()->property(role).value<QColor>();
        };
        for (const char *theme : {"light", "dark"}) {
            QMetaObject::invokeMethod(page.get(), "setTheme", Q_ARG(QString, QString::fromLatin1(theme)));
            QCOMPARE(colour("button"), QColor("#123456"));
        }
        QCOMPARE(colour("window"), QColor("#323232"));
        QEvent desktopChange(QEvent::ApplicationPaletteChange);
        QCoreApplication::sendEvent(page.get(), &desktopChange);
        QCoreApplication::processEvents();
        QCOMPARE(colour("window"), QColor("#323232"));
    }

private:
    QQuickWindow *window() const { return qobject_cast<QQuickWindow *>(m_page.get()); }

    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_page;
};

template struct TestClass<tst_WindowPalette>;

#include "tst_WindowPalette.moc"
