.pragma library

// LogHelper: timestamped console logging for the controls.
//
// Lines read "[2024.03.07 09:05:01.042][VynSlideField][pressed] message": the local time,
// the control name and the event name in brackets with nothing between them, a blank, then
// the message passed as a second console argument (so objects keep their own formatting).

function _pad(p_number, p_width) {
    let text = String(p_number)
    while (text.length < p_width)
        text = "0" + text
    return text
}

// Local time as "yyyy.MM.dd hh:mm:ss.zzz".
function timestamp() {
    const now = new Date()
    return now.getFullYear() + "." + _pad(now.getMonth() + 1, 2) + "." + _pad(now.getDate(), 2)
            + " " + _pad(now.getHours(), 2) + ":" + _pad(now.getMinutes(), 2) + ":"
            + _pad(now.getSeconds(), 2) + "." + _pad(now.getMilliseconds(), 3)
}

// Runs p_function and returns the milliseconds it took. An exception thrown by the function
// propagates to the caller.
function checktimeMs(p_function) {
    const start = Date.now()
    p_function()
    return Date.now() - start
}

function _prefix(controlName, eventName) {
    return "[" + timestamp() + "][" + controlName + "][" + eventName + "]"
}

function log(controlName, eventName, message) {
    console.log(_prefix(controlName, eventName), message)
}

function debug(controlName, eventName, message) {
    console.debug(_prefix(controlName, eventName), message)
}
