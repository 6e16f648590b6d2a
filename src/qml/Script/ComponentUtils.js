.pragma library

.import QtQml as QtQml

// ComponentUtils: object creation, measuring, delayed calls, tri-state aggregation and focus.
//
// A stateless shared library. Timers: delayFunction() works on a Timer that the caller owns
// (declare one in the document and pass it in), so a burst of calls shares one pending call
// and the timer dies with its owner. delayFunction2() creates its own single-shot Timer with
// Qt.createQmlObject(), parented to the application object (Qt.application) because a shared
// library has no item of its own; the timer destroys itself once it has fired.

// Tri-state values of vynBoolFromVynBoolEvaluation(), the same numbers as the VynBOOL
// tri-state of QtCommons: off, on, and the mixed/warning state.
var VynNO = 0
var VynYES = 1
var VynWARNING = 2

// Where the colour swatch document lives, relative to this library.
var _colorIconUrl = Qt.resolvedUrl("../Icon/VynColorIcon.qml")

// Creates the component from qmlFile and an object of it under parent, with the initial
// properties when given. qmlFile is a URL; a relative one resolves against this library's
// folder, so documents pass Qt.resolvedUrl("MyItem.qml") for their own files. Returns null
// (and logs the component's errors) when the file cannot be loaded synchronously or the
// object cannot be created.
function createObjectLocal(qmlFile, parent, p_initProperties = null) {
    const component = Qt.createComponent(qmlFile)
    if (component.status !== QtQml.Component.Ready) {
        if (component.status === QtQml.Component.Error)
            console.warn("ComponentUtils.createObjectLocal:", component.errorString())
        else
            console.warn("ComponentUtils.createObjectLocal: not loaded synchronously:", qmlFile)
        return null
    }
    const object = p_initProperties ? component.createObject(parent, p_initProperties)
                                    : component.createObject(parent)
    if (!object) {
        console.warn("ComponentUtils.createObjectLocal: cannot create an object of", qmlFile,
                     component.errorString())
        return null
    }
    return object
}

// Renders a colour swatch (VynColorIcon) to an image of targetSize. A temporary icon is
// created under parent (which must be an item shown in a window for the grab to run),
// configured, grabbed and destroyed. callback receives the grab result (an
// ItemGrabResult: image, url, saveToFile) or null when the icon cannot be created or the
// grab cannot start. Qt releases the grab result when the callback returns: use it (save
// it, show its url, copy its image) inside the callback. Returns true when the grab
// started.
function imageWithColorIconOfSize(parent, index, allowsMixed, mixed, style, pixelRatio, callback,
                                  targetSize = Qt.size(20, 20)) {
    const deliver = function (p_result) {
        if (typeof callback === "function")
            callback(p_result)
    }
    const icon = createObjectLocal(_colorIconUrl, parent, {
                                       "visible": true,
                                       "width": targetSize.width,
                                       "height": targetSize.height
                                   })
    if (!icon) {
        deliver(null)
        return false
    }
    icon.allowsMixed = allowsMixed
    icon.setIndex(index)
    icon.mixed = mixed
    icon.vynStyle = style
    icon.vynPixelRatio = pixelRatio

    const started = icon.grabToImage(function (p_result) {
        icon.destroy()
        deliver(p_result)
    }, targetSize)
    if (!started) {
        icon.destroy()
        deliver(null)
    }
    return started
}

// The item's width (height) when positive, else its implicit width (height); 0 for no item.
function validWidth(p_item) {
    if (!p_item)
        return 0
    return p_item.width > 0 ? p_item.width : p_item.implicitWidth
}

function validHeight(p_item) {
    if (!p_item)
        return 0
    return p_item.height > 0 ? p_item.height : p_item.implicitHeight
}

// Width of p_measuredText drawn in the font of p_fontObject (an object with a font property,
// such as a Text or a Label, or a font value itself), measured on a hidden temporary Text
// that is destroyed afterwards.
function fontWidth(p_fontObject, p_measuredText) {
    if (!p_fontObject)
        return 0
    const font = p_fontObject.font !== undefined ? p_fontObject.font : p_fontObject
    const parent = (typeof p_fontObject === "object" && p_fontObject.font !== undefined)
            ? p_fontObject : Qt.application
    const text = Qt.createQmlObject("import QtQuick; Text { visible: false }", parent,
                                    "ComponentUtils.fontWidth")
    text.font = font
    text.text = p_measuredText === undefined || p_measuredText === null ? ""
                                                                         : String(p_measuredText)
    const width = text.paintedWidth
    text.destroy()
    return width
}

// Debounced call on a caller-owned Timer. When the timer is already running, it is restarted
// if p_restartIfNeeded is true and p_callback is dropped: the first callback of a burst is the
// one that runs, once, a delay after the last restart. Otherwise the timer is made
// single-shot with p_delayTime ms, p_callback is connected for that one firing, and the timer
// starts. Returns true when p_callback was scheduled, false when it was dropped.
function delayFunction(p_timerInstance, p_delayTime, p_callback, p_restartIfNeeded = false) {
    if (!p_timerInstance) {
        console.warn("ComponentUtils.delayFunction: no timer given, the call is dropped")
        return false
    }
    if (p_timerInstance.running) {
        if (p_restartIfNeeded)
            p_timerInstance.restart()
        return false
    }
    p_timerInstance.repeat = false
    p_timerInstance.interval = p_delayTime
    const once = function () {
        p_timerInstance.triggered.disconnect(once)
        if (typeof p_callback === "function")
            p_callback()
    }
    p_timerInstance.triggered.connect(once)
    p_timerInstance.start()
    return true
}

// Runs p_callBack once, p_delayTime ms from now, on a new single-shot Timer. Returns the
// timer: calling its stop() and destroy() cancels the call.
function delayFunction2(p_delayTime, p_callBack) {
    const timer = Qt.createQmlObject("import QtQml; Timer { repeat: false }", Qt.application,
                                     "ComponentUtils.delayFunction2")
    timer.interval = p_delayTime
    timer.triggered.connect(function () {
        timer.destroy()
        if (typeof p_callBack === "function")
            p_callBack()
    })
    timer.start()
    return timer
}

// Tri-state aggregation over the first p_objectSize objects of p_enumerationObject (an array,
// or a model with get()): p_evaluationFunc(object, skip) answers VynNO, VynYES or
// VynWARNING. The first answer is taken; a VynWARNING, or a later answer that differs from
// the first, returns VynWARNING at once; no object (also a missing p_enumerationObject) gives
// p_defaultReturn.
// The skip flag reaches the evaluation function by value, so setting it there has no effect
// and no object is ever skipped. Callers are written against that, so it is kept.
function vynBoolFromVynBoolEvaluation(p_enumerationObject, p_objectSize, p_evaluationFunc,
                                      p_defaultReturn) {
    if (p_enumerationObject === undefined || p_enumerationObject === null)
        return p_defaultReturn
    let result = p_defaultReturn
    let first = true
    for (let i = 0; i < p_objectSize; ++i) {
        const object = typeof p_enumerationObject.get === "function"
                ? p_enumerationObject.get(i) : p_enumerationObject[i]
        const skip = false
        const value = p_evaluationFunc(object, skip)
        if (skip)
            continue
        if (value === VynWARNING)
            return VynWARNING
        if (first) {
            result = value
            first = false
        } else if (value !== result) {
            return VynWARNING
        }
    }
    return result
}

// Maps p_point from p_itemPoint's coordinates to p_targetItem's (the scene's when
// p_targetItem is null), then adds 1 to each coordinate greater than 0, so that a point on an
// item's far edge tests as outside it. Returns null when p_itemPoint is missing.
function vynPointToLocalPoint(p_itemPoint, p_point, p_targetItem) {
    if (!p_itemPoint)
        return null
    const mapped = p_itemPoint.mapToItem(p_targetItem ? p_targetItem : null, p_point.x,
                                         p_point.y)
    return Qt.point(mapped.x > 0 ? mapped.x + 1 : mapped.x, mapped.y > 0 ? mapped.y + 1
                                                                           : mapped.y)
}

// Gives active focus, with the tab reason, to the item after p_item in the focus chain and
// returns it; null when there is none.
function giveFocusToNextItem(p_item) {
    if (!p_item)
        return null
    const next = p_item.nextItemInFocusChain(true)
    if (!next)
        return null
    next.forceActiveFocus(Qt.TabFocusReason)
    return next
}
