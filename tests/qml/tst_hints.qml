import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "Hints"
    width: 600
    height: 400
    visible: true
    when: windowShown

    VynHintManagerQml {
        id: manager
    }

    Item {
        id: area
        anchors.fill: parent

        Rectangle {
            id: target
            width: 40
            height: 24
            color: "grey"
        }

        Item {
            id: nested
            x: 300
            y: 40
            width: 100
            height: 100

            VynHelpButton {
                id: help
                anchors.centerIn: parent
                hintIdentifier: "help.gain"
                hintTitle: "Gain"
                hintString: "Sets the level of the channel before the limiter."
            }
        }

        VynStatusIndicator {
            id: indicator
            x: 20
            y: 340
            status: 2
            text: "Amplifier 2: temperature high"
        }
    }

    Component {
        id: popoverComponent
        VynPopover {
            openAnimationDuration: 0
            closeAnimationDuration: 0
            preferredWidth: 180
            contentHeight: 60
        }
    }

    Component {
        id: messageComponent
        VynApplicationMessageItem {
            id: item
            property var clicks: []
            property var parentObjectForCallback: ({
                popupButtonClickedCallback: function(p_index, p_button) {
                    item.clicks.push([p_index, p_button ? p_button.objectName : null])
                }
            })
            parentObject: parentObjectForCallback
            title: "Delete the preset?"
            message: "The preset is removed from every amplifier of the group."
        }
    }

    function init() {
        testHost.resetHiddenHints()
        for (let i = 0; i < 10 && manager.presentedHint; ++i)
            manager.invalidateHint(manager.presentedHint.identifier)
        compare(manager.presentedHint, null)
        tryCompare(manager, "hintPopover", null)
        // A popover the user closed in the previous test may still be fading out; when it has
        // closed it reports its hint to the manager, which would dismiss an equal hint shown
        // by this test. Let it finish first (its fade lasts closeAnimationDuration, 120 ms).
        wait(250)
    }

    function windowRectOf(p_item) {
        return p_item.mapToItem(null, 0, 0, p_item.width, p_item.height)
    }

    // --- Manager lookup -------------------------------------------------------------------

    function test_managerOfTheWindow() {
        compare(VynUIQmlConstants.hintManagerForQmlObject(help), manager)
        compare(VynUIQmlConstants.hintManagerForQmlObject(target), manager)
        compare(VynUIQmlConstants.hintManagerForQmlObject(null), null)
    }

    // --- Help button and status indicator -------------------------------------------------

    function test_helpButtonTogglesItsHint() {
        mouseClick(help)
        verify(manager.presentedHint !== null)
        compare(manager.presentedHint.identifier, "help.gain")
        compare(manager.presentedHint.presentingView, help)
        verify(manager.hintPopover !== null)
        const popover = manager.hintPopover
        tryCompare(popover, "opened", true)
        compare(popover.hintData.string, "Sets the level of the channel before the limiter.")
        // The help button lies in the upper half: the popover opens below it, arrow on top.
        compare(popover.arrowEdge, VynPopover.ArrowTop)
        const view = windowRectOf(help)
        const panel = windowRectOf(popover.background)
        verify(panel.y >= view.y + view.height - 1, "below the button: " + panel.y)
        fuzzyCompare(panel.x + popover.arrowX, view.x + view.width / 2, 1)

        // A second click hides it again.
        mouseClick(help)
        compare(manager.presentedHint, null)
        tryCompare(manager, "hintPopover", null)
        // A popover the user closed in the previous test may still be fading out; when it has
        // closed it reports its hint to the manager, which would dismiss an equal hint shown
        // by this test. Let it finish first (its fade lasts closeAnimationDuration, 120 ms).
        wait(250)
    }

    function test_invalidateFromQml() {
        verify(help.showHint())
        verify(indicator.showHint())
        manager.invalidateHint("status")
        compare(manager.presentedHint.identifier, "help.gain")
        manager.invalidateHint("help.gain")
        compare(manager.presentedHint, null)
        verify(help.showHint())
        manager.invalidateHintsWithPrefix("help.")
        compare(manager.presentedHint, null)
        // A hint object picks the object overload: the queued one is dropped, the shown one
        // dismissed.
        verify(help.showHint())
        verify(indicator.showHint())
        manager.invalidateHint(indicator.hintData)
        compare(manager.presentedHint.identifier, "help.gain")
        manager.invalidateHint(help.hintData)
        compare(manager.presentedHint, null)
        tryCompare(manager, "hintPopover", null)
        // A popover the user closed in the previous test may still be fading out; when it has
        // closed it reports its hint to the manager, which would dismiss an equal hint shown
        // by this test. Let it finish first (its fade lasts closeAnimationDuration, 120 ms).
        wait(250)
    }

    function test_helpButtonWithoutTextDoesNothing() {
        help.hintString = ""
        mouseClick(help)
        compare(manager.presentedHint, null)
        help.hintString = "Sets the level of the channel before the limiter."
        // The keyboard path.
        help.forceActiveFocus()
        keyClick(Qt.Key_Space)
        compare(manager.presentedHint.identifier, "help.gain")
    }

    function test_escapeClosesTheHint() {
        mouseClick(help)
        const popover = manager.hintPopover
        tryCompare(popover, "opened", true)
        keyClick(Qt.Key_Escape)
        tryCompare(manager, "presentedHint", null)
        tryCompare(manager, "hintPopover", null)
    }

    function test_clickOutsideClosesTheHint() {
        mouseClick(help)
        tryCompare(manager.hintPopover, "opened", true)
        mouseClick(area, 10, 200)
        tryCompare(manager, "presentedHint", null)
    }

    function test_statusIndicatorHint() {
        mouseClick(indicator)
        compare(manager.presentedHint.identifier, "status")
        compare(manager.presentedHint.string, "Amplifier 2: temperature high")
        const popover = manager.hintPopover
        tryCompare(popover, "opened", true)
        // The indicator lies in the lower half: the popover opens above it.
        compare(popover.arrowEdge, VynPopover.ArrowBottom)
        const view = windowRectOf(indicator)
        const panel = windowRectOf(popover.background)
        verify(panel.y + panel.height <= view.y + 1, "above the indicator")
    }

    function test_queuedHintFollowsTheClosedOne() {
        mouseClick(help)
        verify(indicator.showHint())
        compare(manager.presentedHint.identifier, "help.gain")
        const first = manager.hintPopover
        tryCompare(first, "opened", true)
        keyClick(Qt.Key_Escape)
        tryVerify(() => manager.presentedHint !== null && manager.presentedHint.identifier === "status")
        tryVerify(() => manager.hintPopover !== null && manager.hintPopover !== first)
        compare(manager.hintPopover.hintData.identifier, "status")
    }

    function test_dontShowAgainButton() {
        help.hintHasDontShowAgainAction = true
        mouseClick(help)
        const popover = manager.hintPopover
        tryCompare(popover, "opened", true)
        const button = findChild(popover.contentItem, "vynMessageButton0")
        verify(button !== null)
        mouseClick(button)
        tryCompare(manager, "presentedHint", null)
        verify(!manager.shouldShowHint(help.hintData))
        verify(!help.showHint())
        compare(manager.presentedHint, null)
        testHost.resetHiddenHints()
        verify(help.showHint())
    }

    // --- Popover placement ----------------------------------------------------------------

    function test_popoverStaysInTheWindow_data() {
        return [
            { tag: "top left", x: 0, y: 0, orientation: VynPopover.ArrowDefault, edge: VynPopover.ArrowTop },
            { tag: "top right", x: 560, y: 0, orientation: VynPopover.ArrowDefault, edge: VynPopover.ArrowTop },
            { tag: "bottom left", x: 0, y: 376, orientation: VynPopover.ArrowDefault, edge: VynPopover.ArrowBottom },
            { tag: "bottom right", x: 560, y: 376, orientation: VynPopover.ArrowDefault, edge: VynPopover.ArrowBottom },
            { tag: "middle, upper half", x: 280, y: 150, orientation: VynPopover.ArrowDefault, edge: VynPopover.ArrowTop },
            { tag: "middle, lower half", x: 280, y: 230, orientation: VynPopover.ArrowDefault, edge: VynPopover.ArrowBottom },
            { tag: "arrow top asked", x: 280, y: 230, orientation: VynPopover.ArrowTop, edge: VynPopover.ArrowTop },
            { tag: "arrow bottom asked", x: 280, y: 150, orientation: VynPopover.ArrowBottom, edge: VynPopover.ArrowBottom },
            { tag: "arrow top without room below", x: 280, y: 370, orientation: VynPopover.ArrowTop, edge: VynPopover.ArrowBottom },
            { tag: "arrow bottom without room above", x: 280, y: 4, orientation: VynPopover.ArrowBottom, edge: VynPopover.ArrowTop }
        ]
    }

    function test_popoverStaysInTheWindow(data) {
        target.x = data.x
        target.y = data.y
        const popover = createTemporaryObject(popoverComponent, target,
                                              { preferredArrowOrientation: data.orientation })
        popover.open()
        tryCompare(popover, "opened", true)
        compare(popover.arrowEdge, data.edge)
        const panel = windowRectOf(popover.background)
        verify(panel.x >= 0 && panel.x + panel.width <= testCase.width, "inside horizontally: " + panel.x)
        verify(panel.y >= 0 && panel.y + panel.height <= testCase.height, "inside vertically: " + panel.y)
        const view = windowRectOf(target)
        if (data.edge === VynPopover.ArrowTop)
            fuzzyCompare(panel.y, view.y + view.height, 1)
        else
            fuzzyCompare(panel.y + panel.height, view.y, 1)
        // The arrow points at the view's centre, or as near as the rounded corner allows.
        const tip = panel.x + popover.arrowX
        const centre = view.x + view.width / 2
        verify(Math.abs(tip - centre) <= popover.cornerRadius + popover.arrowSize + 1,
               "arrow at " + tip + " for a view centred at " + centre)
        if (centre > panel.x + popover.cornerRadius + popover.arrowSize
                && centre < panel.x + panel.width - popover.cornerRadius - popover.arrowSize)
            fuzzyCompare(tip, centre, 1)
        popover.close()
        tryCompare(popover, "visible", false)
    }

    // --- Message item ---------------------------------------------------------------------

    function test_messageItemButtons_data() {
        return [
            { tag: "click confirm", action: "click", index: 0, expected: 0 },
            { tag: "click cancel", action: "click", index: 1, expected: 1 },
            { tag: "enter", action: "enter", expected: 0 },
            { tag: "escape", action: "escape", expected: 1 },
            { tag: "space on focused cancel", action: "space", index: 1, expected: 1 }
        ]
    }

    function test_messageItemButtons(data) {
        const item = createTemporaryObject(messageComponent, area,
                                           { componentModel: ["Delete", "Cancel"], cancelButtonIndex: 1 })
        item.width = item.implicitWidth
        item.height = item.implicitHeight
        item.forceActiveFocus()
        if (data.action === "click") {
            mouseClick(findChild(item, "vynMessageButton" + data.index))
        } else if (data.action === "enter") {
            keyClick(Qt.Key_Return)
        } else if (data.action === "escape") {
            keyClick(Qt.Key_Escape)
        } else {
            findChild(item, "vynMessageButton" + data.index).forceActiveFocus()
            keyClick(Qt.Key_Space)
        }
        compare(item.clicks.length, 1)
        compare(item.clicks[0][0], data.expected)
        compare(item.clicks[0][1], "vynMessageButton" + data.expected)
    }

    function test_messageItemNeverClipsItsButtons() {
        const item = createTemporaryObject(messageComponent, area, {
            title: "",
            message: "",
            componentModel: ["Apply to every amplifier of the network", "Only this one", "Cancel"]
        })
        const first = findChild(item, "vynMessageButton0")
        const last = findChild(item, "vynMessageButton2")
        verify(item.implicitWidth >= first.width + last.width + findChild(item, "vynMessageButton1").width)
        item.width = item.implicitWidth
        const a = first.mapToItem(item, 0, 0)
        const c = last.mapToItem(item, 0, 0)
        verify(a.x + first.width <= item.width + 0.5)
        verify(c.x >= -0.5)
    }

    function test_messageItemCheckbox() {
        const item = createTemporaryObject(messageComponent, area,
                                           { componentModel: ["OK"], hasCheckbox: true, checkboxText: "Do not ask again" })
        item.width = item.implicitWidth
        compare(item.isChecked, false)
        mouseClick(findChild(item, "vynMessageCheckbox"))
        compare(item.isChecked, true)
    }
}
