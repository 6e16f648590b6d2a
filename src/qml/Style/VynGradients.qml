pragma Singleton

import QtQuick
import VynUI 1.2

// The control gradients, one shared Gradient per kind and direction. A Rectangle shows a
// Gradient without owning it, so every control draws with these instead of building its
// own Gradient and stops (three objects and their bindings per gradient and control).
//
// Kinds: on (pressed, filled), mixed, and off in each style (the opaque off gradient), and
// the faint shade of colour icons in each style.
// Names end in the direction the colours change: *Vertical from top to bottom (for
// horizontal controls), *Horizontal from left to right (for vertical ones).
QtObject {
    readonly property Gradient onVertical: Gradient {
        GradientStop { position: 0.0; color: VynUIQmlConstants.controlOnGradientColor(0) }
        GradientStop { position: 1.0; color: VynUIQmlConstants.controlOnGradientColor(1) }
    }
    readonly property Gradient onHorizontal: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0.0; color: VynUIQmlConstants.controlOnGradientColor(0) }
        GradientStop { position: 1.0; color: VynUIQmlConstants.controlOnGradientColor(1) }
    }
    readonly property Gradient mixedVertical: Gradient {
        GradientStop { position: 0.0; color: VynUIQmlConstants.controlMixedGradientColor(0) }
        GradientStop { position: 1.0; color: VynUIQmlConstants.controlMixedGradientColor(1) }
    }
    readonly property Gradient mixedHorizontal: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0.0; color: VynUIQmlConstants.controlMixedGradientColor(0) }
        GradientStop { position: 1.0; color: VynUIQmlConstants.controlMixedGradientColor(1) }
    }
    readonly property Gradient offDarkVertical: Gradient {
        GradientStop {
            position: 0.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(0, VynColorUtils.VynStyleDark, true)
        }
        GradientStop {
            position: 1.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(1, VynColorUtils.VynStyleDark, true)
        }
    }
    readonly property Gradient offDarkHorizontal: Gradient {
        orientation: Gradient.Horizontal
        GradientStop {
            position: 0.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(0, VynColorUtils.VynStyleDark, true)
        }
        GradientStop {
            position: 1.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(1, VynColorUtils.VynStyleDark, true)
        }
    }
    readonly property Gradient offLightVertical: Gradient {
        GradientStop {
            position: 0.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(0, VynColorUtils.VynStyleLight, true)
        }
        GradientStop {
            position: 1.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(1, VynColorUtils.VynStyleLight, true)
        }
    }
    readonly property Gradient offLightHorizontal: Gradient {
        orientation: Gradient.Horizontal
        GradientStop {
            position: 0.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(0, VynColorUtils.VynStyleLight, true)
        }
        GradientStop {
            position: 1.0
            color: VynUIQmlConstants.controlOffGradientColorForStyle(1, VynColorUtils.VynStyleLight, true)
        }
    }
    readonly property Gradient colorIconShadeDark: Gradient {
        GradientStop {
            position: 0.0
            color: VynUIQmlConstants.colorBySettingAlpha(
                       VynUIQmlConstants.colorIconShadowColorForStyle(VynColorUtils.VynStyleDark), 0.05)
        }
        GradientStop {
            position: 1.0
            color: VynUIQmlConstants.colorBySettingAlpha(
                       VynUIQmlConstants.colorIconShadowColorForStyle(VynColorUtils.VynStyleDark), 0.2)
        }
    }
    readonly property Gradient colorIconShadeLight: Gradient {
        GradientStop {
            position: 0.0
            color: VynUIQmlConstants.colorBySettingAlpha(
                       VynUIQmlConstants.colorIconShadowColorForStyle(VynColorUtils.VynStyleLight), 0.05)
        }
        GradientStop {
            position: 1.0
            color: VynUIQmlConstants.colorBySettingAlpha(
                       VynUIQmlConstants.colorIconShadowColorForStyle(VynColorUtils.VynStyleLight), 0.2)
        }
    }
}
