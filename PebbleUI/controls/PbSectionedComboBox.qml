pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// A choice whose rows are in sections. An entry `{ section: true, text }` heads one; with a null text it
// is a rule. Nothing can rest on such an entry: whatever leads there ends at the last row chosen.
PbComboBox {
    id: _top

    enum Outline { None, Warning, Error }
    enum Type { Default, Compact }

    property string sectionRole: "section"
    readonly property alias prevIndex: _sections.prevIndex

    function setIndex(index: int): void {
        PbBoundProperty.write(_top, "currentIndex", _sections.settle(index));
    }

    function setValue(value: var): void {
        setIndex(Math.max(0, rows.indexOf(value, valueRole)));
    }

    onCurrentIndexChanged: _private.settle()
    Component.onCompleted: _private.start()

    Keys.onPressed: event => {
        if (event.accepted)
            return;
        const from = popup.visible ? highlightedIndex : currentIndex;
        const typed = event.text.trim();
        const moves = [Qt.Key_Up, Qt.Key_Down, Qt.Key_Home, Qt.Key_End].includes(event.key);
        if (!moves && (typed === "" || event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)
                       || event.key === Qt.Key_Escape))
            return;
        event.accepted = true;
        const target = moves ? _sections.keyTarget(event.key, from) : _sections.search(typed, from, textRole);
        if (target !== -1 && target !== from)
            _private.go(from, target);
    }

    delegate: PbComboSectionRow {
        required property int index

        width: ListView.view?.width ?? 0
        isSection: _sections.isSection(index)
        text: _top.rows.text(index, _top.textRole)
        secondary: _top.rows.isPlain ? "" : _top.rows.text(index, _top.secondaryRole)
        current: _top.currentIndex === index
        highlighted: _top.highlightedIndex === index
        withDot: _top.autoValue !== null
        isAuto: withDot && _top.rows.read(index, _top.valueRole) === _top.autoValue
    }

    PbSectionRules {
        id: _sections
        rows: _top.rows
        sectionRole: _top.sectionRole
    }

    QtObject {
        id: _private

        property bool started: false

        // Changes only when the rows that the rules read have changed, too.
        readonly property var model: _top.rows.model
        onModelChanged: {
            if (started)
                restart();
        }

        function start(): void {
            started = true;
            settle();
        }

        // The toolkit goes to the first entry of a new model.
        function restart(): void {
            _sections.prevIndex = -1;
            _top.setIndex(_top.count > 0 ? 0 : -1);
        }

        function settle(): void {
            const index = _sections.settle(_top.currentIndex);
            if (index !== _top.currentIndex)
                PbBoundProperty.write(_top, "currentIndex", index);
        }

        // The highlight in the open list can only be moved step by step.
        function go(from: int, target: int): void {
            if (!_top.popup.visible) {
                PbBoundProperty.write(_top, "currentIndex", target);
                _top.activated(target);
                return;
            }
            for (let step = from; step < target; ++step)
                _top.incrementCurrentIndex();
            for (let step = from; step > target; --step)
                _top.decrementCurrentIndex();
        }
    }
}
