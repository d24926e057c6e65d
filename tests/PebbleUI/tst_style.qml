import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Style"

    PbIcon { id: _icon; size: 32 }
    PbBusySpinner { id: _spinner }
    BaseTheme { id: _base }

    function roles(set: QtObject): var {
        return Object.keys(set).filter(name => typeof set[name] === "object" && name !== "objectName"
                                               && !name.startsWith("_") && name !== "dualSpinner");
    }

    function test_every_icon_resolves_data(): var {
        return [
            { tag: "PebbleStyle.icon", set: PebbleStyle.icon, least: 100 },
            { tag: "PebbleStyle.brand", set: PebbleStyle.brand, least: 2 },
            { tag: "BaseTheme.icon", set: _base.icon, least: 30 },
        ];
    }

    function test_every_icon_resolves(row: var): void {
        const names = roles(row.set);
        verify(names.length >= row.least, `${names.length} roles`);
        for (const name of names) {
            _icon.iconSource = row.set[name];
            compare(_icon.status, Image.Ready, name);
        }
    }

    function test_missing_icon_is_told_and_hidden(): void {
        ignoreWarning(/cannot be shown/);
        ignoreWarning(/Failed to get image/);
        _icon.iconSource = "qrc:/PebbleUI/PebbleUI/icons/no-such-role.svg";
        verify(!_icon.visible);
    }

    function test_icon_is_drawn_in_its_colour(): void {
        _icon.iconSource = PebbleStyle.icon.fullView;
        for (const wanted of ["#ff2156", "#a6ff00"]) {
            _icon.color = wanted;
            const picture = grabImage(_icon);
            let seen = false;
            for (let x = 0; x < picture.width; ++x)
                seen = seen || Qt.colorEqual(picture.pixel(x, picture.height / 2), wanted);
            verify(seen, wanted);
        }
    }

    function test_spinner_plays_only_while_it_can_be_seen(): void {
        verify(_spinner.playing && _spinner.frameCount > 1);
        _spinner.parent.visible = false;
        verify(!_spinner.playing);
        _spinner.parent.visible = true;
        _spinner.running = false;
        verify(!_spinner.visible && !_spinner.playing);
    }

    function test_rich_text_helpers_data(): var {
        const blue = PebbleStyle.color.primeBlue;
        return [
            { tag: "bold in the default colour", made: PebbleStyle.bold("a"), wanted: '<b><font color="#f2f2f2">a</font></b>' },
            { tag: "link, underlined unless told", made: PebbleStyle.hyperlink("a", "b", blue), wanted: "underline" },
            { tag: "link without a line", made: PebbleStyle.hyperlink("a", "b", blue, false), wanted: "text-decoration: none" },
            { tag: "span of defaults", made: PebbleStyle.labelWithBackground("a"), wanted: "padding: 2px 6px" },
            { tag: "older link", made: _base.wrapLink("a", "b"), wanted: "color: #a3c8ff" },
            { tag: "outside text", made: PebbleStyle.bold(PebbleStyle.escaped('<a href="x">&')), wanted: "&lt;a href=&quot;x&quot;&gt;&amp;" },
        ];
    }

    function test_rich_text_helpers(row: var): void {
        verify(row.made.includes(row.wanted), row.made);
    }
}
