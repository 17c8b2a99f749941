import QtQuick 2.9

/// The sign of a problem. Errors, warnings and remarks differ in shape too.
Image {
    /// 0 an error, 1 a warning, 2 a remark; -1 for none.
    property int severity: -1

    width: 16
    height: 16
    source: {
        var names = ["error", "warning", "remark"];
        return severity < 0 ? "" : "../../icon/problem_" + names[severity] + ".png";
    }
}
