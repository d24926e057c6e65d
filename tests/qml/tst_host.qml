import QtQuick
import QtTest
import Testing
import imageenhance

WindowParts {
    id: parts

    name: "HostConnection"

    HostConnection {
        id: host
        integrations: parts.backends.host
        intercom: parts.backends.intercom
        controls: parts.controls
        onLoadingFailed: (path, error) => parts.log.push([path, error])
        onTrack: (name, properties) => parts.log.push([name, properties.a])
    }

    function init(): void {
        parts.open([]);
    }

    function test_burst_of_instances_does_not_move_the_view(): void {
        const integrations = parts.backends.host;
        integrations.pluginImagesAdded(["/a.jpg"], false);
        integrations.pluginImagesAdded(["/b.jpg"], true);
        compare([parts.controls.loadedImages, parts.controls.currentIndex], [["/a.jpg", "/b.jpg"], 0]);
        tryVerify(() => !host.merging, 60000);
        integrations.pluginImagesAdded(["/c.jpg"], true);
        compare(parts.controls.currentImage, "/c.jpg", "the first after a pause is shown");
    }

    function test_messages_of_others(): void {
        const integrations = parts.backends.host;
        parts.backends.intercom.isServer = true;
        compare(parts.backends.intercom.key, integrations.mergableInstanceKey, "an instance that took over takes merges");
        integrations.currentImage = "/a.jpg";
        integrations.loadingError = "The host has gone.";
        integrations.loadingError = "";
        integrations.trackEvent("used", { a: 1 });
        compare(log, [["/a.jpg", "The host has gone."], ["used", 1]]);
    }
}
