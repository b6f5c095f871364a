#include "TypeCatalogue.h"

#include "accordion/RAccordionColumn.h"
#include "accordion/RAccordionHeader.h"
#include "accordion/RAccordionItemBase.h"
#include "accordion/RAccordionSectionHeaderBase.h"
#include "bars/RAppBarBase.h"
#include "bars/RAppBarNavButtonBase.h"
#include "bars/RAppBarStateButtonBase.h"
#include "base/PartComponents.h"
#include "base/PendingValue.h"
#include "base/QuickTemplates.h"
#include "base/RPopupBase.h"
#include "bodeplot/RBodeplotCurve.h"
#include "bodeplot/RLimiterCurve.h"
#include "bodeplot/RSimpleCurve.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/filters/RBodeplotAsymmetricEqFilter.h"
#include "bodeplot/filters/RBodeplotCalculationItem.h"
#include "bodeplot/filters/RBodeplotEqFilter.h"
#include "bodeplot/filters/RBodeplotFIRFilter.h"
#include "bodeplot/filters/RBodeplotXOverFilter.h"
#include "bodeplot/frame/RBodeplot.h"
#include "bodeplot/frame/RBodeplotAxis.h"
#include "bodeplot/frame/RBodeplotGrid.h"
#include "cells/RCellBase.h"
#include "cells/RCellContainerBase.h"
#include "cells/RCellGridPropertiesBase.h"
#include "controls/RBoxShadowBase.h"
#include "controls/RButtonBase.h"
#include "controls/RCheckBoxBase.h"
#include "controls/RControlBackground.h"
#include "controls/RIconBase.h"
#include "controls/RLabelBase.h"
#include "controls/RLoadingAnimationBase.h"
#include "controls/RPaneBase.h"
#include "controls/RProgressBarBase.h"
#include "controls/RTabButtonBase.h"
#include "controls/RTintedImage.h"
#include "dialogs/RDialogBase.h"
#include "dialogs/RDialogBody.h"
#include "dialogs/RMessageBox.h"
#include "dragging/RDraggableItemBase.h"
#include "dynamics/AGCCalculator.h"
#include "dynamics/ANCCalculator.h"
#include "dynamics/CompressorCalculator.h"
#include "dynamics/DuckerCalculator.h"
#include "dynamics/LimiterCalculator.h"
#include "dynamics/NoiseGateCalculator.h"
#include "dynamics/RPlotRules.h"
#include "fader/RFaderBase.h"
#include "fader/RTransferTable.h"
#include "fields/FieldEdit.h"
#include "fields/FieldFrame.h"
#include "fields/NumberSteps.h"
#include "fields/RComboBoxBase.h"
#include "fields/RComboBoxEntryBase.h"
#include "fields/RComboBoxIndicator.h"
#include "fields/RComboBoxPopup.h"
#include "fields/RSpinBoxBase.h"
#include "fields/RStringRuleValidator.h"
#include "fields/RStringRuleValidatorRule.h"
#include "fields/RTextAreaBase.h"
#include "fields/RTextFieldBase.h"
#include "fields/RTextFieldDoubleValidator.h"
#include "fields/RTextFieldIntValidator.h"
#include "fields/RTextFieldIpAddressValidator.h"
#include "fields/RTextFieldPinValidator.h"
#include "fields/RTextInputBase.h"
#include "flyouts/FlyoutHandle.h"
#include "flyouts/RFlyoutLayer.h"
#include "flyouts/RFlyoutToolbarBase.h"
#include "flyouts/RFlyoutToolbarItemBase.h"
#include "flyouts/RFlyoutWindowBase.h"
#include "handles/RHandleBase.h"
#include "lists/RListRowBase.h"
#include "lists/RListViewBase.h"
#include "menus/RMenuBase.h"
#include "meter/RMeterBar.h"
#include "meter/RMeterBase.h"
#include "models/RRepeaterBase.h"
#include "models/RSortFilterProxyModel.h"
#include "plot/GraphPlotter.h"
#include "plot/LineCalculator.h"
#include "plot/LinePlotter.h"
#include "plot/NumberingHelper.h"
#include "plot/RAxis.h"
#include "plot/RConstantGridLineCalculator.h"
#include "plot/RGrid.h"
#include "plot/RGridLayout.h"
#include "plot/RScaleHelper.h"
#include "pointer/RMouseCursor.h"
#include "pointer/RMouseDetection.h"
#include "pointer/RMouseEventSpy.h"
#include "screen/RScreen.h"
#include "scrolling/FocusReveal.h"
#include "scrolling/RStripRow.h"
#include "style/SheetName.h"
#include "style/StateHelper.h"
#include "style/StyleChecker.h"
#include "style/StyleEngineSetup.h"
#include "style/StyleSet.h"
#include "style/StyleSetProps.h"
#include "style/WindowPalette.h"
#include "style/loading/StylesDirWatcher.h"
#include "style/loading/ThemeSelector.h"
#include "views/RViewContainerBase.h"
#include "workspace/RWorkspaceBlock.h"
#include "workspace/RWorkspaceCanvas.h"
#include "workspace/RWorkspaceItemValueBarBase.h"
#include "workspace/RWorkspaceSelection.h"
#include "workspace/RZoomSlider.h"
#include "workspace/WorksheetBase.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtCore/QHash>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtGui/QMouseEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <tambleclient-common/DoubleValueConverter.h>
#include <tambleclient-common/RValueConverter.h>

#include <initializer_list>

namespace tamble::client {

namespace {

constexpr int majorVersion = 1;
constexpr int minorVersion = 0;

/// Registers names under one URI. Composites are given by their folder below qrc:/qml/.
class Registrar
{
public:
    explicit Registrar(const char *uri)
        : m_uri(uri)
    {}

    template <typename T>
    void creatable(const char *name) const
    {
        qmlRegisterType<T>(m_uri, majorVersion, minorVersion, name);
    }

    template <typename T>
    void uncreatable(const char *name, const char *reason) const
    {
        qmlRegisterUncreatableType<T>(m_uri, majorVersion, minorVersion, name, QString::fromLatin1(reason));
    }

    /// A class without a name of its own that has enumerations: compiled QML looks it up by its pointer type.
    template <typename T>
    void enumHolder() const
    {
        qRegisterMetaType<T *>();
    }

    template <typename T>
    void enumNamespace(const char *name) const
    {
        enumHolder<T>(); // which the registration leaves out
        qmlRegisterUncreatableMetaObject(T::staticMetaObject, m_uri, majorVersion, minorVersion, name, QString());
    }

    /// Gives native types that derive from one of Qt's the properties that its later versions brought.
    template <typename T>
    void withLaterProperties() const
    {
        qmlRegisterRevision<T, 0>(m_uri, majorVersion, minorVersion);
    }

    /// One of Qt's templates, with the properties that its later versions brought.
    template <typename T>
    void quickTemplate(const char *name) const
    {
        qmlRegisterType<T, 0>(m_uri, majorVersion, minorVersion, name);
    }

    void composite(const char *folder, const char *name, const char *file) const
    {
        qmlRegisterType(fileUrl(folder, file), m_uri, majorVersion, minorVersion, name);
    }

    void composites(const char *folder, std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            composite(folder, name, name);
    }

    /// Composites that are alone in a folder of their own name.
    void composites(std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            composite(name, name, name);
    }

    void singletons(const char *folder, std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            qmlRegisterSingletonType(fileUrl(folder, name), m_uri, majorVersion, minorVersion, name);
    }

    template <typename T>
    void singleton(const char *name) const
    {
        qmlRegisterSingletonType<T>(m_uri, majorVersion, minorVersion, name,
                                    [](QQmlEngine *, QJSEngine *) -> QObject * { return new T; });
    }

    const char *uri() const { return m_uri; }

private:
    static QUrl fileUrl(const char *folder, const char *file)
    {
        return QUrl(QStringLiteral("qrc:/qml/%1/%2.qml").arg(QLatin1String(folder), QLatin1String(file)));
    }

    const char *m_uri;
};

void registerBars(const Registrar &registrar)
{
    registrar.creatable<RValueConverter>("RValueConverter");
    registrar.composites("RAccordion", {"RAccordion", "RAccordionSectionHeader", "RAccordionItem"});
    registrar.composites("RAppBar",
                         {"RAppBar", "RAppBarButton", "RAppBarStateButton", "RAppBarNavButton", "RAppBarSubNavButton"});
    registrar.composites({"RApplicationWindow"});
}

void registerBodeplotEnums(const Registrar &registrar)
{
    registrar.enumNamespace<RBodeplotEqTypeEnum>("RBodeplotEqTypeEnum");
    registrar.enumNamespace<RBodeplotXOverTypeEnum>("RBodeplotXOverTypeEnum");
    registrar.enumNamespace<RBodeplotXOverCategoryEnum>("RBodeplotXOverCategoryEnum");
    registrar.enumNamespace<RBodeplotSlopeTypeEnum>("RBodeplotSlopeTypeEnum");
    registrar.enumNamespace<RBodeplotFIRTypeEnum>("RBodeplotFIRTypeEnum");
    registrar.enumNamespace<RBodeplotDelayUnitEnum>("RBodeplotDelayUnitEnum");
    registrar.enumNamespace<RBodeplotAxisScaleEnum>("RBodeplotAxisScaleEnum");
    registrar.enumNamespace<RBodeplotZoomEnum>("RBodeplotZoomEnum");
    registrar.enumNamespace<RBodeplotSpectrumEnum>("RBodeplotSpectrumEnum");
}

void registerBodeplot(const Registrar &registrar)
{
    registrar.creatable<RAxis>("RAxisTemplate");
    registrar.composites({"RAxis"});
    registrar.creatable<RBodeplot>("RBodeplotTemplate");
    registrar.composites({"RBodeplot"});
    registrar.creatable<RBodeplotGrid>("RBodeplotGridTemplate");
    registrar.composites("RBodeplot", {"RBodeplotGrid", "RBodeplotGridStyle"});
    registrar.creatable<RBodeplotAxis>("RBodeplotAxisTemplate");
    registrar.composites("RBodeplot", {"RBodeplotAxis", "RBodeplotAxisStyle"});
    registrar.creatable<RBodeplotCurve>("RBodeplotCurveTemplate");
    registrar.composites("RBodeplot", {"RBodeplotCurve", "RBodeplotCurveStyle", "RBodeplotFilterPoint",
                                       "RBodeplotFilterPointSelectedStyle", "RBodeplotFilterPointErrorStyle",
                                       "RBodeplotFilterPointStyle"});
    registrar.creatable<RBodeplotCalculationItem>("RBodeplotCalculationItem");
    registrar.creatable<RBodeplotEqFilter>("RBodeplotEqFilter");
    registrar.creatable<RBodeplotAsymmetricEqFilter>("RBodeplotAsymmetricEqFilter");
    registrar.creatable<RBodeplotXOverFilter>("RBodeplotXOverFilter");
    registrar.creatable<RBodeplotFIRFilter>("RBodeplotFIRFilter");
    registrar.creatable<RLimiterCurve>("RLimiterCurveTemplate");
    registrar.composites("RBodeplot",
                         {"RLimiterCurve", "RLimiterCurveStyle", "RLimiterFilterPoint", "RLimiterFilterPointStyle"});
    registrar.creatable<RSimpleCurve>("RSimpleCurveTemplate");
    registrar.composites("RBodeplot", {"RSimpleCurve", "RSimpleCurveStyle"});
    registerBodeplotEnums(registrar);
}

void registerPlotHelpersAndCalculators(const Registrar &registrar)
{
    registrar.creatable<RScaleHelper>("RScaleHelper");
    registrar.creatable<LinePlotter>("RLinePlotter");
    registrar.creatable<GraphPlotter>("RGraphPlotter");
    registrar.creatable<LineCalculator>("RLineCalculator");
    registrar.creatable<LimiterCalculator>("RLimiterCalculator");
    registrar.creatable<NumberingHelper>("RNumberingHelper");
    registrar.creatable<CompressorCalculator>("RCompressorCalculator");
    registrar.creatable<AGCCalculator>("RAGCCalculator");
    registrar.creatable<ANCCalculator>("RANCCalculator");
    registrar.creatable<NoiseGateCalculator>("RNoiseGateCalculator");
    registrar.creatable<DuckerCalculator>("RDuckerCalculator");
    registrar.creatable<RConstantGridLineCalculator>("RConstantGridLineCalculator");
}

void registerPanelsAndControls(const Registrar &registrar)
{
    registrar.composites("RLimiter", {"RPlotGrid", "RDragHandler", "RAxisNumbering", "RLimiter"});
    registrar.composites({"RCompressor", "RAGC", "RANC", "RDucker", "RGate"});
    registrar.composites("RButton", {"RButton", "RButtonIcon", "RButtonIconLabel", "RButtonIconLabelH",
                                     "RButtonIconLabelV", "RButtonLabelText", "RButtonRow", "RButtonSwitch"});
    registrar.composites({"RBoxShadow"});
    registrar.composites("RCell", {"RCell", "RCellContainer", "RCellGridProperties", "RCellComboBox", "RCellButton",
                                   "RCellLabel", "RCellTabBar", "RCellTabButton", "RCellTextField", "RCellTextArea",
                                   "RCellSpinBox", "RCellText"});
    registrar.composites({"RCheckBox", "RComboBox", "RDialog"});
    registrar.composites("RFader", {"RFader", "TransferFunctions"});
    registrar.composites("RFlyout", {"RFlyoutWindow", "RFlyoutToolbar", "RFlyoutToolbarItem"});
    registrar.creatable<RGrid>("RGrid");
    registrar.creatable<RGridLayout>("RGridLayout");
    registrar.composites({"RIcon"});
    registrar.composites("RInconsistentButton", {"RInconsistentButton", "RInconsistentButtonSwitch"});
    registrar.composites({"RInconsistentPopup", "RLabel", "RListView"});
    registrar.composites("RScrollView", {"RHorizontalScrollView"});
    registrar.composites({"RMenu", "RMeter"});
    registrar.creatable<RMeterBase>("RMeterBase");
    registrar.composites("RPane", {"RPane", "RPaneSub"});
    registrar.composites({"RPopupMenu", "RProgressBar", "RRepeater"});
    registrar.composite("RScreen", "RScreen", "RScreen2");
    registrar.creatable<RScreen>("RScreenTemplate");
    registrar.composites({"RSectionHeader", "RSelectionRect", "RSpinBox"});
}

void registerStyle(const Registrar &registrar)
{
    registrar.uncreatable<StyleSet>("RStyleSet", "StyleSet is exposed as an attached property");
    registrar.uncreatable<StyleSetProps>("RStyleSetProps", "Exposed as RStyleSet.props");
    // The same name again: nobody writes it, but the engine gets to know the meta-object behind RStyleSet.stateHelper.
    registrar.uncreatable<StateHelper>("RStyleSetProps", "Exposed as RStyleSet.props");
    registrar.creatable<StyleEngineSetup>("RStyleEngine");
    registrar.creatable<StylesDirWatcher>("RStylesDirWatcher");
    registrar.creatable<StyleChecker>("RStyleChecker");
    registrar.composites({"RStyleEngineSetup", "RStyleDebugMouseArea"});
    registrar.composites("RTabButton",
                         {"RTabButton", "RTabButtonIcon", "RTabButtonIconLabelH", "RTabButtonIconLabelV"});
    registrar.composites("RText", {"RText", "RTextInput", "RTextField", "RNumberTextField", "RTextArea"});
    registrar.composites({"RTheme"});
    registrar.creatable<ThemeSelector>("RThemeSelector");
}

void registerWorkspace(const Registrar &registrar)
{
    registrar.creatable<WorksheetBase>("RWorksheetBase");
    registrar.composites({"RWorksheet"});
    registrar.creatable<WorkspaceBase>("RWorkspaceBase");
    registrar.composites({"RWorkspace"});
    registrar.creatable<RWorkspaceSelection>("RWorkspaceSelection");
    registrar.creatable<WorkspaceItemBase>("RWorkspaceItemBase");
    registrar.composites("RWorkspace", {"RWorkspaceItem", "RWorkspaceItemValueBar", "RWorkspaceZoomBar"});
    registrar.composites("Shared", {"RFocusRectangle", "RDraggableItem"});
}

void registerInputHelpers(const Registrar &registrar)
{
    registrar.creatable<RTextFieldDoubleValidator>("RTextFieldDoubleValidator");
    registrar.creatable<RTextFieldIntValidator>("RTextFieldIntValidator");
    registrar.creatable<RTextFieldPinValidator>("RTextFieldPinValidator");
    registrar.creatable<RTextFieldIpAddressValidator>("RTextFieldIpAddressValidator");
    qmlRegisterSingletonType<RMouseEventSpy>(registrar.uri(), majorVersion, minorVersion, "RMouseEventSpy",
                                             [](QQmlEngine *, QJSEngine *) -> QObject * {
                                                 // All engines share the spy, so none may delete it.
                                                 QObject *spy = RMouseEventSpy::instance();
                                                 QQmlEngine::setObjectOwnership(spy, QQmlEngine::CppOwnership);
                                                 return spy;
                                             });
    registrar.creatable<RMouseDetection>("RMouseDetection");
    registrar.creatable<RMouseCursor>("RMouseCursor");
    registrar.creatable<RSortFilterProxyModel>("RSortFilterProxyModel");
    const QByteArray ruleClass(RStringRuleValidatorRule::staticMetaObject.className());
    registrar.uncreatable<RStringRuleValidatorRule>(ruleClass.split(':').constLast().constData(),
                                                    "You cannot create an instance of the Enums.");
    registrar.creatable<RStringRuleValidator>("RStringRuleValidator");
    registrar.creatable<DoubleValueConverter>("RDoubleValueConverter");
    registrar.creatable<RMessageBox>("RMessageBox");
    registrar.composites({"RViewContainer", "RLoadingAnimation"});
}

// What the module's own components share. Not for clients: names and properties may change.
void registerInternals(const Registrar &registrar)
{
    registrar.creatable<RAppBarBase>("RAppBarBase");
    registrar.creatable<RAppBarNavButtonBase>("RAppBarNavButtonBase");
    registrar.creatable<RAppBarStateButtonBase>("RAppBarStateButtonBase");
    registrar.creatable<RBarButtonBase>("RBarButtonBase");
    registrar.creatable<RButtonBase>("RButtonBase");
    registrar.creatable<RCheckBoxBase>("RCheckBoxBase");
    registrar.creatable<RComboBoxBase>("RComboBoxBase");
    registrar.creatable<RComboBoxEntryBase>("RComboBoxEntryBase");
    registrar.creatable<RComboBoxIndicator>("RComboBoxIndicator");
    registrar.creatable<RComboBoxPopup>("RComboBoxPopup");
    registrar.creatable<RAccordionColumn>("RAccordionColumn");
    registrar.creatable<RAccordionHeader>("RAccordionHeader");
    registrar.creatable<RAccordionItemBase>("RAccordionItemBase");
    registrar.creatable<RAccordionSectionHeaderBase>("RAccordionSectionHeaderBase");
    registrar.creatable<RCellBase>("RCellBase");
    registrar.creatable<RCellContainerBase>("RCellContainerBase");
    registrar.creatable<RCellGridPropertiesBase>("RCellGridPropertiesBase");
    registrar.creatable<RControlBackground>("RControlBackground");
    registrar.creatable<RDraggableItemBase>("RDraggableItemBase");
    registrar.creatable<RDialogBase>("RDialogBase");
    registrar.creatable<RDialogBody>("RDialogBody");
    registrar.creatable<DialogFooter>("RDialogFooterBase");
    registrar.creatable<DialogFrame>("RDialogFrameBase");
    registrar.creatable<DialogHeader>("RDialogHeaderBase");
    registrar.creatable<RFaderBase>("RFaderBase");
    registrar.creatable<FlyoutHandle>("RFlyoutHandle");
    registrar.creatable<RFlyoutLayer>("RFlyoutLayer");
    registrar.creatable<RFlyoutToolbarBase>("RFlyoutToolbarBase");
    registrar.creatable<RFlyoutToolbarItemBase>("RFlyoutToolbarItemBase");
    registrar.creatable<RFlyoutWindowBase>("RFlyoutWindowBase");
    registrar.creatable<RHandleBase>("RHandleBase");
    registrar.creatable<RListRowBase>("RListRowBase");
    registrar.enumHolder<SelectableListView>();
    registrar.creatable<RListViewBase>("RListViewBase");
    registrar.creatable<RMenuBase>("RMenuBase");
    registrar.creatable<RMeterBar>("RMeterBar");
    registrar.creatable<RIconBase>("RIconBase");
    registrar.creatable<RLabelBase>("RLabelBase");
    registrar.creatable<RLoadingAnimationBase>("RLoadingAnimationBase");
    registrar.creatable<RPaneBase>("RPaneBase");
    registrar.creatable<RProgressBarBase>("RProgressBarBase");
    registrar.creatable<RRepeaterBase>("RRepeaterBase");
    registrar.creatable<RStripRow>("RStripRow");
    registrar.creatable<RPopupBase>("RPopupBase");
    registrar.creatable<RTabButtonBase>("RTabButtonBase");
    registrar.creatable<RTextFieldBase>("RTextFieldBase");
    registrar.creatable<RTextInputBase>("RTextInputBase");
    registrar.creatable<RTextAreaBase>("RTextAreaBase");
    registrar.creatable<RSpinBoxBase>("RSpinBoxBase");
    registrar.creatable<RViewContainerBase>("RViewContainerBase");
    registrar.creatable<RWorkspaceBlock>("RWorkspaceBlock");
    registrar.creatable<RWorkspaceCanvas>("RWorkspaceCanvas");
    registrar.creatable<RWorkspaceItemValueBarBase>("RWorkspaceItemValueBarBase");
    registrar.creatable<RZoomSlider>("RZoomSlider");
    registrar.creatable<FieldEdit>("RFieldEdit");
    registrar.creatable<FieldFrame>("RFieldFrame");
    registrar.creatable<NumberSteps>("RNumberSteps");
    registrar.creatable<PendingValue>("RPendingValue");
    registrar.creatable<RBoxShadowBase>("RBoxShadowBase");
    registrar.creatable<FocusReveal>("RFocusReveal");
    registrar.singleton<RPlotRules>("RPlotRules");
    registrar.creatable<SheetName>("RSheetName");
    registrar.creatable<RTintedImage>("RTintedImage");
    registrar.singleton<RTransferTable>("RTransferTable");
    registrar.creatable<WindowPalette>("RWindowPalette");
    registrar.singletons("Shared", {"RThemeValues"});
}

// What native types and QML files of the module derive from, and what pages reach through their properties.
void registerTemplates(const Registrar &registrar)
{
    registrar.withLaterProperties<QWindow>();
    registrar.withLaterProperties<QQuickWindow>();
    registrar.withLaterProperties<QQuickWindowQmlImpl>();
    registrar.withLaterProperties<QQuickItem>();
    registrar.withLaterProperties<QQuickFlickable>();
    registrar.withLaterProperties<QQuickItemView>();
    registrar.withLaterProperties<QQuickListView>();
    registrar.withLaterProperties<QQuickText>();
    registrar.withLaterProperties<QQuickLabel>();
    registrar.withLaterProperties<QQuickTextInput>();
    registrar.withLaterProperties<QQuickTextField>();
    registrar.withLaterProperties<QQuickTextEdit>();
    registrar.withLaterProperties<QQuickTextArea>();
    registrar.withLaterProperties<QQuickControl>();
    registrar.withLaterProperties<QQuickContainer>();
    registrar.withLaterProperties<QQuickScrollBar>();
    registrar.withLaterProperties<QQuickComboBox>();
    registrar.withLaterProperties<QQuickMenu>();
    registrar.withLaterProperties<QQuickDialog>();
    registrar.withLaterProperties<QQuickAction>();
    registrar.withLaterProperties<QQuickPopupAnchors>();
    registrar.quickTemplate<QQuickAbstractButton>("RAbstractButtonTemplate");
    registrar.quickTemplate<QQuickApplicationWindow>("RApplicationWindowTemplate");
    registrar.quickTemplate<QQuickDialogButtonBox>("RDialogButtonBoxTemplate");
    registrar.quickTemplate<QQuickMenuItem>("RMenuItemTemplate");
    registrar.uncreatable<QQuickOverlay>("ROverlayTemplate", "");
    registrar.quickTemplate<QQuickPane>("RPaneTemplate");
    registrar.quickTemplate<QQuickPopup>("RPopupTemplate");
    registrar.creatable<RScrollBarTemplate>("RScrollBarTemplate");
    registrar.quickTemplate<QQuickScrollView>("RScrollViewTemplate");
    registrar.quickTemplate<QQuickTabBar>("RTabBarTemplate");
    registrar.quickTemplate<QQuickToolBar>("RToolBarTemplate");
    registrar.quickTemplate<QQuickToolTip>("RToolTipTemplate");
}

// Where native items find their parts.
void registerParts()
{
    const auto name = [](Part part, const char *file) {
        setPartSource(part, QUrl(QStringLiteral("qrc:/qml/") + QLatin1String(file)));
    };
    name(Part::BarBadge, "RAppBar/RAppBarBadge.qml");
    name(Part::BarCountdown, "RAppBar/RAppBarCountdown.qml");
    name(Part::NavIcon, "RAppBar/RAppBarNavIcon.qml");
    name(Part::ProgressMarks, "RProgressBar/RProgressMarks.qml");
    name(Part::ProgressTravel, "RProgressBar/RProgressTravel.qml");
    name(Part::AccordionIcon, "RAccordion/RAccordionIcon.qml");
    name(Part::AccordionSubtitle, "RAccordion/RAccordionSubtitle.qml");
    name(Part::InsertionLine, "RAccordion/RInsertionLine.qml");
    name(Part::DragFrame, "Shared/RDragFrame.qml");
    name(Part::CheckDot, "RCheckBox/RCheckDot.qml");
    name(Part::CheckIcon, "RCheckBox/RCheckIcon.qml");
    name(Part::ComboField, "RComboBox/RComboBoxField.qml");
    name(Part::ComboMarks, "RComboBox/RComboBoxMarks.qml");
    name(Part::ControlLine, "Shared/RControlLine.qml");
    name(Part::EntryIcon, "RComboBox/RComboBoxIcon.qml");
    name(Part::FocusFrame, "Shared/RFocusRectangle.qml");
    name(Part::LabelLine, "RLabel/RLabelLine.qml");
    name(Part::ToolTip, "Shared/RToolTip.qml");
    name(Part::FieldMarks, "Shared/RFieldMarks.qml");
    name(Part::FieldBubble, "Shared/RFieldBubble.qml");
    name(Part::FieldHint, "RText/RFieldHint.qml");
    name(Part::FieldButtons, "RText/RFieldButtons.qml");
    name(Part::FieldIcon, "RText/RFieldIcon.qml");
    name(Part::SpinAffixes, "RSpinBox/RSpinAffixes.qml");
    name(Part::SpinInvalidLook, "RSpinBox/RSpinInvalidLook.qml");
    name(Part::CellSelection, "RCell/RCellSelection.qml");
    name(Part::CellRefusal, "RCell/RCellRefusal.qml");
    name(Part::MenuRow, "RMenu/RMenuRow.qml");
    name(Part::MenuLine, "RMenu/RMenuLine.qml");
    name(Part::SubMenu, "RMenu/RMenu.qml");
    name(Part::FieldMenu, "Shared/RFieldMenu.qml");
    name(Part::PaneHeader, "RPane/RPaneHeader.qml");
    name(Part::PaneToggle, "RPane/RPaneToggle.qml");
    name(Part::FlyoutHeader, "RFlyout/RFlyoutHeader.qml");
    name(Part::TabDot, "RTabButton/RTabDot.qml");
    name(Part::TabMarks, "RTabButton/RTabMarks.qml");
    name(Part::RowMark, "RListView/RRowMark.qml");
    name(Part::ViewBlur, "RViewContainer/RViewBlur.qml");
    name(Part::ViewBusy, "RViewContainer/RViewBusy.qml");
    name(Part::DialogFrame, "RDialog/RDialogFrame.qml");
    name(Part::DialogIcon, "RDialog/RDialogIcon.qml");
    name(Part::DialogCloseButton, "RDialog/RDialogCloseButton.qml");
    name(Part::DialogScrollBars, "RDialog/RDialogScrollBars.qml");
    name(Part::DialogVeil, "RDialog/RDialogVeil.qml");
    name(Part::MessageBoxDialog, "RDialog/RMessageBoxDialog.qml");
    name(Part::RubberBand, "RSelectionRect/RSelectionRect.qml");
    name(Part::WorkspaceItemTitle, "RWorkspace/RWorkspaceItemTitle.qml");
    name(Part::WorkspaceScrollBars, "RWorkspace/RWorkspaceScrollBars.qml");
}

} // namespace

void registerCatalogue(const char *uri)
{
    qRegisterMetaType<QMouseEvent *>("QMouseEvent*");
    qRegisterMetaType<QHash<QUuid, QPointF>>("QHash<QUuid,QPointF>");
    qRegisterMetaType<QHash<QUuid, QRectF>>("QHash<QUuid,QRectF>");

    const Registrar registrar(uri);
    registerParts();
    registerBars(registrar);
    registerBodeplot(registrar);
    registerPlotHelpersAndCalculators(registrar);
    registerPanelsAndControls(registrar);
    registerStyle(registrar);
    registerWorkspace(registrar);
    registerInputHelpers(registrar);
    registerInternals(registrar);
    registerTemplates(registrar);
}

} // namespace tamble::client
