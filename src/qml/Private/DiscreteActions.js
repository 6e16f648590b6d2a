.pragma library

// What the parameter-bound discrete controls (buttons, LEDs, combos, labels) do with a user
// action: nothing for a missing or disabled component, and otherwise the action once the
// component's security gate lets it through (at once, or after the user confirmed).

// Runs p_action after the component's confirmation; false when nothing was asked.
function confirmThen(p_component, p_action) {
    if (!p_component || !p_component.enabled)
        return false
    p_component.presentConfirmChangeAlertIfNeededQml(p_action)
    return true
}

// Reports a long press to an enabled component.
function longPress(p_component) {
    if (p_component && p_component.enabled)
        p_component.longPressed()
}

// The colour row (0 grey, 1 orange, 2 red, 3 green, 4 blue) an LED state is drawn in, -1 for
// the custom state (drawn in the LED's customColor). Unknown states read grey.
function ledColorRow(p_state) {
    switch (p_state) {
    case 1: case 2: case 3: case 4:
        return p_state
    case 255:                   // custom
        return -1
    case 257:                   // protect
    case 258:                   // peak (clip)
        return 2
    case 259:                   // sense
    case 512:                   // default control status
    case 514:                   // default channel status
        return 3
    case 260:                   // mute
        return 4
    case 513:                   // default alert status
        return 1
    default:                    // grey, none
        return 0
    }
}

// The name of an LED state, for assistive tools.
function ledStateName(p_state) {
    switch (p_state) {
    case 1: return "Orange"
    case 2: return "Red"
    case 3: return "Green"
    case 4: return "Blue"
    case 255: return "Custom"
    case 257: return "Protect"
    case 258: return "Peak"
    case 259: return "Sense"
    case 260: return "Mute"
    case 512: return "Control status"
    case 513: return "Alert"
    case 514: return "Channel status"
    default: return "Off"
    }
}
