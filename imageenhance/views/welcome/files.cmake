list(APPEND STUDIO_QML
  views/welcome/DotGrid.qml
  views/welcome/DropFrame.qml
  views/welcome/HelpLink.qml
  views/welcome/HelpLinks.qml
  views/welcome/RecentCell.qml
  views/welcome/RecentGrid.qml
  views/welcome/WelcomeScreen.qml
)
