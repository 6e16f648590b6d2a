.pragma library

// ParameterXmlModelHelper: nearest-row lookups in tables that pair display values with device
// values.
//
// A table is a ListModel (count, get(i)) or a script array of rows. Each row holds
// displayValue and deviceValue; a table whose display values decrease also holds
// decreasingDisplayValue, which the decreasing display-value lookups compare against.
//
// Nearest-row search on a column c:
//   - no table or no row: -1;
//   - a value beyond the first or the last row's c gives that row (clamping);
//   - otherwise the value is bracketed by two neighbouring rows and the closer one wins
//     (on a tie, the inner row of the pair the search stopped at).
// The search starts its bracketing at row 1, so in a table of one or two rows a value
// inside the range finds nothing and the lookup returns undefined ("no match"). Callers
// test for that; it is kept as it is.
// Device-value lookups return -1 where the index lookups return -1, and undefined where
// they return undefined.

function _rowCount(p_model) {
    if (!p_model)
        return 0
    if (typeof p_model.count === "number")
        return p_model.count
    if (typeof p_model.length === "number")
        return p_model.length
    return 0
}

function _row(p_model, p_index) {
    return typeof p_model.get === "function" ? p_model.get(p_index) : p_model[p_index]
}

function _cell(p_model, p_index, p_column) {
    return _row(p_model, p_index)[p_column]
}

function _nearestIncreasing(p_model, p_value, p_column) {
    const count = _rowCount(p_model)
    if (count === 0)
        return -1
    if (p_value < _cell(p_model, 0, p_column))
        return 0
    if (p_value > _cell(p_model, count - 1, p_column))
        return count - 1
    for (let i = 1; i <= count - 2; ++i) {
        const next = _cell(p_model, i + 1, p_column)
        if (p_value > next)
            continue
        const current = _cell(p_model, i, p_column)
        if (p_value < current) {
            const previous = _cell(p_model, i - 1, p_column)
            return (p_value - previous < current - p_value) ? i - 1 : i
        }
        return (next - p_value < p_value - current) ? i + 1 : i
    }
    return undefined
}

function _nearestDecreasing(p_model, p_value, p_column) {
    const count = _rowCount(p_model)
    if (count === 0)
        return -1
    if (p_value > _cell(p_model, 0, p_column))
        return 0
    if (p_value < _cell(p_model, count - 1, p_column))
        return count - 1
    for (let i = 1; i <= count - 2; ++i) {
        const next = _cell(p_model, i + 1, p_column)
        if (p_value < next)
            continue
        const current = _cell(p_model, i, p_column)
        if (p_value > current) {
            const previous = _cell(p_model, i - 1, p_column)
            return (previous - p_value < p_value - current) ? i - 1 : i
        }
        return (p_value - next < current - p_value) ? i + 1 : i
    }
    return undefined
}

function _isDecreasing(p_model, p_column) {
    return _rowCount(p_model) >= 2 && _cell(p_model, 0, p_column) > _cell(p_model, 1, p_column)
}

function _deviceValueAt(p_model, p_index) {
    if (p_index === undefined || p_index < 0)
        return p_index
    return _cell(p_model, p_index, "deviceValue")
}

function getIndexFromIncreasingDeviceValue(model, deviceValue) {
    return _nearestIncreasing(model, deviceValue, "deviceValue")
}

function getIndexFromDecreaisngDeviceValue(model, deviceValue) {
    return _nearestDecreasing(model, deviceValue, "deviceValue")
}

// Row index whose deviceValue is nearest; the table counts as decreasing when row 0's
// deviceValue is greater than row 1's.
function getIndexFromDeviceValue(model, deviceValue) {
    return _isDecreasing(model, "deviceValue")
            ? getIndexFromDecreaisngDeviceValue(model, deviceValue)
            : getIndexFromIncreasingDeviceValue(model, deviceValue)
}

function getDeviceValueFromIncreasingDisplayValue(model, displayValue) {
    return _deviceValueAt(model, _nearestIncreasing(model, displayValue, "displayValue"))
}

function getDeviceValueFromDecreasingDisplayValue(model, displayValue) {
    return _deviceValueAt(model, _nearestDecreasing(model, displayValue, "decreasingDisplayValue"))
}

// deviceValue of the row whose display value is nearest. The direction is read from the
// rows' displayValue; a decreasing table is then searched on decreasingDisplayValue.
function getDeviceValueFromDisplayValue(model, displayValue) {
    return _isDecreasing(model, "displayValue")
            ? getDeviceValueFromDecreasingDisplayValue(model, displayValue)
            : getDeviceValueFromIncreasingDisplayValue(model, displayValue)
}

function getIndexFromIncreasingDisplayValue(model, displayValue) {
    return _nearestIncreasing(model, displayValue, "displayValue")
}

function getIndexFromDecreasingDisplayValue(model, displayValue) {
    return _nearestDecreasing(model, displayValue, "decreasingDisplayValue")
}

// Index of the row whose display value is nearest, with the same direction rule as
// getDeviceValueFromDisplayValue().
function getIndexFromDisplayValue(model, displayValue) {
    return _isDecreasing(model, "displayValue")
            ? getIndexFromDecreasingDisplayValue(model, displayValue)
            : getIndexFromIncreasingDisplayValue(model, displayValue)
}
