# The headers that clients may include, below control/; everything else stays inside. A public header includes public ones
# only: none of Qt's private ones and of no library that the package does not ask for.
set(TAMBLE_PUBLIC_HEADERS
    base/ControlExport.h
    TambleClientControlModule.h

    # Filters of a frequency-response plot, as models of a page keep them.
    bodeplot/filters/BodeplotEnums.h
    bodeplot/filters/RBodeplotAsymmetricEqFilter.h
    bodeplot/filters/RBodeplotCalculationItem.h
    bodeplot/filters/RBodeplotEqFilter.h
    bodeplot/filters/RBodeplotFIRFilter.h
    bodeplot/filters/RBodeplotXOverFilter.h

    # Transfer curves of dynamics processors, and what draws them.
    dynamics/AGCCalculator.h
    dynamics/ANCCalculator.h
    dynamics/CompressorCalculator.h
    dynamics/CompressorCurve.h
    dynamics/CurveCalculator.h
    dynamics/DuckerCalculator.h
    dynamics/LimiterCalculator.h
    dynamics/NoiseGateCalculator.h
    dynamics/TransferCurves.h
    plot/GraphPlotter.h
    plot/LinePlotter.h
    plot/Plotter.h

    # Fields and lists.
    dialogs/RMessageBox.h
    models/RSortFilterProxyModel.h
    fields/FieldReason.h
    fields/RStringRuleValidator.h
    fields/RStringRuleValidatorRule.h
    fields/RTextFieldDoubleValidator.h
    fields/RTextFieldIntValidator.h
    fields/RTextFieldIpAddressValidator.h
    fields/RTextFieldPinValidator.h

    # A meter that is fed without QML.
    meter/MeterLevels.h
    meter/RMeterBase.h

    style/loading/ThemeSelector.h

    # A canvas whose changes are heard, and whose items are placed, without QML.
    base/SpokenControl.h
    workspace/PlaneView.h
    workspace/RWorkspaceSelection.h
    workspace/WorkspaceBase.h
    workspace/WorkspaceItemBase.h
    workspace/WorkspaceSurface.h
    workspace/WorkspaceView.h
)

# The build target all_verify_interface_header_sets compiles each by itself, without precompiled ones that would hide a
# missing include.
list(TRANSFORM TAMBLE_PUBLIC_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/control/)
target_sources(tambleclient-control
    PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/control FILES ${TAMBLE_PUBLIC_HEADERS}
)
set_target_properties(tambleclient-control PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
