import QtQuick
import VynUI 1.2

import "../Private/DiscreteActions.js" as DiscreteActions

// A popover combo bound to a device parameter (or a selection of them) through a
// VynUIComboComponent.
//
// How a host builds an input-source combo: it gives the component the item texts and their
// raw values (setItemTexts, setItemValues), shows the device's value with
// setSelectedValues({value}) (one value per selected channel: several make a mixed
// selection), and sends the value of the item the component reports through itemClicked:
//
//     // C++: connect(source, &VynUIComboComponent::itemClicked, [&](int i) { device.send(...); });
//     VynUIPopoverCombo { uiComboComponent: host.inputSourceComponent }
//
// Binding rules: the items, the selection (mixed when it holds several indexes) and the
// enabled flag come from the component. A choice asks the component's confirmation first
// (presentConfirmChangeAlertIfNeededQml) and then emits the component's itemClicked(index);
// the selection changes with the host's echo. A long press emits the component's
// longPressed(). A disabled component, or none, takes no input.
VynPopoverCombo {
    id: root

    property VynUIComboComponent uiComboComponent: null
    readonly property VynUIComboComponent uiComponent: uiComboComponent

    model: uiComponent ? uiComponent.itemTexts : []
    selectedIndexes: uiComponent ? uiComponent.selectedIndexes : []
    noValueText: uiComponent ? uiComponent.text : ""
    enabled: uiComponent ? uiComponent.enabled : false

    onActivated: function (p_index) {
        DiscreteActions.confirmThen(uiComponent, function () {
            if (root.uiComponent)
                root.uiComponent.itemClicked(p_index)
        })
    }
    onLongPressed: DiscreteActions.longPress(uiComponent)
}
