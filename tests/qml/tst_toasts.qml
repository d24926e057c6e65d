import QtQuick
import QtTest
import TImageUtils
import TQmlUtils
import imageenhance

TestCase {
    id: _case

    name: "Toasts"
    when: windowShown
    visible: true
    width: 400
    height: 300

    property var log: []

    Component {
        id: lists
        ToastList {
            timeoutDefault: 15000
        }
    }
    Component {
        id: countdowns
        ToastCountdown {
            timeout: 100
            held: true
        }
    }
    Component {
        id: spies
        SignalSpy {}
    }
    Component {
        id: toasters
        Toaster {
            width: 320
            height: implicitHeight
        }
    }
    OSUtils {
        id: _osUtils
    }
    TImageUtils {
        id: _imageUtils
    }
    DialogQueue {
        id: _queue
    }
    Component {
        id: notices
        WindowNotices {
            osUtils: _osUtils
            imageUtils: _imageUtils
            queue: _queue
        }
    }

    function init(): void {
        log = [];
    }

    function test_equal_toasts_are_one(): void {
        const list = createTemporaryObject(lists, this);
        const first = list.queue({ title: "a", message: "b", onDismiss: () => _case.log.push("first") });
        const second = list.queue({ title: "a", message: "b", onDismiss: () => _case.log.push("second") });
        list.queue({ title: "a", message: "b", type: Toaster.Type.Error });
        compare(list.count, 2);
        verify(first.active && second.active);
        second.dismiss();
        compare(log, ["first"], "the callback of the one that stands");
        verify(!first.active);
        first.dismiss();
        compare(list.count, 1);
    }

    function test_callbacks_follow_their_toast(): void {
        const list = createTemporaryObject(lists, this);
        const toasts = ["a", "b", "c"].map(title => list.queue({ title, onDismiss: () => _case.log.push(title) }));
        toasts[1].dismiss(true);
        compare(log, [], "skipped");
        toasts[2].dismiss();
        compare(log, ["c"]);
        for (const index of [-1, 1, 7])
            list.dismiss(index);
        compare(list.count, 1);
        list.dismiss(0);
        compare(log, ["c", "a"]);
    }

    function test_some_show_once_a_session(): void {
        const list = createTemporaryObject(lists, this);
        list.queue({ title: "full", message: "on C", showOnlyOnce: true }).dismiss();
        verify(!list.queue({ title: "full", message: "on C", showOnlyOnce: true }).active);
        verify(list.queue({ title: "full", message: "on D", showOnlyOnce: true }).active);
    }

    function test_toast_leaves_after_its_time(): void {
        const toaster = createTemporaryObject(toasters, this);
        verify(!toaster.visible);
        const lasting = toaster.queue({ title: "stays", timeout: toaster.timeoutNone });
        const fleeting = toaster.queue({ title: "goes", timeout: 100 });
        verify(toaster.visible);
        tryVerify(() => !fleeting.active, 60000);
        verify(lasting.active);
        lasting.dismiss();
        verify(!toaster.visible);
    }

    function test_pointer_holds_the_time(): void {
        const countdown = createTemporaryObject(countdowns, this);
        const over = createTemporaryObject(spies, this, { target: countdown, signalName: "over" });
        wait(300);
        compare(over.count, 0);
        countdown.held = false;
        tryCompare(over, "count", 1, 60000);
    }

    function test_low_space_data(): var {
        return [
            { tag: "low", critical: false, title: "Low Disk Space", has: "less than 5GB of free space left on C.", type: Toaster.Type.Warn },
            { tag: "critical", critical: true, title: "Critically Low Disk Space", has: "less than 1GB of free space left on C.", type: Toaster.Type.Error }
        ];
    }

    function test_low_space(row): void {
        const toaster = createTemporaryObject(toasters, this);
        const all = createTemporaryObject(notices, this, { toaster });
        all.lowSpace("C", row.critical);
        all.lowSpace("C", row.critical);
        compare(toaster.count, 1);
        const toast = Array.from(toaster.children).find(item => item instanceof ListView).model.get(0);
        compare([toast.title, toast.type, toast.timeout], [row.title, row.type, toaster.timeoutNone]);
        verify(toast.message.includes(row.has), toast.message);
    }
}
