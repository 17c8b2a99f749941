var list = [
    {
        "title": qsTr("Side-view"),
        "contents": [
            {"filename": "TutorialSideViewStep1", "title": qsTr("Step 1: Side-view Basics")}
        ]
    },
    {
        "title": qsTr("Top-view"),
        "contents": [
            {"filename": "TutorialTopViewStep1", "title": qsTr("Step 1: Top-view Basics")}
        ]
    }
];