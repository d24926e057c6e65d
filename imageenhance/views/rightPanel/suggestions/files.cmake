list(APPEND STUDIO_QML
  views/rightPanel/suggestions/SuggestionCursor.qml
  views/rightPanel/suggestions/SuggestionFooter.qml
  views/rightPanel/suggestions/SuggestionList.qml
  views/rightPanel/suggestions/SuggestionModel.qml
  views/rightPanel/suggestions/SuggestionRows.qml
  views/rightPanel/suggestions/SuggestionSource.qml
  views/rightPanel/suggestions/SuggestionsFolded.qml
  views/rightPanel/suggestions/SuggestiveAutoPilotCard.qml
  views/rightPanel/suggestions/SuggestiveFilterDelegate.qml
)
