import QtQuick
import QtTest
import imageenhance

TestCase {
    name: "Toasts"
    when: windowShown
    visible: true
    width: 400
    height: 300

    property var log: []

    ToastList {
        id: list
        timeoutDefault: 15000
    }
    ToastCountdown {
        id: countdown
        timeout: 100
        held: true
    }
    SignalSpy {
        id: over
        target: countdown
        signalName: "over"
    }
    Toaster {
        id: toaster
        width: 320
        height: implicitHeight
    }

    function init(): void {
        while (list.count > 0)
            list.dismiss(0);
        log = [];
    }

    function test_equal_toasts_are_one(): void {
        const first = list.queue({ title: "a", message: "b", onDismiss: () => log.push("first") });
        const second = list.queue({ title: "a", message: "b", onDismiss: () => log.push("second") });
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
        const toasts = ["a", "b", "c"].map(title => list.queue({ title, onDismiss: () => log.push(title) }));
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
        list.queue({ title: "full", message: "on C", showOnlyOnce: true }).dismiss();
        verify(!list.queue({ title: "full", message: "on C", showOnlyOnce: true }).active);
        verify(list.queue({ title: "full", message: "on D", showOnlyOnce: true }).active);
    }

    function test_toast_leaves_after_its_time(): void {
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
        wait(300);
        compare(over.count, 0);
        countdown.held = false;
        tryCompare(over, "count", 1, 60000);
    }
}
