pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI
import imageenhance

// The suggestions, and under them the note that one more is looked for.
ListView {
    id: _top

    required property SuggestionList suggestions
    required property SuggestionCursor cursor

    readonly property int rowHeight: 42

    signal hoverSubject(show: bool, subject: string)

    model: suggestions.suggestionModel
    spacing: PebbleStyle.size.spacingSmall
    interactive: false
    keyNavigationEnabled: false
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Suggestions")

    delegate: SuggestiveFilterDelegate {
        id: _row

        width: ListView.view.width
        suggestions: _top.suggestions
        focusPolicy: _top.cursor.focusPolicy(_row)
        onHoverSubject: (show, subject) => _top.hoverSubject(show, subject)
        onActiveFocusChanged: {
            if (activeFocus)
                _top.currentIndex = index;
        }
        onClicked: _private.take(_row)
    }

    // Behind the rows, which slide over its place.
    Row {
        x: PebbleStyle.size.spacing
        y: _top.count * (_top.rowHeight + _top.spacing)
        z: -1
        spacing: PebbleStyle.size.spacing
        visible: _top.suggestions.showAnalysisLoader

        PbBusySpinner {
            size: PebbleStyle.size.icon
            running: _top.suggestions.showAnalysisLoader
            y: Math.round((_top.rowHeight - height) / 2)
        }
        PbLabel {
            text: qsTr("Analyzing image...")
            color: PebbleStyle.color.lightGray
            height: _top.rowHeight
        }
    }

    // A transition that another one cuts short leaves a row as the other finds it.
    add: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 100 }
        NumberAnimation { property: "height"; from: 0; to: _top.rowHeight; duration: 200 }
    }
    remove: Transition {
        SequentialAnimation {
            NumberAnimation { property: "opacity"; to: 0; duration: 100 }
            NumberAnimation { property: "height"; to: 0; duration: 100 }
        }
    }
    displaced: Transition {
        NumberAnimation { properties: "x,y"; duration: 400 }
        NumberAnimation { property: "opacity"; to: 1; duration: 100 }
        NumberAnimation { property: "height"; to: _top.rowHeight; duration: 200 }
    }

    QtObject {
        id: _private

        // The keyboard goes on from where the suggestion was, unless the new filter's panel took it.
        function take(row: SuggestiveFilterDelegate): void {
            const focused = row.activeFocus;
            const index = row.index;
            _top.suggestions.take(index);
            if (focused && row.activeFocus && row.leaving)
                _top.cursor.go(_top.itemAtIndex(Math.min(index, _top.count - 1)) ?? _top.cursor.after.find(item => item.visible) ?? null);
        }
    }
}
