import QtQuick
import QtTest
import TControls
import imageenhance

TestCase {
    id: _case

    name: "Selections"

    property bool exporting: false

    QtObject {
        id: engine

        property var calls: []
        property var inputImage: ({ uid: "/a.jpg#2", filepath: "/a.jpg" })
        property var maskTextures: null
        property var superpixels: null
        property var selectionMask: null
        property var boundingBox: null
        property var problems: null

        signal maskGenerated(uid: string, maskHashes: var, brushTextures: var)
        signal superpixelsGenerated(uid: string, brushSize: real, image: var)
        signal subjectMaskHoverUpdated(mask: var)
        signal boundingBoxCalculated(rect: rect)
        signal autoProblemsUpdated(uid: string, problems: var)

        function editSubjectMask(image: var, settings: var): void {
            calls.push({ uid: image.uid, settings });
        }
        function updateSelectionMaskHover(image: var, settings: var, position: point): void {
            calls.push(position);
        }
        function takeProblems(found: var): void {
            problems = found;
        }
    }
    TControls {
        id: controls
    }
    QtObject {
        id: preview
        signal selectionMaskPositionChanged(position: point)
    }
    Selections {
        engine: engine
        controls: controls
        preview: preview
        exporting: _case.exporting
    }

    function initTestCase(): void {
        controls.loadImages(["/a.jpg", "/b.jpg"]);
    }

    function init(): void {
        exporting = false;
        controls.setCurrentIndex(0);
        for (const holder of ["maskTextures", "superpixels", "selectionMask", "boundingBox", "problems"])
            engine[holder] = null;
        engine.calls = [];
    }

    function test_answers_data(): var {
        const shown = "/a.jpg#2";
        return [
            { tag: "mask", answer: () => engine.maskGenerated(shown, { a: 1 }, { b: 2 }), holder: "maskTextures", held: { uid: shown, maskHashes: { a: 1 }, brushTextures: { b: 2 } } },
            { tag: "mask of an earlier load", answer: () => engine.maskGenerated("/a.jpg#1", {}, {}), holder: "maskTextures", held: null },
            { tag: "mask while exporting", exporting: true, answer: () => engine.maskGenerated(shown, {}, {}), holder: "maskTextures", held: null },
            { tag: "superpixels", answer: () => engine.superpixelsGenerated(shown, 0.5, "pixels"), holder: "superpixels", held: "pixels" },
            { tag: "superpixels of another image", answer: () => engine.superpixelsGenerated("/b.jpg#1", 0.5, "pixels"), holder: "superpixels", held: null },
            { tag: "problems", answer: () => engine.autoProblemsUpdated(shown, { faceCount: 2 }), holder: "problems", held: { faceCount: 2 } },
            { tag: "problems of another image", answer: () => engine.autoProblemsUpdated("", {}), holder: "problems", held: null },
            { tag: "hover", answer: () => engine.subjectMaskHoverUpdated("mask"), holder: "selectionMask", held: "mask" },
            { tag: "box", answer: () => engine.boundingBoxCalculated(Qt.rect(1, 2, 3, 4)), holder: "boundingBox", held: Qt.rect(1, 2, 3, 4) }
        ];
    }

    function test_answers(row): void {
        exporting = row.exporting === true;
        row.answer();
        compare(engine[row.holder], row.held);
    }

    function test_one_hover_question_for_a_movement(): void {
        for (let x = 0; x < 20; ++x)
            preview.selectionMaskPositionChanged(Qt.point(x, 5));
        tryCompare(engine.calls, "length", 1, 60000);
        compare(engine.calls, [Qt.point(19, 5)]);
    }

    function test_changed_selection_asks_for_its_mask(): void {
        controls.subjectSettingsChanged({ model: "Sky" });
        compare(engine.calls, [{ uid: "/a.jpg#2", settings: { model: "Sky" } }]);
        controls.setCurrentIndex(1);
        engine.calls = [];
        controls.subjectSettingsChanged({ model: "Sky" });
        compare(engine.calls.length, 0, "the engine still holds the image before");
    }
}
