list(APPEND STUDIO_QML
  views/alerts/ApplyQuestions.qml
  views/alerts/ClosingQuestions.qml
  views/alerts/DialogQueue.qml
  views/alerts/NoticeDialog.qml
  views/alerts/QuestionDialog.qml
  views/alerts/QueuedDialog.qml
  views/alerts/ToastCountdown.qml
  views/alerts/ToastList.qml
  views/alerts/ToastView.qml
  views/alerts/Toaster.qml
  views/alerts/WindowNotices.qml
)
