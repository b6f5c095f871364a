# The module's QML files, compiled ahead of time and placed under qrc:/qml/. A file appears in the qmldir, where tools
# look names up, exactly when a registered name loads it. Included where the library is made: Qt 6.8 makes a second
# target of QML files that another directory adds, which then waits for itself.

set(registered
    RAGC/RAGC.qml
    RANC/RANC.qml
    RAccordion/RAccordion.qml
    RAccordion/RAccordionItem.qml
    RAccordion/RAccordionSectionHeader.qml
    RAppBar/RAppBar.qml
    RAppBar/RAppBarButton.qml
    RAppBar/RAppBarNavButton.qml
    RAppBar/RAppBarStateButton.qml
    RAppBar/RAppBarSubNavButton.qml
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
    RDialog/RDialog.qml
    RDucker/RDucker.qml
    RFader/RFader.qml
    RFader/TransferFunctions.qml
    RFlyout/RFlyoutToolbar.qml
    RFlyout/RFlyoutToolbarItem.qml
    RFlyout/RFlyoutWindow.qml
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
    RListView/RListView.qml
    RMenu/RMenu.qml
    RLoadingAnimation/RLoadingAnimation.qml
    RMeter/RMeter.qml
    RPane/RPane.qml
    RPane/RPaneSub.qml
    RPopupMenu/RPopupMenu.qml
    RProgressBar/RProgressBar.qml
    RScreen/RScreen2.qml
    RRepeater/RRepeater.qml
    RScrollView/RHorizontalScrollView.qml
    RSectionHeader/RSectionHeader.qml
    RSelectionRect/RSelectionRect.qml
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
    Shared/RDraggableItem.qml
    RViewContainer/RViewContainer.qml
    RWorksheet/RWorksheet.qml
    RWorkspace/RWorkspace.qml
    RWorkspace/RWorkspaceItem.qml
    RWorkspace/RWorkspaceItemValueBar.qml
    RWorkspace/RWorkspaceZoomBar.qml
    Shared/RFocusRectangle.qml
)
set(singletons
    Shared/RThemeValues.qml
)
# Reached by relative imports.
set(unregistered
    RAccordion/RAccordionIcon.qml
    RAccordion/RAccordionSubtitle.qml
    RAccordion/RInsertionLine.qml
    RAppBar/RAppBarArrow.qml
    RAppBar/RAppBarBadge.qml
    RAppBar/RAppBarCountdown.qml
    RAppBar/RAppBarNavIcon.qml
    RAppBar/RAppBarView.qml
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
    RDialog/RDialogButton.qml
    RDialog/RDialogCloseButton.qml
    RDialog/RDialogDim.qml
    RDialog/RDialogFooter.qml
    RDialog/RDialogFrame.qml
    RDialog/RDialogHeader.qml
    RDialog/RDialogIcon.qml
    RDialog/RDialogScrollBars.qml
    RDialog/RDialogVeil.qml
    RDialog/RMessageBoxDialog.qml
    RFader/RFaderHandle.qml
    RFader/RFaderTick.qml
    RFlyout/RFlyoutButton.qml
    RFlyout/RFlyoutHeader.qml
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
    RListView/RListRow.qml
    RListView/RRowMark.qml
    RMenu/RMenuLine.qml
    RMenu/RMenuRow.qml
    RPane/RPaneHeader.qml
    RPane/RPaneToggle.qml
    RProgressBar/RProgressMarks.qml
    RProgressBar/RProgressTravel.qml
    RScreen/RScreen.qml
    RTabButton/RStyledTab.qml
    RTabButton/RTabDot.qml
    RTabButton/RTabMarks.qml
    RTabButton/RTabText.qml
    RViewContainer/RViewBlur.qml
    RViewContainer/RViewBusy.qml
    RWorkspace/RWorkspaceItemTitle.qml
    RWorkspace/RWorkspaceScrollBars.qml
    RWorkspace/RWorkspaceZoomSlider.qml
    Shared/RConfirmDot.qml
    Shared/RControlLine.qml
    Shared/RDragFrame.qml
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
)

foreach(list IN ITEMS registered singletons unregistered)
    list(TRANSFORM ${list} PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
endforeach()
foreach(file IN LISTS registered singletons unregistered)
    cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${CMAKE_CURRENT_LIST_DIR} OUTPUT_VARIABLE alias)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS qml/${alias})
endforeach()
# Registered under another name than that of the file.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/RScreen/RScreen2.qml PROPERTIES QT_QML_SOURCE_TYPENAME RScreen)
set_source_files_properties(${singletons} PROPERTIES QT_QML_SINGLETON_TYPE ON)
set_source_files_properties(${unregistered} PROPERTIES QT_QML_SKIP_QMLDIR_ENTRY ON)

# The module as Qt's QML compiler reads it: with the files that are not registered, too. It does not follow relative
# imports of what becomes a resource, and leaves a binding whose types it does not know to the interpreter, which takes
# more than twice as long.
set(compiler_dir ${CMAKE_CURRENT_BINARY_DIR}/compiler)
cmake_path(RELATIVE_PATH TAMBLE_QML_MODULE_DIRECTORY BASE_DIRECTORY ${compiler_dir} OUTPUT_VARIABLE to_module)
string(CONCAT compiler_qmldir
    "module TambleClient.Control\ntypeinfo ${to_module}/plugins.qmltypes\nimport QtQuick\n"
    "depends QtQuick.Templates\n"
)
foreach(file IN LISTS registered singletons unregistered)
    cmake_path(GET file STEM name)
    if(name STREQUAL "RScreen")
        continue() # reached by no import
    endif()
    get_source_file_property(other_name ${file} QT_QML_SOURCE_TYPENAME)
    if(other_name)
        set(name ${other_name})
    elseif(file IN_LIST singletons)
        set(name "singleton ${name}")
    endif()
    cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${compiler_dir} OUTPUT_VARIABLE path)
    string(APPEND compiler_qmldir "${name} 1.0 ${path}\n")
endforeach()
file(CONFIGURE OUTPUT ${compiler_dir}/qmldir CONTENT "${compiler_qmldir}" @ONLY)
set_property(TARGET tambleclient-control APPEND PROPERTY QT_QMLCACHEGEN_ARGUMENTS -i ${compiler_dir}/qmldir)

qt_target_qml_sources(tambleclient-control PREFIX / QML_FILES ${registered} ${singletons} ${unregistered})

tamble_relax_generated_code(tambleclient-control)
