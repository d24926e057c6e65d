import QtQuick
import QtTest
import imageenhance

WindowParts {
    id: parts

    name: "Selections"


    function init(): void {
        parts.open(["/a.jpg", "/b.jpg"]);
        parts.engine.resetAll();
    }

    function test_answers_data(): var {
        const engine = parts.engine;
        return [
            { tag: "mask", answer: uid => engine.maskGenerated(uid, { a: 1 }, { b: 2 }), held: () => engine.maskTextures.maskHashes?.a, value: 1 },
            { tag: "mask of an earlier load", answer: () => engine.maskGenerated("/a.jpg#0", { a: 1 }, {}), held: () => engine.maskTextures.uid },
            { tag: "mask while exporting", exporting: true, answer: uid => engine.maskGenerated(uid, { a: 1 }, {}), held: () => engine.maskTextures.uid },
            { tag: "superpixels", answer: uid => engine.superpixelsGenerated(uid, 0.5, "pixels"), held: () => engine.superpixels, value: "pixels" },
            { tag: "superpixels of another image", answer: () => engine.superpixelsGenerated("/b.jpg#1", 0.5, "pixels"), held: () => engine.superpixels === "pixels", value: false },
            { tag: "problems", answer: uid => engine.autoProblemsUpdated(uid, { faceCount: 2 }), held: () => engine.faceProblems.totalFaces, value: 2 },
            { tag: "problems of another image", answer: () => engine.autoProblemsUpdated("", { faceCount: 3 }), held: () => engine.faceProblems.totalFaces === 3, value: false },
            { tag: "hover", answer: () => engine.subjectMaskHoverUpdated("mask"), held: () => engine.selectionMask, value: "mask" },
            { tag: "box", answer: () => engine.boundingBoxCalculated(Qt.rect(1, 2, 3, 4)), held: () => engine.boundingBox, value: Qt.rect(1, 2, 3, 4) }
        ];
    }

    function test_answers(row): void {
        parts.windowState.isExporting = row.exporting === true;
        row.answer(parts.engine.inputImage.uid);
        compare(row.held(), row.value);
    }

    function test_one_hover_question_for_a_movement(): void {
        for (let x = 0; x < 20; ++x)
            parts.preview.selectionMaskPositionChanged(Qt.point(x, 5));
        tryVerify(() => parts.backends.hovers().length > 0, 60000);
        compare(parts.backends.hovers(), [Qt.point(19, 5)]);
    }

    function test_changed_selection_asks_for_its_mask(): void {
        parts.controls.setSubjectSettings("Denoise", { model: "Sky" });
        tryVerify(() => parts.backends.masks().length > 0, 60000);
        compare(parts.backends.masks(), [{ uid: parts.engine.inputImage.uid, settings: { model: "Sky" } }]);
        parts.backends.hold(["reads"]);
        parts.controls.setCurrentIndex(1);
        parts.forget();
        parts.controls.setSubjectSettings("Denoise", { model: "Sky" });
        wait(50);
        compare(parts.backends.masks(), [], "the engine still holds the image before");
    }
}
