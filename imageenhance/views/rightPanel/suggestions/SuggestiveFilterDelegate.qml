import QtQuick
import QtQuick.Templates as T
import PebbleUI
import imageenhance
import "../../../utils/suggestions.mjs" as Suggestions

// One suggestion, as a small sentence: Adjust the subject lighting.
T.AbstractButton {
    id: _top

    required property int index
    required property string filterType
    required property string subject
    required property bool isAPFilter
    required property SuggestionList suggestions

    readonly property alias sentence: _state.sentence
    readonly property alias becomesTiff: _state.becomesTiff
    readonly property alias leaving: _state.leaving // it is no row any more

    signal hoverSubject(show: bool, subject: string)

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, background, PebbleStyle.size.mediumRadius);
    }

    implicitHeight: 42
    height: implicitHeight
    leftPadding: PebbleStyle.size.spacing
    rightPadding: PebbleStyle.size.spacing
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: sentence
    Accessible.description: [isAPFilter ? qsTr("Recommended by Autopilot") : "", becomesTiff ? _tiff.text.replace("<br>", "") : ""].filter(part => part !== "").join(". ")
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()
    onVisualFocusChanged: focusRing()
    ListView.onRemove: _state.leaving = true

    background: PbBox {
        radius: PebbleStyle.size.mediumRadius
        color: _top.hovered || _top.down ? PebbleStyle.color.darkerGray : PebbleStyle.color.panelBkg
        border.width: PebbleStyle.size.border
        border.color: PebbleStyle.color.darkGray
    }

    contentItem: Item {
        clip: _words.height > height

        PbIcon {
            id: _icon
            iconSource: _top.suggestions.vocabulary.icon(_state.category)
            anchors.verticalCenter: parent.verticalCenter
        }
        // Word by word, so that a long sentence takes two lines.
        Flow {
            id: _words
            anchors { left: _icon.right; right: _marks.left; margins: PebbleStyle.size.spacing; verticalCenter: parent.verticalCenter }
            spacing: PebbleStyle.size.spacingSmall

            PbText {
                text: _state.words.before
                width: Math.min(implicitWidth, _words.width)
            }
            PbText {
                visible: _state.words.article
                text: qsTr("the")
            }
            PbText {
                objectName: "subject"
                visible: text !== ""
                text: _state.words.subject
                width: Math.min(implicitWidth, _words.width)
                color: PebbleStyle.color.textBlue

                HoverHandler {
                    id: _hover
                }
            }
            PbText {
                visible: text !== ""
                text: _state.words.after
                width: Math.min(implicitWidth, _words.width)
            }
        }
        Row {
            id: _marks
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            spacing: PebbleStyle.size.spacing

            PbIcon {
                visible: _top.becomesTiff
                iconSource: PebbleStyle.icon.warning
                color: PebbleStyle.color.textWarning
                anchors.verticalCenter: parent.verticalCenter

                PbHoverTip {
                    id: _tiff
                    textFormat: Text.StyledText
                    hugContents: true
                    text: qsTr("RAW images will be converted to TIFF <br>when exporting with this enhancement")
                }
            }
            PbAutoPilotDot {
                visible: _top.isAPFilter
                anchors.verticalCenter: parent.verticalCenter
                Accessible.ignored: true
            }
        }
    }

    QtObject {
        id: _state

        property bool leaving: false
        readonly property bool subjectHovered: _hover.hovered && !leaving
        readonly property string category: _top.suggestions.categoryOf(_top.filterType)
        readonly property bool lightOrColor: [_top.suggestions.controls.categories.exposure, _top.suggestions.controls.categories.whiteBalance].includes(category)
        readonly property bool becomesTiff: lightOrColor && _top.suggestions.controls.isRaw
        readonly property var words: Suggestions.sentence(_top.filterType, _top.subject, lightOrColor)
        readonly property string sentence: [words.before, words.article ? qsTr("the") : "", words.subject, words.after].filter(word => word !== "").join(" ")

        onSubjectHoveredChanged: _top.hoverSubject(subjectHovered, _top.subject)
    }
}
