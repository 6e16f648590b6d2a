import QtQuick
import VynUI 1.2

// A parameter's name and its slide field in one row: the name from the component (when it
// wants one), the field bound like VynUISlideField, with the panning handle and the minus
// and plus buttons on. `VynUILabelAndField { uiSlideFieldComponent: host.frequencyComponent }`.
VynUISlideField {
    id: root

    title: uiComponent && uiComponent.wantsName ? uiComponent.name : ""
    allowsPanning: true
    hasMinus: true
    hasPlus: true
}
