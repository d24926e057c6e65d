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

    function test_every_icon_resolves(): void {
        for (const [set, least] of [[PebbleStyle.icon, 100], [PebbleStyle.brand, 2], [_base.icon, 30]]) {
            const names = roles(set);
            verify(names.length >= least, `${names.length} roles`);
            for (const name of names) {
                _icon.iconSource = set[name];
                compare(_icon.status, Image.Ready, name);
            }
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

    function test_rich_text_helpers(): void {
        const blue = PebbleStyle.color.primeBlue;
        for (const [made, wanted] of [
            [PebbleStyle.bold("a"), '<b><font color="#f2f2f2">a</font></b>'],
            [PebbleStyle.hyperlink("a", "b", blue), "underline"],
            [PebbleStyle.hyperlink("a", "b", blue, false), "text-decoration: none"],
            [PebbleStyle.labelWithBackground("a"), "padding: 2px 6px"],
            [_base.wrapLink("a", "b"), "color: #a3c8ff"],
            [PebbleStyle.bold(PebbleStyle.escaped('<a href="x">&')), "&lt;a href=&quot;x&quot;&gt;&amp;"],
        ])
            verify(made.includes(wanted), made);
    }
}
