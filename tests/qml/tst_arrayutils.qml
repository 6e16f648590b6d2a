import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "ArrayUtils"

    function test_numberRules_data() {
        return [
            { tag: "closestValue halfway grows", fn: "closestValue", args: [0.25, 0.5], expected: 0.5 },
            { tag: "closestValue negative", fn: "closestValue", args: [-0.7, 0.5], expected: -0.5 },
            { tag: "closestValue negative halfway", fn: "closestValue", args: [-0.75, 0.5], expected: -1 },
            { tag: "closestValue negative step", fn: "closestValue", args: [1.3, -0.5], expected: 1.5 },
            { tag: "closestValue zero step", fn: "closestValue", args: [7, 0], expected: 7 },
            { tag: "isOdd odd", fn: "isOdd", args: [3], expected: true },
            { tag: "isOdd truncates reals", fn: "isOdd", args: [3.7], expected: true },
            { tag: "isOdd negative", fn: "isOdd", args: [-3], expected: true },
            { tag: "roundUpEven odd", fn: "roundUpEven", args: [3], expected: 4 },
            { tag: "roundUpOdd even", fn: "roundUpOdd", args: [4], expected: 5 },
            { tag: "roundUpEvenOrOdd to odd", fn: "roundUpEvenOrOdd", args: [10, 3], expected: 11 },
            { tag: "roundUpEvenOrOdd to even", fn: "roundUpEvenOrOdd", args: [10, 4], expected: 10 },
            { tag: "roundUpEvenOrOdd odd to even", fn: "roundUpEvenOrOdd", args: [11, 4], expected: 12 },
            { tag: "average", fn: "average", args: [[1, 2, 3, 6]], expected: 3 },
            { tag: "average empty", fn: "average", args: [[]], expected: 0 },
            { tag: "maxValue", fn: "maxValue", args: [[2, 9, 4]], expected: 9 },
            { tag: "maxValue never below 0", fn: "maxValue", args: [[-3, -1]], expected: 0 },
            { tag: "indexOfJSValue strict", fn: "indexOfJSValue",
                args: ["1", [{ value: 1 }, null, { value: "1" }]], expected: 2 },
            { tag: "indexOfJSValue first match", fn: "indexOfJSValue",
                args: [1, [{ value: 0 }, { value: 1 }, { value: 1 }]], expected: 1 },
            { tag: "indexOfJSValue other property", fn: "indexOfJSValue",
                args: ["b", [{ name: "a" }, { name: "b" }], "name"], expected: 1 },
            { tag: "indexOfJSValue none", fn: "indexOfJSValue", args: [5, [{ value: 1 }]], expected: -1 },
            { tag: "indexOfJSValue no array", fn: "indexOfJSValue", args: [5, null], expected: -1 },
        ]
    }

    function test_numberRules(data) {
        compare(ArrayUtils[data.fn].apply(null, data.args), data.expected)
    }

    function test_closestValueKeepsSignOfZero() {
        const result = ArrayUtils.closestValue(-0.2, 0.5)
        compare(result, 0)
        compare(1 / result, -Infinity)
    }

    function test_arrayTests() {
        const nativeList = Qt.fontFamilies()
        verify(!Array.isArray(nativeList), "a native list is expected to fail Array.isArray")
        verify(ArrayUtils.objectIsArray(nativeList))
        verify(ArrayUtils.objectIsArray2(nativeList))
        for (const notArray of [null, undefined, "abc", 3, { length: 2 }]) {
            verify(!ArrayUtils.objectIsArray(notArray), String(notArray))
            verify(!ArrayUtils.objectIsArray2(notArray), String(notArray))
        }

        verify(ArrayUtils.arrayEquals([1, "a", 3], [1, "a", 3]))
        verify(!ArrayUtils.arrayEquals([1, 2], [1, 2, 3]))
        verify(!ArrayUtils.arrayEquals([1], ["1"]))
        verify(!ArrayUtils.arrayEquals({ length: 0 }, []))
        verify(ArrayUtils.arrayEquals(nativeList, Array.prototype.slice.call(nativeList)))
    }

    function test_groupedConsecutiveIndexes() {
        compare(ArrayUtils.groupedConsecutiveIndexes([0, 1, 3, 4, 6, 8]), [[0, 1], [3, 4], [6], [8]])
        compare(ArrayUtils.groupedConsecutiveIndexes([5]), [[5]])
        compare(ArrayUtils.groupedConsecutiveIndexes([]), [])
        compare(ArrayUtils.groupedConsecutiveIndexes(undefined), [])
    }

    // Each row: a click with modifiers on a list of `count` rows. `locked` lists the indexes
    // that may not be selected. `updates` is the expected sequence of update callbacks,
    // `pivot` the pivot handed to the did-select callback (absent when nothing happens).
    function test_selectAction_data() {
        const base = { cmd: false, shift: false, count: 10, pivot: 0, multiple: true,
            empty: false, simpleDeselection: false, locked: [] }
        const rows = [
            { tag: "click selects alone", index: 3, selected: [1, 5],
                result: true, after: [3], newPivot: 3, updates: [[1, false], [5, false], [3, true]] },
            { tag: "click on one of several selected", index: 5, selected: [1, 5],
                result: true, after: [5], newPivot: 5, updates: [[1, false]] },
            { tag: "click on the only selected deselects when allowed", index: 5, selected: [5],
                empty: true, simpleDeselection: true,
                result: true, after: [], newPivot: 5, updates: [[5, false]] },
            { tag: "click on the only selected kept without empty selection", index: 5,
                selected: [5], simpleDeselection: true, result: false, after: [5] },
            { tag: "click on the only selected kept without simple deselection", index: 5,
                selected: [5], empty: true, result: false, after: [5] },
            { tag: "click outside rows clears when allowed", index: -1, selected: [2, 3],
                empty: true, result: true, after: [], newPivot: -1,
                updates: [[2, false], [3, false]] },
            { tag: "click outside rows refused", index: -1, selected: [2, 3],
                result: false, after: [2, 3] },
            { tag: "index at the count refused", index: 10, selected: [2], result: false, after: [2] },
            { tag: "locked index refused", index: 4, selected: [2], locked: [4],
                result: false, after: [2] },
            { tag: "control adds and sorts as text", cmd: true, index: 9, selected: [10],
                count: 20, result: true, after: [10, 9], newPivot: 9, updates: [[9, true]] },
            { tag: "control removes", cmd: true, index: 3, selected: [1, 3],
                result: true, after: [1], newPivot: 3, updates: [[3, false]] },
            { tag: "control removes the last when empty allowed", cmd: true, index: 3,
                selected: [3], empty: true, result: true, after: [], newPivot: 3,
                updates: [[3, false]] },
            { tag: "control keeps the last without empty selection", cmd: true, index: 3,
                selected: [3], result: false, after: [3] },
            { tag: "control on a locked index falls back to a refused click", cmd: true,
                index: 4, selected: [1], locked: [4], result: false, after: [1] },
            { tag: "control without multiple selection is a click", cmd: true, multiple: false,
                index: 4, selected: [1], result: true, after: [4], newPivot: 4,
                updates: [[1, false], [4, true]] },
            { tag: "shift drops a touching run whole", shift: true, index: 5, pivot: 2,
                selected: [0, 1, 2, 8], result: true, after: [8, 2, 3, 4, 5], newPivot: 2,
                updates: [[0, false], [1, false], [2, false], [2, true], [3, true], [4, true],
                    [5, true]] },
            { tag: "shift backwards", shift: true, index: 1, pivot: 4, selected: [4],
                result: true, after: [1, 2, 3, 4], newPivot: 4,
                updates: [[4, false], [1, true], [2, true], [3, true], [4, true]] },
            { tag: "shift skips locked indexes", shift: true, index: 4, pivot: 1, selected: [1],
                locked: [3], result: true, after: [1, 2, 4], newPivot: 1,
                updates: [[1, false], [1, true], [2, true], [4, true]] },
            { tag: "shift keeps runs that do not touch", shift: true, index: 6, pivot: 5,
                selected: [0, 1, 5], result: true, after: [0, 1, 5, 6], newPivot: 5,
                updates: [[5, false], [5, true], [6, true]] },
            { tag: "shift keeps an adjacent run", shift: true, index: 3, pivot: 5,
                selected: [2, 5], result: true, after: [2, 3, 4, 5], newPivot: 5,
                updates: [[5, false], [3, true], [4, true], [5, true]] },
            { tag: "shift finds runs in a text-sorted list", shift: true, index: 12, pivot: 11,
                count: 20, selected: [10, 11, 9], result: true, after: [11, 12], newPivot: 11,
                updates: [[9, false], [10, false], [11, false], [11, true], [12, true]] },
            { tag: "shift with nothing selected is a click", shift: true, index: 4, pivot: -1,
                selected: [], result: true, after: [4], newPivot: 4, updates: [[4, true]] },
            { tag: "shift without a pivot starts at the click", shift: true, index: 3, pivot: -1,
                selected: [1], result: true, after: [1, 3], newPivot: -1, updates: [[3, true]] },
            { tag: "shift from a pivot beyond the rows starts at the click", shift: true, index: 8,
                pivot: 12, selected: [1], result: true, after: [1, 8], newPivot: 12,
                updates: [[8, true]] },
            { tag: "shift wins over control", shift: true, cmd: true, index: 3, pivot: 1,
                selected: [1], result: true, after: [1, 2, 3], newPivot: 1,
                updates: [[1, false], [1, true], [2, true], [3, true]] },
            { tag: "shift without multiple selection is a click", shift: true, multiple: false,
                index: 3, pivot: 1, selected: [1], result: true, after: [3], newPivot: 3,
                updates: [[1, false], [3, true]] },
        ]
        return rows.map(row => Object.assign({}, base, { updates: [] }, row))
    }

    function test_selectAction(data) {
        const selected = data.selected.slice()
        const calls = []
        const updates = []
        let didList = null
        let didPivot = null
        const result = ArrayUtils.selectAction(
                         data.cmd, data.shift, data.index, selected, data.count, data.pivot,
                         data.multiple, data.empty, data.simpleDeselection,
                         index => data.locked.indexOf(index) < 0,
                         () => calls.push("will"),
                         (index, isSelected) => updates.push([index, isSelected]),
                         (list, pivot) => { calls.push("did"); didList = list; didPivot = pivot })

        compare(result, data.result)
        compare(selected, data.after, "the list is modified in place")
        compare(updates, data.updates)
        if (data.result) {
            compare(calls, ["will", "did"])
            verify(didList === selected, "did-select receives the caller's list")
            compare(didPivot, data.newPivot)
        } else {
            compare(calls, [])
        }
    }

    function test_selectionHelpers() {
        const selected = [2]
        verify(ArrayUtils.controlSelect(4, selected) === selected, "returns the list it was given")
        compare(selected, [2, 4])
        compare(ArrayUtils.simpleSelect(-1, selected), [])
        compare(selected, [])
        compare(ArrayUtils.canSimpleSelect(10, [], 10, true, true), undefined)
        compare(ArrayUtils.canSimpleSelect(-1, [1], 10, true, false), true)
        verify(!ArrayUtils.canShiftSelect(3, [], 10))
        verify(!ArrayUtils.canShiftSelect(10, [1], 10))
        verify(ArrayUtils.canShiftSelect(9, [1], 10))
        compare(ArrayUtils.simpleSelect(4, [4, 5], index => index !== 4), [])
    }
}
