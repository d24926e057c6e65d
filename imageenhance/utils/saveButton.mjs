// What the button says that exports the selected images. `host` is the name of the program that the result goes back to;
// null outside plug-in mode.
export function saveButtonText(count, host, texts) {
    const what = count > 1 ? texts.several.arg(count) : host === null ? texts.one : texts.export;
    return host === null ? what : texts.to.arg(what).arg(host === "Adobe Lightroom Classic" ? "Adobe LrC" : host);
}
