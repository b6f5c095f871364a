#include "TambleClientControlModule.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QFile>
#include <QtCore/QMetaProperty>
#include <QtQml/QJSValue>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

#include <memory>

using namespace tamble::client;

namespace {

/// "folder: components;", of which a component of the folder's own name goes without saying.
constexpr char compositeFolders[] =
    "RAccordion: RAccordion RAccordionSectionHeader RAccordionItem; RAppBar: RAppBar RAppBarButton "
    "RAppBarStateButton RAppBarNavButton RAppBarSubNavButton; RApplicationWindow; RAxis; RBodeplot: RBodeplot "
    "RBodeplotGrid RBodeplotGridStyle RBodeplotAxis RBodeplotAxisStyle RBodeplotCurve RBodeplotCurveStyle "
    "RBodeplotFilterPoint RBodeplotFilterPointSelectedStyle RBodeplotFilterPointErrorStyle "
    "RBodeplotFilterPointStyle RLimiterCurve RLimiterCurveStyle RLimiterFilterPoint RLimiterFilterPointStyle "
    "RSimpleCurve RSimpleCurveStyle; RLimiter: RPlotGrid RDragHandler RAxisNumbering RLimiter; RCompressor; "
    "RAGC; RANC; RDucker; RGate; RButton: RButton RButtonIcon RButtonIconLabel RButtonIconLabelH "
    "RButtonIconLabelV RButtonLabelText RButtonRow RButtonSwitch; RBoxShadow; RCell: RCell RCellContainer "
    "RCellGridProperties RCellComboBox RCellButton RCellLabel RCellTabBar RCellTabButton RCellTextField "
    "RCellTextArea RCellSpinBox RCellText; RCheckBox; RComboBox; RDialog; RFader: RFader TransferFunctions; "
    "RFlyout: RFlyoutWindow RFlyoutToolbar RFlyoutToolbarItem; RIcon; RInconsistentButton: "
    "RInconsistentButton RInconsistentButtonSwitch; RInconsistentPopup; RLabel; RListView; RScrollView: "
    "RHorizontalScrollView; RMenu; RMeter; RPane: RPane RPaneSub; RPopupMenu; RProgressBar; RRepeater; "
    "RScreen; RSectionHeader; RSelectionRect; RSpinBox; RStyleEngineSetup; RStyleDebugMouseArea; RTabButton: "
    "RTabButton RTabButtonIcon RTabButtonIconLabelH RTabButtonIconLabelV; RText: RText RTextInput RTextField "
    "RNumberTextField RTextArea; RTheme; RWorksheet; RWorkspace: RWorkspace RWorkspaceItem "
    "RWorkspaceItemValueBar RWorkspaceZoomBar; Shared: RFocusRectangle RDraggableItem; RViewContainer; "
    "RLoadingAnimation;";

QString fileOf(const QString &folder, const QString &name)
{
    const QString file = name == QLatin1String("RScreen") ? QStringLiteral("RScreen2") : name;
    return QStringLiteral("qrc:/qml/%1/%2.qml").arg(folder, file);
}

std::unique_ptr<QQmlComponent> componentOf(QQmlEngine &engine, const QString &body)
{
    auto component = std::make_unique<QQmlComponent>(&engine);
    component->setData("import QtQuick\nimport TambleClient.Control 1.0\n" + body.toUtf8(), QUrl());
    return component;
}

/// Reads all properties of `object` the way scripts do, by enumeration and one by one, and looks into what it gets;
/// returns how many names it met.
int readEverything(QJSEngine &engine, QObject *object)
{
    QStringList names;
    for (int i = 0; i < object->metaObject()->propertyCount(); ++i)
        names.append(QString::fromLatin1(object->metaObject()->property(i).name()));
    QJSValue read = engine.evaluate(QStringLiteral("(function(object, names) {"
                                                   "  let count = 0;"
                                                   "  function look(value) {"
                                                   "    ++count;"
                                                   "    if (value instanceof Object && !(value instanceof Function))"
                                                   "      Object.keys(value);"
                                                   "  }"
                                                   "  for (const name in object) look(object[name]);"
                                                   "  for (const name of names) look(object[name]);"
                                                   "  return count; })"));
    return read.call({engine.toScriptValue(object), engine.toScriptValue(names)}).toInt();
}

} // namespace

class tst_TypeCatalogue : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&m_engine, "TambleClient.Control");
        // Components read the theme object as soon as they are made.
        const std::unique_ptr<QObject> selector(
            componentOf(m_engine, QStringLiteral("RThemeSelector { themeComponent: Component { RTheme {} } }"))
                ->create());
        QVERIFY(selector);

        QFile list(QStringLiteral(TAMBLE_TEST_DATA "/absent-composites.txt"));
        QVERIFY(list.open(QFile::ReadOnly));
        m_absent = QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    void composites_data()
    {
        const Rows<QString> row;
        int count = 0;
        for (const QString &entry : QString::fromLatin1(compositeFolders).split(u';', Qt::SkipEmptyParts)) {
            const QString folder = entry.trimmed().section(u':', 0, 0);
            const QString names = entry.contains(u':') ? entry.section(u':', 1).trimmed() : folder;
            for (const QString &name : names.split(u' ')) {
                row(qPrintable(name), fileOf(folder, name));
                ++count;
            }
        }
        QCOMPARE(count, 104);
    }

    void composites()
    {
        const auto &[file] = Rows<QString>::current();
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const auto component = componentOf(m_engine, name + QStringLiteral(" {}"));

        if (m_absent.contains(name)) {
            QVERIFY2(component->errorString().contains(name + QStringLiteral(" unavailable")) &&
                         component->errorString().contains(file + QStringLiteral(":-1 No such file or directory")),
                     qPrintable(component->errorString()));
            return;
        }
        const std::unique_ptr<QObject> object(component->create());
        QVERIFY2(object, qPrintable(component->errorString()));
        const QString type = QString::fromLatin1(object->metaObject()->className());
        QVERIFY2(type.startsWith(file.section(u'/', -1).chopped(4) + QStringLiteral("_QML")), qPrintable(type));
        QVERIFY(readEverything(m_engine, object.get()) > 2);
    }

    void absentListIsTrue()
    {
        // These names have no file, ever.
        const QString styles = QStringLiteral(
            "RBodeplotAxisStyle RBodeplotCurveStyle RBodeplotFilterPointErrorStyle RBodeplotFilterPointSelectedStyle "
            "RBodeplotFilterPointStyle RBodeplotGridStyle RLimiterCurveStyle RLimiterFilterPointStyle "
            "RSimpleCurveStyle");
        QStringList sorted = m_absent;
        sorted.sort();
        sorted.removeDuplicates();
        QCOMPARE(m_absent, sorted);
        for (const QString &style : styles.split(u' '))
            QVERIFY2(m_absent.contains(style), qPrintable(style));
        for (const QString &name : std::as_const(m_absent))
            QVERIFY2(componentOf(m_engine, name + QStringLiteral(" {}"))->isError(),
                     qPrintable(name + " has its file now"));
    }

    void creatableNatives_data()
    {
        const auto row = rowsOf([this](const QString &className) {
            const auto component =
                componentOf(m_engine, QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(" {}"));
            const std::unique_ptr<QObject> object(component->create());
            QVERIFY2(object, qPrintable(component->errorString()));
            QCOMPARE(QString::fromLatin1(object->metaObject()->className()), className);
            QVERIFY(readEverything(m_engine, object.get()) > 2);
        });
        const QString differentClasses = QStringLiteral(
            "RAxisTemplate=RAxis RBodeplotTemplate=RBodeplot RBodeplotGridTemplate=RBodeplotGrid "
            "RBodeplotAxisTemplate=RBodeplotAxis RBodeplotCurveTemplate=RBodeplotCurve "
            "RLimiterCurveTemplate=RLimiterCurve RSimpleCurveTemplate=RSimpleCurve RLinePlotter=LinePlotter "
            "RGraphPlotter=GraphPlotter RLineCalculator=LineCalculator RLimiterCalculator=LimiterCalculator "
            "RNumberingHelper=NumberingHelper RCompressorCalculator=CompressorCalculator "
            "RAGCCalculator=AGCCalculator RANCCalculator=ANCCalculator "
            "RNoiseGateCalculator=NoiseGateCalculator RDuckerCalculator=DuckerCalculator "
            "RScreenTemplate=RScreen RStyleEngine=StyleEngineSetup RStylesDirWatcher=StylesDirWatcher "
            "RStyleChecker=StyleChecker RThemeSelector=ThemeSelector RWorksheetBase=WorksheetBase "
            "RWorkspaceBase=WorkspaceBase RWorkspaceItemBase=WorkspaceItemBase "
            "RDoubleValueConverter=DoubleValueConverter");
        const QString sameName = QStringLiteral(
            "RValueConverter RBodeplotCalculationItem RBodeplotEqFilter RBodeplotAsymmetricEqFilter "
            "RBodeplotXOverFilter RBodeplotFIRFilter RScaleHelper RConstantGridLineCalculator RGrid "
            "RGridLayout RMeterBase RWorkspaceSelection RTextFieldPinValidator RMouseDetection RMouseCursor "
            "RSortFilterProxyModel RStringRuleValidator RMessageBox");
        const QString scope = QStringLiteral("tamble::client::");
        for (const QString &pair : differentClasses.split(u' '))
            row(qPrintable(pair.section(u'=', 0, 0)), scope + pair.section(u'=', 1));
        for (const QString &name : sameName.split(u' '))
            row(qPrintable(name), scope + name);
        // Without a meta-object of their own.
        row("RTextFieldDoubleValidator", "QDoubleValidator");
        row("RTextFieldIntValidator", "QIntValidator");
        row("RTextFieldIpAddressValidator", "QValidator");
    }
    void creatableNatives() { checkRow(); }

    // What no page makes: shared pieces, singletons and attached objects.
    void othersCanBeRead_data()
    {
        const auto row = rowsOf([this](const QString &expression) {
            const auto component = componentOf(m_engine, QStringLiteral("Item { id: root; property QtObject object: ") +
                                                             expression + QStringLiteral(" }"));
            const std::unique_ptr<QObject> page(component->create());
            QVERIFY2(page, qPrintable(component->errorString()));
            QVERIFY(readEverything(m_engine, page->property("object").value<QObject *>()) > 2);
        });
        for (const char *name : {"RButtonBase", "RControlBackground", "RFaderBase", "RMeterBar", "RMenuBase",
                                 "RLabelBase", "RTabButtonBase", "RTintedImage", "RBoxShadowBase"})
            row(name, QString::fromLatin1(name) + QStringLiteral(" {}"));
        for (const char *name : {"RMouseEventSpy", "RPlotRules", "RTransferTable", "RThemeValues"})
            row(name, QString::fromLatin1(name));
        for (const char *name : {"RStyleSet", "RStyleSet.props", "RStyleSet.stateHelper"})
            row(name, QStringLiteral("root.") + QString::fromLatin1(name));
    }
    void othersCanBeRead() { checkRow(); }

    void uncreatable_data()
    {
        const auto row = rowsOf([this](const QString &reason) {
            const auto component =
                componentOf(m_engine, QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(" {}"));
            QVERIFY(component->isError());
            QCOMPARE(component->errors().constFirst().description(), reason);
        });
        row("RStyleSet", "StyleSet is exposed as an attached property");
        row("RStyleSetProps", "Exposed as RStyleSet.props");
        row("RStringRuleValidatorRule", "You cannot create an instance of the Enums.");
        for (const char *name : {"RBodeplotEqTypeEnum", "RBodeplotXOverTypeEnum", "RBodeplotXOverCategoryEnum",
                                 "RBodeplotSlopeTypeEnum", "RBodeplotFIRTypeEnum", "RBodeplotDelayUnitEnum",
                                 "RBodeplotAxisScaleEnum", "RBodeplotZoomEnum", "RBodeplotSpectrumEnum"})
            row(name, "Element is not creatable."); // what the engine says for an empty reason
    }
    void uncreatable() { checkRow(); }

    void enumValues()
    {
        const auto component = componentOf(
            m_engine,
            QStringLiteral("Item { property var values: [RBodeplotEqTypeEnum.EQ_SYMMETRICAL_Q,"
                           "RBodeplotEqTypeEnum.ASYMMETRIC, RBodeplotXOverTypeEnum.XOVER_LINKWITZ_TWENTYFOUR_DB,"
                           "RBodeplotXOverCategoryEnum.XOVERCATEGORY_HIPASS,"
                           "RBodeplotSlopeTypeEnum.SLOPE_TWELVE_DB_SLOPE, RBodeplotFIRTypeEnum.FIR_DEF_DC,"
                           "RBodeplotDelayUnitEnum.UNIT_S, RBodeplotAxisScaleEnum.LOGARITHMIC,"
                           "RBodeplotZoomEnum.ZOOM_IN, RBodeplotSpectrumEnum.PHASE, RLinePlotter.Vertical,"
                           "RStringRuleValidatorRule.RULE_PATTERN] }"));
        const std::unique_ptr<QObject> object(component->create());
        QVERIFY2(object, qPrintable(component->errorString()));
        const QVariantList expected = {0, 12, 17, 1, 2, 123, 1, 1, 1, 1, 1, 9};
        QCOMPARE(object->property("values").toList(), expected);
    }

private:
    QQmlEngine m_engine;
    QStringList m_absent;
};

template struct TestClass<tst_TypeCatalogue>;
#include "tst_TypeCatalogue.moc"
