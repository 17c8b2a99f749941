import QtQuick 2.9

/// The same on the theme's own surface.
SpinBoxSideBySideLook {
    id: look

    background: FieldSurface {
        control: look.control
    }
}
