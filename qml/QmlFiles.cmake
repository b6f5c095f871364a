# The module's QML files, compiled ahead of time and placed under qrc:/qml/. A file appears in the qmldir, where tools
# look names up, exactly when a registered name loads it. Included where the library is made: Qt 6.8 makes a second
# target of QML files that another directory adds, which then waits for itself.

set(registered
    RAGC/RAGC.qml
    RANC/RANC.qml
    RApplicationWindow/RApplicationWindow.qml
    RAxis/RAxis.qml
    RBodeplot/RBodeplot.qml
    RBodeplot/RBodeplotAxis.qml
    RBodeplot/RBodeplotCurve.qml
    RBodeplot/RBodeplotFilterPoint.qml
    RBodeplot/RBodeplotGrid.qml
    RBodeplot/RLimiterCurve.qml
    RBodeplot/RLimiterFilterPoint.qml
    RBodeplot/RSimpleCurve.qml
    RBoxShadow/RBoxShadow.qml
    RButton/RButton.qml
    RButton/RButtonIcon.qml
    RButton/RButtonIconLabel.qml
    RButton/RButtonIconLabelH.qml
    RButton/RButtonIconLabelV.qml
    RButton/RButtonLabelText.qml
    RButton/RButtonRow.qml
    RButton/RButtonSwitch.qml
    RCheckBox/RCheckBox.qml
    RComboBox/RComboBox.qml
    RCell/RCell.qml
    RCell/RCellButton.qml
    RCell/RCellComboBox.qml
    RCell/RCellContainer.qml
    RCell/RCellGridProperties.qml
    RCell/RCellLabel.qml
    RCell/RCellSpinBox.qml
    RCell/RCellTabBar.qml
    RCell/RCellTabButton.qml
    RCell/RCellText.qml
    RCell/RCellTextArea.qml
    RCell/RCellTextField.qml
    RCompressor/RCompressor.qml
    RDucker/RDucker.qml
    RFader/RFader.qml
    RFader/TransferFunctions.qml
    RGate/RGate.qml
    RIcon/RIcon.qml
    RInconsistentButton/RInconsistentButton.qml
    RInconsistentButton/RInconsistentButtonSwitch.qml
    RInconsistentPopup/RInconsistentPopup.qml
    RLabel/RLabel.qml
    RLimiter/RAxisNumbering.qml
    RLimiter/RDragHandler.qml
    RLimiter/RLimiter.qml
    RLimiter/RPlotGrid.qml
    RMenu/RMenu.qml
    RMeter/RMeter.qml
    RPopupMenu/RPopupMenu.qml
    RStyleDebugMouseArea/RStyleDebugMouseArea.qml
    RStyleEngineSetup/RStyleEngineSetup.qml
    RSpinBox/RSpinBox.qml
    RTabButton/RTabButton.qml
    RTabButton/RTabButtonIcon.qml
    RTabButton/RTabButtonIconLabelH.qml
    RTabButton/RTabButtonIconLabelV.qml
    RText/RNumberTextField.qml
    RText/RText.qml
    RText/RTextArea.qml
    RText/RTextField.qml
    RText/RTextInput.qml
    RTheme/RTheme.qml
    Shared/RFocusRectangle.qml
)
set(singletons
    Shared/RThemeValues.qml
)
# Reached by relative imports.
set(unregistered
    RApplicationWindow/RBusyDots.qml
    RApplicationWindow/RBusyVeil.qml
    RApplicationWindow/RBusyVeilLoader.qml
    RCheckBox/RCheckDot.qml
    RCheckBox/RCheckIcon.qml
    RComboBox/RComboBoxEntry.qml
    RComboBox/RComboBoxField.qml
    RComboBox/RComboBoxIcon.qml
    RComboBox/RComboBoxList.qml
    RComboBox/RComboBoxMarks.qml
    RCell/RCellGround.qml
    RCell/RCellRefusal.qml
    RCell/RCellSelection.qml
    RFader/RFaderHandle.qml
    RFader/RFaderTick.qml
    RLabel/RLabelLine.qml
    RSpinBox/RSpinAffixes.qml
    RSpinBox/RSpinInvalidLook.qml
    RText/RFieldButton.qml
    RText/RFieldButtons.qml
    RText/RFieldHint.qml
    RText/RFieldIcon.qml
    RLimiter/RGainMeter.qml
    RLimiter/RLevelHandle.qml
    RLimiter/RParameterHandle.qml
    RMenu/RMenuLine.qml
    RMenu/RMenuRow.qml
    RTabButton/RStyledTab.qml
    RTabButton/RTabMarks.qml
    RTabButton/RTabText.qml
    Shared/RConfirmDot.qml
    Shared/RControlLine.qml
    Shared/RDynamicsPlot.qml
    Shared/RFieldBubble.qml
    Shared/RFieldMarks.qml
    Shared/RFieldMenu.qml
    Shared/RHandleBubble.qml
    Shared/RMixedFlag.qml
    Shared/RPlotHandle.qml
    Shared/RPopupFrame.qml
    Shared/RScrollBar.qml
    Shared/RScrollView.qml
    Shared/RStyleProbe.qml
    Shared/RStyledButton.qml
    Shared/RToolTip.qml
    Shared/RValueBinding.qml
)

foreach(list IN ITEMS registered singletons unregistered)
    list(TRANSFORM ${list} PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
endforeach()
foreach(file IN LISTS registered singletons unregistered)
    cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${CMAKE_CURRENT_LIST_DIR} OUTPUT_VARIABLE alias)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS qml/${alias})
endforeach()
set_source_files_properties(${singletons} PROPERTIES QT_QML_SINGLETON_TYPE ON)
set_source_files_properties(${unregistered} PROPERTIES QT_QML_SKIP_QMLDIR_ENTRY ON)

qt_target_qml_sources(tambleclient-control PREFIX / QML_FILES ${registered} ${singletons} ${unregistered})

tamble_relax_generated_code(tambleclient-control)
