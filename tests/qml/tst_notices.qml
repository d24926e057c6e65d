import QtQuick
import QtTest
import PebbleUI
import imageenhance

// What a user reads about files that can't be opened or shown.
TestCase {
    id: _case

    name: "Notices"
    when: windowShown
    visible: true
    width: 800
    height: 600

    QtObject {
        id: fakeOsUtils
        signal fileMissing(path: string)
        signal showFileError(path: string)
        function fileExists(path: string): bool {
            return !path.startsWith("/gone");
        }
    }
    QtObject {
        id: fakeImageUtils
        function getFilename(path: string): string {
            return path.slice(path.lastIndexOf("/") + 1);
        }
    }
    Component {
        id: all
        WindowNotices {
            osUtils: fakeOsUtils
            imageUtils: fakeImageUtils
            toaster: null
        }
    }

    // Message and details of the dialog that stands.
    function read(notices: var): var {
        tryVerify(() => notices.anyOpen, 60000);
        const dialog = Array.from(notices.data).find(object => object instanceof PbDialog);
        return { dialog, message: dialog.messageText, details: dialog.details };
    }

    function test_messages_data(): var {
        const many = Array.from({ length: 12 }, (unused, i) => `/${i}.txt`);
        return [
            { tag: "unreadable", tell: n => n.cannotRead("/a.jpg", "Too short."), message: "Cannot open file: /a.jpg", details: "Too short." },
            { tag: "two unreadable", tell: n => { n.cannotRead("/a.jpg", "Too short."); n.cannotRead("/b/c.png", "No picture."); }, message: "Cannot open 2 files.", details: "a.jpg: Too short.\nc.png: No picture." },
            { tag: "unsupported", tell: n => n.invalidImages(["/a.txt", "/gone.jpg"]), message: "unsupported file types", details: "/a.txt\n/gone.jpg" },
            { tag: "none exists", tell: n => n.invalidImages(["/gone.jpg"]), message: "do not exist", details: "/gone.jpg" },
            { tag: "many unsupported", tell: n => n.invalidImages(many), message: "unsupported file types", details: many.slice(0, 8).join("\n") + "\nand 4 more" },
            { tag: "missing in the shell", tell: () => fakeOsUtils.fileMissing("/b/gone.jpg"), message: "Cannot show gone.jpg because it is missing.", details: "Previous location: /b/gone.jpg" },
            { tag: "shell failed", tell: () => fakeOsUtils.showFileError("/a.jpg"), message: "An error occurred", details: "File location: /a.jpg" }
        ];
    }

    function test_messages(row): void {
        const notices = createTemporaryObject(all, this);
        row.tell(notices);
        const read = _case.read(notices);
        verify(read.message.includes(row.message), read.message);
        compare(read.details, row.details);
    }

    function test_files_that_failed_before_are_not_told_again(): void {
        const notices = createTemporaryObject(all, this);
        notices.cannotRead("/a.jpg", "Too short.");
        read(notices).dialog.close();
        tryVerify(() => !notices.anyOpen, 60000);
        notices.cannotRead("/b.jpg", "No picture.");
        compare(read(notices).message, "Cannot open file: /b.jpg");
    }
}
