list(APPEND STUDIO_QML
  views/rightPanel/addPanel/AddButton.qml
  views/rightPanel/addPanel/AddPanelEntry.qml
  views/rightPanel/addPanel/AddPanelFrame.qml
  views/rightPanel/addPanel/AddPanelList.qml
  views/rightPanel/addPanel/AddPanelRow.qml
  views/rightPanel/addPanel/AddPanelTable.qml
  views/rightPanel/addPanel/AddPanelTip.qml
  views/rightPanel/addPanel/AddPanelTips.qml
  views/rightPanel/addPanel/EnhancementListPanel.qml
  views/rightPanel/addPanel/PresetMenu.qml
)
