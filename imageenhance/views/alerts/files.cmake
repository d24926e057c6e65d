list(APPEND STUDIO_QML
  views/alerts/ClosingQuestions.qml
  views/alerts/NoticeDialog.qml
  views/alerts/QuestionDialog.qml
  views/alerts/WindowNotices.qml
)
