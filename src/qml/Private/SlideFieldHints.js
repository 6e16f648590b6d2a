.pragma library

// The hints a parameter-bound slide field offers: how dragging works, when the user first
// drags, and how typed entries are read, when the user first types one. Each is offered at most
// once per run of the application (the state lives in this library, shared by every field of an
// engine), carries the don't-show-again action, and is never offered while the same hint is on
// screen, where scheduling it again would dismiss it.

const panIdentifier = "VynUI.slideField.pan"
const textIdentifier = "VynUI.slideField.text"

const offered = {}

// Schedules the hint p_identifier beside p_view on the window's hint manager; false when it
// was offered before in this run, when the window has no manager, or when the manager rejected
// it (hidden for good by the user).
function offer(p_constants, p_view, p_identifier, p_title, p_text) {
    if (offered[p_identifier] || !p_view)
        return false
    const manager = p_constants.hintManagerForQmlObject(p_view)
    if (!manager)
        return false
    const presented = manager.presentedHint
    if (presented && presented.identifier === p_identifier)
        return false
    offered[p_identifier] = true
    return manager.scheduleHint(p_identifier, p_view, p_title, p_text, true)
}

// Forgets what was offered, so that each hint is offered again (for tests and for a host that
// resets its hints).
function reset() {
    for (const key in offered)
        delete offered[key]
}
