import QtQuick
import QtQuick.Controls.Basic as Basic
import VynUI 1.2

import "../Script/ComponentUtils.js" as ComponentUtils

// The module's single-line text field: the base of the slide field and of every control that
// shows an editable text.
//
// Text model. `defaultText` is what the field shows while the user is not editing; it is
// usually bound to the model (a value's text). `fullText` is the whole, unelided text: the
// default text while idle, the typed text while editing. When the field does not hold the
// focus and the default text is wider than the room inside the field, `text` shows it elided
// on the right; as soon as the field takes the focus the full text comes back for editing, so
// an accepted entry always reads the full text, never the elided one.
//
// Accepting. Editing finishes on Return or Enter, or when the field loses the focus. Then
// `onAcceptedCallback(p_fullText, p_byKey)` runs (a replaceable function property, null by
// default) with the typed text and whether the accept key was pressed; after it returns, the
// focus moves to the next item in the focus chain when the key was pressed and
// `giveFocusToNextItemOnAccepted` is set, else the field just gives the focus up. Escape
// drops the edit and gives the focus up. Derived documents set the callback imperatively
// (Component.onCompleted: onAcceptedCallback = myFunction): a binding written
// `onAcceptedCallback: ...` would be read as a signal handler. Either way the field shows `defaultText` again,
// which by then reflects whatever the callback did to the model.
//
// Look. `drawsBackground` and `drawsBorder` switch the well and its frame (an inline field in
// a table draws neither); `mixed` shows the text in the catalogue's mixed colour (a multiple
// selection). `autoResize` makes the implicit width follow the text. Metrics and colours come
// from VynUIQmlConstants for `vynStyle`, `vynControlSize`, `vynPixelRatio` and `vynPixelRatioFont`; the insets
// `leftInset`/`rightInset` of the background let a subclass put items beside the well
// inside the field's own bounds.
Basic.TextField {
    id: root

    property int vynStyle: VynColorUtils.VynStyleDark
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property real vynPixelRatio: 1.0
    // Scale of the font sizes, apart from the frame's (see VynItem).
    property real vynPixelRatioFont: 1.0
    // The catalogue's metrics and colours for this look (see VynItem).
    readonly property VynUIMetrics vynMetrics: VynUIQmlConstants.metrics(vynControlSize, vynPixelRatio,
                                                                         vynPixelRatioFont, vynStyle)

    property string defaultText: ""
    property string fullText: defaultText
    property bool autoResize: false
    property bool drawsBorder: true
    property bool drawsBackground: true
    property bool mixed: false
    property var onAcceptedCallback: null
    property bool giveFocusToNextItemOnAccepted: true

    // True while the user edits (the field holds the active focus).
    readonly property bool editing: activeFocus
    // Extra room the subclass reserves inside the well on each side of the text.
    property real textInsetLeft: 0
    property real textInsetRight: 0

    property bool _acceptKeyPressed: false
    // An edit is open from the moment the field takes the focus until it is accepted or
    // cancelled, so that the focus loss that follows an accept does not accept twice.
    property bool _editOpen: false

    // Gives the focus up without accepting what was typed.
    function cancelEditing() {
        _editOpen = false
        _acceptKeyPressed = false
        fullText = Qt.binding(() => root.defaultText)
        focus = false
        text = Qt.binding(() => root._shownText())
    }

    // One measurement per change of the text, font or room: the elided text while idle.
    function _shownText() {
        if (editing)
            return fullText
        const room = Math.max(0, width - leftPadding - rightPadding)
        return fontMetrics.font.pixelSize > 0 ? fontMetrics.elidedText(fullText, Qt.ElideRight, room)
                                              : fullText
    }

    function _accept() {
        if (!_editOpen)
            return
        _editOpen = false
        const typed = text
        const byKey = _acceptKeyPressed
        _acceptKeyPressed = false
        fullText = Qt.binding(() => root.defaultText)
        if (typeof onAcceptedCallback === "function")
            onAcceptedCallback.call(root, typed, byKey)
        if (byKey && giveFocusToNextItemOnAccepted)
            ComponentUtils.giveFocusToNextItem(root)
        focus = false
        text = Qt.binding(() => root._shownText())
    }

    text: _shownText()
    font.pixelSize: vynMetrics.fontSize
    font.family: VynFonts.vynFamilyRegular
    color: mixed ? vynMetrics.textViewTextColorMixed : vynMetrics.textViewTextColor
    selectionColor: vynMetrics.controlOnGradientColorMiddle
    selectedTextColor: vynMetrics.controlTextColorOn
    placeholderTextColor: vynMetrics.labelColorTertiary
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    opacity: enabled ? 1.0 : vynMetrics.disabledAlpha

    implicitHeight: vynMetrics.textFieldHeight
    implicitWidth: autoResize
                   ? leftPadding + rightPadding + Math.ceil(root.advanceWidth(root.editing ? root.text : root.fullText))
                     + 2 * vynMetrics.textFieldBorder
                   : 6 * implicitHeight
    topPadding: 0
    bottomPadding: 0
    leftPadding: leftInset + vynMetrics.textFieldTextInsetsH
                 + textInsetLeft
    rightPadding: rightInset + vynMetrics.textFieldTextInsetsH
                  + textInsetRight

    background: Rectangle {
        visible: root.drawsBackground || root.drawsBorder
        color: root.drawsBackground ? root.vynMetrics.textViewBackgroundColor
                                    : "transparent"
        border.width: root.drawsBorder ? Math.max(1, root.vynMetrics.textFieldBorder) : 0
        border.color: root.mixed ? (root.editing ? root.vynMetrics.textViewBorderColorMixedEditing
                                                 : root.vynMetrics.textViewBorderColorMixed)
                                 : (root.editing ? root.vynMetrics.textViewBorderColorEditing
                                                 : root.vynMetrics.textViewBorderColor)
        radius: root.vynMetrics.popupButtonCornerRadius
    }

    // The width of p_text in the field's font (measured only when asked, e.g. by autoResize).
    function advanceWidth(p_text) {
        return fontMetrics.font.pixelSize > 0 ? fontMetrics.advanceWidth(p_text) : 0
    }

    FontMetrics {
        id: fontMetrics
        font: root.font
    }

    onActiveFocusChanged: {
        if (activeFocus) {
            _editOpen = true
            text = fullText
        }
    }
    onTextEdited: fullText = text
    Keys.onPressed: function (event) {
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root._acceptKeyPressed = true
        else if (event.key === Qt.Key_Escape) {
            root.cancelEditing()
            event.accepted = true
        }
    }
    onEditingFinished: _accept()
}
