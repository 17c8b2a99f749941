import QtQuick 2.9
import "../Singletons"

Rectangle {
    gradient: Gradient {
        GradientStop {
            position: 0
            color: Theme.window1
        }
        GradientStop {
            position: 1
            color: Theme.window2
        }
    }
}
