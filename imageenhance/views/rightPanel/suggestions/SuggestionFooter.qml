import QtQuick
import QtQuick.Templates as T
import PebbleUI
import imageenhance

// Under the suggestions: where they come from, and what else can be done with the column.
Column {
    id: _top

    required property SuggestionList suggestions
    required property SuggestionCursor cursor

    readonly property list<Item> stops: [_how, _save, _apply]
    readonly property bool hasButton: suggestions.canSavePreset || suggestions.canApplyRecommendations

    signal saveAsPreset
    signal applyAutopilot

    spacing: PebbleStyle.size.spacingSmall

    T.Control {
        id: _how

        anchors.horizontalCenter: parent.horizontalCenter
        height: 16
        implicitWidth: implicitContentWidth
        focusPolicy: _top.cursor.focusPolicy(_how)
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("How do we make suggestions?")
        Accessible.description: _tip.text.replace(/<br>/g, "")
        Accessible.focusable: true

        background: Item {
            PbFocusRing {
                target: _how
                anchors.margins: 0
            }
        }
        contentItem: PbText {
            id: _question
            text: "<u>" + PebbleStyle.escaped(_how.Accessible.name) + "</u>"
            textFormat: Text.StyledText
            type: PbLabel.Type.Label
            color: PebbleStyle.color.lightGray
        }

        PbHoverTip {
            id: _tip
            textFormat: Text.StyledText
            hugContents: true
            text: qsTr("Suggestions are generated using <br>Autopilot image analysis, your editing <br>history and our recommendation engine.")
        }
    }
    PbButton {
        id: _save

        visible: _top.suggestions.canSavePreset
        width: parent.width
        type: PbButton.Type.Secondary
        compact: true
        iconSource: PebbleStyle.icon.presetSave
        text: qsTr("Save edits as a new preset")
        focusPolicy: _top.cursor.focusPolicy(_save)
        onClicked: _top.saveAsPreset()
    }
    PbButton {
        id: _apply

        visible: _top.suggestions.canApplyRecommendations
        width: parent.width
        type: PbButton.Type.Secondary
        compact: true
        text: qsTr("Apply recommendations")
        focusPolicy: _top.cursor.focusPolicy(_apply)
        onClicked: {
            _top.applyAutopilot();
        }

        PbAutoPilotDot {
            anchors { right: parent.right; rightMargin: PebbleStyle.size.spacing; verticalCenter: parent.verticalCenter }
            Accessible.ignored: true
        }
    }
}
