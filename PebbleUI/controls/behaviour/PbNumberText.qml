import QtQml

// Between numbers and the text of a field. Text uses a point whatever the language, as `toFixed` does; a
// typed decimal comma is turned into one.
QtObject {
    id: _top

    property int decimals: 0

    // That of the language while it is empty; asked for at the first key, since a locale is expensive to make.
    property string decimalPoint: ""

    // NaN for anything but a plain decimal number: no blanks, exponents or other bases.
    function parse(text: string): real {
        return /^[+-]?(\d+\.?\d*|\.\d+)$/.test(text) ? Number(text) : Number.NaN;
    }

    function format(value: real): string {
        return value.toFixed(decimals);
    }

    // At the precision on show; a value between two steps is no different from its text.
    function differs(text: string, value: real): bool {
        const number = parse(text);
        return !Number.isNaN(number) && format(number) !== format(value);
    }

    // True for the key of the language's decimal separator where the text needs a point instead.
    function isForeignPoint(typed: string): bool {
        return decimals > 0 && typed !== "." && (typed === "," || typed === (decimalPoint || Qt.locale().decimalPoint));
    }
}
