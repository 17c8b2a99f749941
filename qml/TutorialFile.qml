import QtQuick 2.9
import QtQuick.Controls 1.4
import Morvi.kess 1.0
import "Controls"

/// How the tutorial is opened and saved in the authoring mode, with the
/// questions on the way. Its texts belong to the application window.
Item {
    id: root

    /// The application window, whose message boxes show what is to be told.
    property ApplicationWindow window: null
    // What the host editor wants to be loaded once the writer has answered.
    property string requestedTutorial: ""
    // The same while a dialog is open, which is about the tutorial of now.
    property string waitingTutorial: ""
    // The tutorial that the writer was told of, that something of its file is
    // left out.
    property string tutorialLeftOutOf: ""
    readonly property QtObject recovery: TutorialManager.recovery

    /// Asks about unsaved changes: 1 saved, 0 not saved or nothing to save,
    /// below 0 stay where you are.
    function checkSave(callback) {
        if (!window.commitEditing()) {
            callback(-1);
            return;
        }
        if (!TutorialManager.modified) {
            callback(0);
            return;
        }
        var question = qsTranslate("main", "Save change?");
        saveChangeDialog.message = "\"" + TutorialManager.tutorialName + "\"\n" + question;
        saveChangeDialog.callback = function(result) {
            if (result !== 1) {
                callback(result);
                return;
            }
            save(qsTranslate("main", "Failed to save project.") + "\n", function(saved) {
                callback(saved ? 1 : -1);
            });
        };
        saveChangeDialog.show();
    }

    function open() {
        var dialog = tutorialSelectComponent.createObject(window);
        dialog.callback = function(result) {
            if (result !== 1)
                return;
            var chosen = SystemService.getLocalFileFromUrl(dialog.fileUrl);
            var error = TutorialManager.loadTutorial(TutorialManager.getChosenFilename(chosen));
            window.updateSettings();
            if (error !== "")
                window.alert(qsTranslate("main", "Failed to open new project") + "\n" + error);
        };
        dialog.open();
        // The toolkit's dialog takes a folder once it is there.
        dialog.folder = SystemService.getUrlFromLocalFile(TutorialManager.getTutorialPath());
    }

    /// While the writer is asked, the tutorial that the host editor wanted last
    /// counts. A question that something else has asked is not taken over.
    function openRequested(name) {
        if (saveChangeDialog.visible) {
            if (requestedTutorial !== "")
                requestedTutorial = name;
            return;
        }
        if (Gui.isBlocked(window)) {
            waitingTutorial = name;
            return;
        }
        requestedTutorial = name;
        checkSave(function(result) {
            var requested = requestedTutorial || name;
            requestedTutorial = "";
            if (result >= 0)
                TutorialManager.loadAndFeedback(requested);
        });
    }

    /// Saves the tutorial, once the writer has agreed to what is lost by it.
    /// `callback` gets whether it was saved. The reason for a failure is shown
    /// here, with that text before it.
    function save(failure, callback) {
        askWhetherToOverwrite(function() {
            askWhetherToDrop(function() {
                var error = TutorialManager.save();
                if (error !== "")
                    window.alert(failure + error);
                callback(error === "");
            }, callback);
        }, callback);
    }

    function askWhetherToOverwrite(then, callback) {
        if (!TutorialManager.isChangedOnDisk()) {
            then();
            return;
        }
        var question = qsTranslate("main", "The file was changed by someone else since it was opened.\n"
                                           + "Yes writes over it. No opens it again, without your changes.");
        window.messages.choose(question, function(result) {
            if (result === 1) {
                then();
                return;
            }
            if (result === 0)
                window.reloadTutorial();
            callback(false);
        }, root);
    }

    // What the load left out of the tutorial, a save drops from the file.
    function askWhetherToDrop(then, callback) {
        var leftOut = TutorialManager.leftOut();
        if (leftOut === "") {
            then();
            return;
        }
        var question = qsTranslate("main", "It goes from the file with this save. Do you save all the same?");
        window.confirm(null, leftOut + "\n\n" + question, function(result) {
            if (result === 1)
                then();
            else
                callback(false);
        });
    }

    function tellWhatIsLeftOut() {
        var told = TutorialManager.unreadableTranslations() || TutorialManager.leftOut();
        var tutorial = told === "" ? "" : TutorialManager.tutorialName;
        if (tutorial !== "" && tutorial !== tutorialLeftOutOf)
            window.alert(told, null, root);
        tutorialLeftOutOf = tutorial;
    }

    function askWhetherToRestore() {
        if (!recovery.offered) {
            recoveryDialog.visible = false;
            return;
        }
        recoveryDialog.file = recovery.offeredFile;
        recoveryDialog.remark = recovery.offeredRemark;
        recoveryDialog.ask();
    }

    function restore() {
        checkSave(function(result) {
            if (result < 0)
                return;
            var error = recovery.restore();
            window.updateSettings();
            if (error !== "")
                window.alert(error);
        });
    }

    // Nobody tells when the last dialog goes.
    Timer {
        interval: 100
        repeat: true
        running: root.waitingTutorial !== ""
        onTriggered: {
            if (Gui.isBlocked(root.window))
                return;
            var name = root.waitingTutorial;
            root.waitingTutorial = "";
            root.openRequested(name);
        }
    }

    SaveChangeDialog {
        id: saveChangeDialog
    }

    RecoveryDialog {
        id: recoveryDialog
        onRestoreChosen: root.restore()
        onLookChosen: differences = root.recovery.differences()
        onDiscardChosen: root.recovery.discard()
        onClosedUnanswered: root.recovery.postpone()
    }

    Component {
        id: tutorialSelectComponent

        TutorialSelectDialog {
            id: tutorialSelectDialog
            onVisibleChanged: if (!visible) tutorialSelectDialog.destroy()
        }
    }

    Component.onCompleted: {
        if (!TutorialManager.isMakingSupported())
            return;
        TutorialManager.documentReplaced.connect(tellWhatIsLeftOut);
        TutorialManager.tutorialRequested.connect(openRequested);
        recovery.offerChanged.connect(askWhetherToRestore);
        recovery.failed.connect(function(message) { window.alert(message, null, root); });
        // The first one may have been loaded on the way.
        tellWhatIsLeftOut();
    }
}
