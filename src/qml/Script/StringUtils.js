.pragma library

// StringUtils: null and blank tests, file paths and menu accelerator marks.
//
// A stateless shared library. Functions that transform text return a null, undefined or
// non-text argument unchanged where the transformation has no meaning for it, rather than
// throwing.

function isNullOrUndefined(p_value) {
    return p_value === undefined || p_value === null
}

function nullIfUndefined(p_value) {
    return p_value === undefined ? null : p_value
}

// Null (or undefined) or the empty string.
function isNullOrEmpty(p_value) {
    return isNullOrUndefined(p_value) || p_value === ""
}

// Null (or undefined) or a text without any non-white-space character.
function isNullOrWhiteSpace(p_value) {
    return isNullOrUndefined(p_value) || !/\S/.test(String(p_value))
}

// Falsy (undefined, null, "", 0, false), of length 0, or made only of white space.
function isBlank(p_value) {
    return !p_value || p_value.length === 0 || /^\s*$/.test(String(p_value))
}

// A local file URL made usable as a path: when the text contains "file:///", its first seven
// characters are dropped, which keeps the third slash ("file:///home/a" gives "/home/a");
// then, on Windows only, a leading "/" is dropped ("file:///C:/a" gives "C:/a"). Accepts
// url values as well as strings; null and undefined are returned unchanged.
function formatQMLPath(p_path) {
    if (isNullOrUndefined(p_path))
        return p_path
    let path = String(p_path)
    if (path.indexOf("file:///") >= 0)
        path = path.substring(7)
    if (Qt.platform.os === "windows" && path.charAt(0) === "/")
        path = path.substring(1)
    return path
}

// Resolves the menu accelerator mark: the first "&" and the character after it become that
// character, wrapped in <u></u> when p_underline is true. "&File" gives "File" or
// "<u>F</u>ile"; "&&" gives "&". A text without a mark, or ending in a lone "&", is returned
// unchanged.
function formatMnemonic(p_text, p_underline = false) {
    if (typeof p_text !== "string")
        return p_text
    return p_text.replace(/&([\s\S])/, p_underline ? "<u>$1</u>" : "$1")
}

function threeDotted(p_string) {
    if (isNullOrEmpty(p_string))
        return p_string
    return p_string + "..."
}

function capitalized(p_string) {
    if (typeof p_string !== "string" || p_string.length === 0)
        return p_string
    return p_string.charAt(0).toUpperCase() + p_string.slice(1)
}
