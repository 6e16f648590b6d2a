.pragma library

// ArrayUtils: numbers, arrays and the mouse-selection rules of the list and grid views.
//
// A stateless shared library: one instance serves every document, nothing is kept between
// calls. Lists handed over from native properties are accepted wherever an array is read.
//
// Selection rules
// ---------------
// selectAction() decides what a click with modifiers does to a list of selected indexes.
// A shift click whose pivot is not a row of the list selects from the clicked index.
// The optional callbacks are:
//   p_canSelectIndexBlock(index) -> bool     may this index be selected (absent: always)
//   p_willSelectBlock()                      runs before a selection that will happen
//   p_updateSelectionBlock(index, selected)  runs for every index whose state changes
//   p_didSelectBlock(newSelectedIndexes, newPivotIndex)  runs after the selection
// The selected-index list passed in is modified in place and also returned (a missing list
// is replaced by a new empty one). controlSelect() keeps the list sorted with the default
// script ordering, which compares as text: [10, 9] stays [10, 9]. Callers rely on that
// order, so it is kept.

function indexOfJSValue(p_value, p_jsObject, p_property = "value") {
    if (!p_jsObject)
        return -1
    for (let i = 0; i < p_jsObject.length; ++i) {
        const element = p_jsObject[i]
        if (element !== undefined && element !== null && element[p_property] === p_value)
            return i
    }
    return -1
}

function average(p_numbers) {
    if (!p_numbers || p_numbers.length === 0)
        return 0
    let sum = 0
    for (let i = 0; i < p_numbers.length; ++i)
        sum += p_numbers[i]
    return sum / p_numbers.length
}

// The largest element, never below 0.0: the walk starts from 0.0.
function maxValue(p_numbers) {
    let result = 0.0
    for (const key in p_numbers) {
        if (p_numbers[key] > result)
            result = p_numbers[key]
    }
    return result
}

// Nearest multiple of |p_step| to |p_value|, carrying the sign of p_value (so a small
// negative value gives -0). Halfway rounds to the larger magnitude; a step of 0 returns the
// value unchanged.
function closestValue(p_value, p_step) {
    if (p_step === 0)
        return p_value
    const step = Math.abs(p_step)
    const magnitude = Math.round(Math.abs(p_value) / step) * step
    return p_value < 0 ? -magnitude : magnitude
}

// Lowest bit of p_x read as a 32-bit integer: reals are truncated, negatives use two's
// complement (-3 is odd).
function isOdd(p_x) {
    return (p_x & 1) === 1
}

function roundUpEven(p_x) {
    return isOdd(p_x) ? p_x + 1 : p_x
}

function roundUpOdd(p_x) {
    return isOdd(p_x) ? p_x : p_x + 1
}

// p_x rounded up to the parity of p_ref.
function roundUpEvenOrOdd(p_x, p_ref) {
    return isOdd(p_ref) ? roundUpOdd(p_x) : roundUpEven(p_x)
}

// Array.isArray() rejects some lists converted from native properties; these two tests
// accept them. objectIsArray() looks at the object's type, objectIsArray2() at its
// constructor.
function objectIsArray(p_object) {
    return p_object !== null && typeof p_object === "object" && p_object instanceof Array
}

function objectIsArray2(p_object) {
    return p_object !== null && p_object !== undefined && p_object.constructor === Array
}

function arrayEquals(a, b) {
    if (!objectIsArray2(a) || !objectIsArray2(b) || a.length !== b.length)
        return false
    for (let i = 0; i < a.length; ++i) {
        if (a[i] !== b[i])
            return false
    }
    return true
}

// Splits an ascending list into runs of consecutive integers:
// [0, 1, 3, 4, 6, 8] gives [[0, 1], [3, 4], [6], [8]].
function groupedConsecutiveIndexes(p_selectedIndexes) {
    const groups = []
    if (!p_selectedIndexes)
        return groups
    let current = null
    for (let i = 0; i < p_selectedIndexes.length; ++i) {
        const index = p_selectedIndexes[i]
        if (current !== null && index === current[current.length - 1] + 1) {
            current.push(index)
        } else {
            current = [index]
            groups.push(current)
        }
    }
    return groups
}

// ---------------------------------------------------------------------------------------
// Selection rules

function _canSelect(p_canSelectIndexBlock, p_index) {
    return typeof p_canSelectIndexBlock !== "function" || !!p_canSelectIndexBlock(p_index)
}

function _report(p_updateSelectionBlock, p_index, p_selected) {
    if (typeof p_updateSelectionBlock === "function")
        p_updateSelectionBlock(p_index, p_selected)
}

function _inRange(p_index, p_count) {
    return p_index >= 0 && p_index < p_count
}

function _removeAll(p_list) {
    p_list.splice(0, p_list.length)
}

// Shift selection needs a clicked index within range and something already selected.
function canShiftSelect(p_index, p_selectedIndexes, p_count) {
    return _inRange(p_index, p_count) && !!p_selectedIndexes && p_selectedIndexes.length > 0
}

// Selects the range between the pivot and the clicked index, both included. Every run of
// consecutive selected indexes that overlaps the range is first dropped whole (also its part
// outside the range) and reported deselected; then every index of the range that is not
// selected and may be selected is appended, in ascending order, and reported selected. Runs
// are found on a numerically sorted copy, so the text ordering of the list does not split
// them. A pivot that is not a number or is negative (no pivot yet) is replaced by the
// clicked index, so that no index below 0 is ever selected.
function shiftSelect(p_index, p_selectedIndexes, p_pivotIndex, p_canSelectIndexBlock,
                     p_updateSelectionBlock) {
    const selected = p_selectedIndexes ? p_selectedIndexes : []
    const pivot = (typeof p_pivotIndex === "number" && p_pivotIndex >= 0) ? p_pivotIndex
                                                                          : p_index
    const low = Math.min(pivot, p_index)
    const high = Math.max(pivot, p_index)

    // Near-linear in the size of the selection and of the range: the indexes to drop are
    // counted first and taken out in one pass, and membership is looked up by index in
    // plain arrays (the script engine's Map and Set search their keys one by one).
    const sorted = Array.prototype.slice.call(selected).sort(function (a, b) { return a - b })
    const runs = groupedConsecutiveIndexes(sorted)
    const dropCounts = []
    let dropped = 0
    for (let r = 0; r < runs.length; ++r) {
        const run = runs[r]
        if (run[run.length - 1] < low || run[0] > high)
            continue
        for (let k = 0; k < run.length; ++k) {
            dropCounts[run[k]] = (dropCounts[run[k]] || 0) + 1
            ++dropped
            _report(p_updateSelectionBlock, run[k], false)
        }
    }
    if (dropped > 0) {
        // Each dropped index leaves as many of its first occurrences as it was dropped.
        let kept = 0
        for (let i = 0; i < selected.length; ++i) {
            const index = selected[i]
            const count = dropCounts[index]
            if (count) {
                dropCounts[index] = count - 1
                continue
            }
            selected[kept++] = index
        }
        selected.splice(kept, selected.length - kept)
    }

    const present = []
    for (let i = 0; i < selected.length; ++i)
        present[selected[i]] = true
    for (let index = low; index <= high; ++index) {
        if (present[index] !== true && _canSelect(p_canSelectIndexBlock, index)) {
            selected.push(index)
            present[index] = true
            _report(p_updateSelectionBlock, index, true)
        }
    }
    return selected
}

// Control selection toggles one index: possible for an index within range when multiple
// selection is allowed and the index is either unselected and selectable, or selected and
// removing it leaves an allowed selection.
function canControlSelect(p_index, p_selectedIndexes, p_count, p_allowsMultipleSelection,
                          p_allowsEmptySelection, p_canSelectIndexBlock) {
    if (!p_allowsMultipleSelection || !_inRange(p_index, p_count))
        return false
    const selected = p_selectedIndexes ? p_selectedIndexes : []
    if (selected.indexOf(p_index) < 0)
        return _canSelect(p_canSelectIndexBlock, p_index)
    return !!p_allowsEmptySelection || selected.length > 1
}

function controlSelect(p_index, p_selectedIndexes, p_updateSelectionBlock) {
    const selected = p_selectedIndexes ? p_selectedIndexes : []
    const position = selected.indexOf(p_index)
    if (position < 0) {
        selected.push(p_index)
        selected.sort()
        _report(p_updateSelectionBlock, p_index, true)
    } else {
        selected.splice(position, 1)
        _report(p_updateSelectionBlock, p_index, false)
    }
    return selected
}

// Simple selection (a plain click). Index -1 clears the selection and is possible only when
// an empty selection is allowed. A selected index within range: possible when more than one
// index is selected, or when both simple deselection and an empty selection are allowed. An
// unselected index within range: possible when it may be selected. Any other index gives no
// answer (undefined), which callers treat as false.
function canSimpleSelect(p_index, p_selectedIndexes, p_count, p_allowsEmptySelection,
                         p_allowsSimpleDeselection, p_canSelectIndexBlock) {
    if (p_index === -1)
        return !!p_allowsEmptySelection
    if (!_inRange(p_index, p_count))
        return undefined
    const selected = p_selectedIndexes ? p_selectedIndexes : []
    if (selected.indexOf(p_index) >= 0)
        return selected.length > 1 || (!!p_allowsSimpleDeselection && !!p_allowsEmptySelection)
    return _canSelect(p_canSelectIndexBlock, p_index)
}

// Index -1, or a click on the only selected index, deselects everything. Otherwise the
// clicked index becomes the whole selection (empty when it may not be selected).
function simpleSelect(p_index, p_selectedIndexes, p_canSelectIndexBlock, p_updateSelectionBlock) {
    const selected = p_selectedIndexes ? p_selectedIndexes : []
    const previous = Array.prototype.slice.call(selected)

    if (p_index === -1 || (previous.length === 1 && previous[0] === p_index)) {
        _removeAll(selected)
        for (let i = 0; i < previous.length; ++i)
            _report(p_updateSelectionBlock, previous[i], false)
        return selected
    }

    const wasSelected = previous.indexOf(p_index) >= 0
    const canSelect = _canSelect(p_canSelectIndexBlock, p_index)
    _removeAll(selected)
    for (let i = 0; i < previous.length; ++i) {
        if (previous[i] !== p_index || !canSelect)
            _report(p_updateSelectionBlock, previous[i], false)
    }
    if (canSelect) {
        selected.push(p_index)
        if (!wasSelected)
            _report(p_updateSelectionBlock, p_index, true)
    }
    return selected
}

// Applies a click on p_index with the given modifiers. Returns true when a selection rule
// applied (the callbacks ran), false when the click changes nothing (no callback runs).
function selectAction(p_cmd, p_shift, p_index, p_selectedIndexes, p_count, p_pivotIndex,
                      p_allowsMultipleSelection, p_allowsEmptySelection,
                      p_allowsSimpleDeselection, p_canSelectIndexBlock, p_willSelectBlock,
                      p_updateSelectionBlock, p_didSelectBlock) {
    const selected = p_selectedIndexes ? p_selectedIndexes : []
    const willSelect = function () {
        if (typeof p_willSelectBlock === "function")
            p_willSelectBlock()
    }
    const didSelect = function (p_newPivotIndex) {
        if (typeof p_didSelectBlock === "function")
            p_didSelectBlock(selected, p_newPivotIndex)
    }

    if (p_allowsMultipleSelection) {
        if (p_shift && canShiftSelect(p_index, selected, p_count)) {
            // A pivot that is not a row of the list (none yet, or left over from a longer
            // list) gives way to the clicked index; the did-select callback still gets it.
            const pivot = _inRange(p_pivotIndex, p_count) ? p_pivotIndex : p_index
            willSelect()
            shiftSelect(p_index, selected, pivot, p_canSelectIndexBlock, p_updateSelectionBlock)
            didSelect(p_pivotIndex)
            return true
        }
        if (p_cmd && canControlSelect(p_index, selected, p_count, p_allowsMultipleSelection,
                                      p_allowsEmptySelection, p_canSelectIndexBlock)) {
            willSelect()
            controlSelect(p_index, selected, p_updateSelectionBlock)
            didSelect(p_index)
            return true
        }
    }

    if (canSimpleSelect(p_index, selected, p_count, p_allowsEmptySelection,
                        p_allowsSimpleDeselection, p_canSelectIndexBlock)) {
        willSelect()
        simpleSelect(p_index, selected, p_canSelectIndexBlock, p_updateSelectionBlock)
        didSelect(p_index)
        return true
    }
    return false
}
