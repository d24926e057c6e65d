import QtQuick
import QtTest
import PebbleUI
import imageenhance

// What a user reads about files that can't be opened or shown and about the disk, what is asked before images are
// closed, and that one dialog stands at a time.
WindowParts {
    id: parts

    name: "Notices"
    when: windowShown
    visible: true

    readonly property string here: helpers.imageUtils.urlToString(Qt.resolvedUrl("main.cpp"))

    Component {
        id: windows

        Item {
            readonly property alias queue: _queue
            readonly property alias toaster: _toaster
            readonly property alias notices: _notices
            readonly property alias closing: _closing

            DialogQueue {
                id: _queue
            }
            Toaster {
                id: _toaster
            }
            WindowNotices {
                id: _notices
                osUtils: parts.helpers.osUtils
                imageUtils: parts.helpers.imageUtils
                toaster: _toaster
                queue: _queue
            }
            ClosingQuestions {
                id: _closing
                controls: parts.controls
                engine: parts.engine
                osUtils: parts.helpers.osUtils
                settings: parts.settings
                queue: _queue
                imageOpen: true
            }
        }
    }

    // The dialog that stands, once it is there.
    function standing(window: Item): PbDialog {
        const all = Array.from(window.notices.data).concat(Array.from(window.closing.data)).filter(object => object instanceof PbDialog);
        tryVerify(() => all.filter(dialog => dialog.opened).length === 1, 60000);
        return all.find(dialog => dialog.opened);
    }

    function press(dialog: PbDialog, text: string): void {
        const find = item => item.text === text && item.click ? item : Array.from(item.children).map(find).find(found => found);
        mouseClick(find(dialog.footer));
    }

    // A file that is there under another name each time.
    function existing(i: int): string {
        return here.replace("main.cpp", "./".repeat(i) + "main.cpp");
    }

    function test_messages_data(): var {
        const many = Array.from({ length: 12 }, (unused, i) => existing(i));
        return [
            { tag: "unreadable", tell: n => n.cannotRead("/a.jpg", "Too short."), message: "Cannot open file: /a.jpg", details: "Too short." },
            { tag: "two unreadable", tell: n => { n.cannotRead("/a.jpg", "Too short."); n.cannotRead("/b/c.png", "No picture."); n.cannotRead("/a.jpg", "Too short."); }, message: "Cannot open 2 files.", details: "a.jpg: Too short.\nc.png: No picture." },
            { tag: "missing among the unreadable", tell: n => { n.invalidImages(["/gone.jpg"]); n.cannotRead("/a.jpg", "Too short."); }, message: "Cannot open 2 files.", details: "gone.jpg: The file does not exist.\na.jpg: Too short." },
            { tag: "missing alone", tell: n => n.invalidImages(["/gone.jpg"]), message: "Cannot open file: /gone.jpg", details: "The file does not exist." },
            { tag: "unsupported, twice", tell: n => { n.invalidImages([here]); n.invalidImages([here]); }, message: "due to unsupported file types.", details: here },
            { tag: "many unsupported", tell: n => n.invalidImages(many), message: "due to unsupported file types.", details: many.slice(0, 8).join("\n") + "\nand 4 more" },
            { tag: "missing in the shell", tell: () => helpers.osUtils.fileMissing("/b/gone.jpg"), message: "Cannot show gone.jpg because it is missing.", details: "Previous location: /b/gone.jpg" },
            { tag: "shell failed", tell: () => helpers.osUtils.showFileError("/a.jpg"), message: "An error occurred", details: "File location: /a.jpg" }
        ];
    }

    function test_messages(row): void {
        const window = createTemporaryObject(windows, this);
        row.tell(window.notices);
        const dialog = standing(window);
        verify(dialog.messageText.includes(row.message), dialog.messageText);
        compare(dialog.details, row.details);
        compare(window.queue.count, 1);
    }

    function test_notices_stand_one_after_the_other(): void {
        const window = createTemporaryObject(windows, this);
        window.notices.invalidImages([here, "/gone.jpg"]);
        helpers.osUtils.fileMissing("/b.jpg");
        helpers.osUtils.fileMissing("/b.jpg");
        for (const message of ["Cannot open file: /gone.jpg", "unsupported file types", "Cannot show b.jpg"]) {
            const dialog = standing(window);
            verify(dialog.messageText.includes(message), dialog.messageText);
            tryVerify(() => dialog.settled, 60000);
            press(dialog, "Close");
        }
        compare(window.queue.count, 0);
        window.notices.cannotRead("/c.jpg", "No picture.");
        compare(standing(window).messageText, "Cannot open file: /c.jpg", "what was read is not told again");
    }

    function test_low_space_data(): var {
        return [
            { tag: "low", critical: false, title: "Low Disk Space", has: "less than 5GB of free space left on C.", type: Toaster.Type.Warn },
            { tag: "critical", critical: true, title: "Critically Low Disk Space", has: "less than 1GB of free space left on C.", type: Toaster.Type.Error }
        ];
    }

    function test_low_space(row): void {
        const window = createTemporaryObject(windows, this);
        window.notices.lowSpace("C", row.critical);
        window.notices.lowSpace("C", row.critical);
        compare(window.toaster.count, 1);
        const toast = Array.from(window.toaster.children).find(item => item instanceof ListView).model.get(0);
        compare([toast.title, toast.type, toast.timeout], [row.title, row.type, window.toaster.timeoutNone]);
        verify(toast.message.includes(row.has), toast.message);
    }

    // The second click of a double click on a notice lands on the question that comes in its place.
    function test_question_takes_no_click_meant_for_a_notice(): void {
        const window = createTemporaryObject(windows, this);
        open(["/a.jpg", "/b.jpg"]);
        window.notices.cannotRead("/c.jpg", "No picture.");
        window.closing.closeAllImages();
        const notice = standing(window);
        press(notice, "Close");
        const question = standing(window);
        verify(question !== notice);
        press(question, "Close");
        verify(question.opened);
        compare(controls.loadedImages.length, 2);
        tryVerify(() => question.settled, 60000);
        press(question, "Close");
        compare(controls.loadedImages.length, 0);
        compare(window.queue.count, 0);
    }

    // What it was asked about has changed: its answer would close others.
    function test_question_goes_with_its_images(): void {
        const window = createTemporaryObject(windows, this);
        open(["/a.jpg", "/b.jpg"]);
        window.closing.closeAllImages();
        const question = standing(window);
        controls.closeImage(0);
        verify(!question.visible);
        question.accepted();
        compare(controls.loadedImages, ["/b.jpg"]);
    }
}
