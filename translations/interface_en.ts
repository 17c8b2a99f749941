<?xml version='1.0' encoding='utf-8'?>
<!DOCTYPE TS>
<TS language="en_US" version="2.1">
    <context>
        <name>AlertDialog</name>
        <message>
            <source>Warning</source>
            <translation>Warning</translation>
        </message>
    </context>
    <context>
        <name>ConfirmDialog</name>
        <message>
            <source>Are you sure?</source>
            <translation>Are you sure?</translation>
        </message>
        <message>
            <source>Confirmation</source>
            <translation>Confirmation</translation>
        </message>
    </context>
    <context>
        <name>InterfaceLanguage</name>
        <message>
            <source>The screens are in English from the next start on.</source>
            <translation>The screens are in English from the next start on.</translation>
        </message>
        <message>
            <source>The language could not be stored: %1 can't be written.</source>
            <translation>The language could not be stored: %1 can't be written.</translation>
        </message>
    </context>
    <context>
        <name>NameChangeDialog</name>
        <message>
            <source>There is the same tutorial item name.
Change %2 to %1 ?</source>
            <translation>Another item has that name.
Change %2 to %1?</translation>
        </message>
        <message>
            <source>Tutorial item name change</source>
            <translation>Name of the item</translation>
        </message>
    </context>
    <context>
        <name>ProblemsWindow</name>
        <message>
            <source>Check tutorial</source>
            <translation>Check tutorial</translation>
        </message>
        <message>
            <source>Errors: %1, warnings: %2, remarks: %3</source>
            <translation>Errors: %1, warnings: %2, remarks: %3</translation>
        </message>
        <message>
            <source>No problems.</source>
            <translation>No problems.</translation>
        </message>
        <message>
            <source>No tutorial is open.</source>
            <translation>No tutorial is open.</translation>
        </message>
    </context>
    <context>
        <name>Recovery</name>
        <message>
            <source>A copy of unsaved changes is damaged. It was kept as %1</source>
            <translation>A copy of unsaved changes is damaged. It was kept as %1</translation>
        </message>
        <message>
            <source>Added: %1</source>
            <translation>Added: %1</translation>
        </message>
        <message>
            <source>Changed: %1, %2: %3 -&gt; %4</source>
            <translation>Changed: %1, %2: %3 -&gt; %4</translation>
        </message>
        <message>
            <source>Changed: items that share an id</source>
            <translation>Changed: items that share an id</translation>
        </message>
        <message>
            <source>Moved: %1</source>
            <translation>Moved: %1</translation>
        </message>
        <message>
            <source>No copy of the unsaved changes can be kept in %1. Save more often.</source>
            <translation>No copy of the unsaved changes can be kept in %1. Save more often.</translation>
        </message>
        <message>
            <source>The copy can't be removed from %1</source>
            <translation>The copy can't be removed from %1</translation>
        </message>
        <message>
            <source>Removed: %1</source>
            <translation>Removed: %1</translation>
        </message>
        <message>
            <source>Stale: %1</source>
            <translation>Stale: %1</translation>
        </message>
        <message>
            <source>The copy can't be read as a tutorial.</source>
            <translation>The copy can't be read as a tutorial.</translation>
        </message>
        <message>
            <source>The file is not there any more.</source>
            <translation>The file is not there any more.</translation>
        </message>
        <message>
            <source>The file was changed since then.</source>
            <translation>The file was changed since then.</translation>
        </message>
        <message>
            <source>Translation stands: %1</source>
            <translation>Translation stands: %1</translation>
        </message>
    </context>
    <context>
        <name>RecoveryDialog</name>
        <message>
            <source>Discard</source>
            <translation>Discard</translation>
        </message>
        <message>
            <source>Do you restore them?</source>
            <translation>Restore them?</translation>
        </message>
        <message>
            <source>Look</source>
            <translation>Look</translation>
        </message>
        <message>
            <source>Restore</source>
            <translation>Restore</translation>
        </message>
        <message>
            <source>The program ended before the changes of this tutorial were saved. A copy of them is there.</source>
            <translation>The program ended before the changes of this tutorial were saved. A copy of them is there.</translation>
        </message>
        <message>
            <source>Unsaved changes</source>
            <translation>Unsaved changes</translation>
        </message>
    </context>
    <context>
        <name>SaveChangeDialog</name>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Save project</source>
            <translation>Unsaved changes</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
    </context>
    <context>
        <name>TranslationWindow</name>
        <message>
            <source>All: %1</source>
            <translation>All: %1</translation>
        </message>
        <message>
            <source>Export XLIFF</source>
            <translation>Export XLIFF</translation>
        </message>
        <message>
            <source>Export XLIFF...</source>
            <translation>Export XLIFF...</translation>
        </message>
        <message>
            <source>Import XLIFF</source>
            <translation>Import XLIFF</translation>
        </message>
        <message>
            <source>Import XLIFF...</source>
            <translation>Import XLIFF...</translation>
        </message>
        <message>
            <source>Item</source>
            <translation>Item</translation>
        </message>
        <message>
            <source>Missing: %1</source>
            <translation>Missing: %1</translation>
        </message>
        <message>
            <source>Next to do (F3)</source>
            <translation>Next to do (F3)</translation>
        </message>
        <message>
            <source>No hint is shown.</source>
            <translation>No hint is shown.</translation>
        </message>
        <message>
            <source>Search:</source>
            <translation>Search:</translation>
        </message>
        <message>
            <source>Stale: %1</source>
            <translation>Stale: %1</translation>
        </message>
        <message>
            <source>Tab, Ctrl+Enter: next cell, next row. F2: into the text. Esc: give up. Ctrl+1, 2, 3: all, missing, stale. Ctrl+F: search. F6: next part.</source>
            <translation>Tab, Ctrl+Enter: next cell, next row. F2: into the text. Esc: give up. Ctrl+1, 2, 3: all, missing, stale. Ctrl+F: search. F6: next part.</translation>
        </message>
        <message>
            <source>The translation stands (F7)</source>
            <translation>The translation stands (F7)</translation>
        </message>
        <message>
            <source>Translation</source>
            <translation>Translation</translation>
        </message>
        <message>
            <source>missing</source>
            <translation>missing</translation>
        </message>
        <message>
            <source>same</source>
            <translation>same</translation>
        </message>
        <message>
            <source>stale</source>
            <translation>stale</translation>
        </message>
        <message>
            <source>Hints</source>
            <translation>Hints</translation>
        </message>
    </context>
    <context>
        <name>TutorialCheck</name>
        <message>
            <source>The jump</source>
            <translation>The jump</translation>
        </message>
        <message>
            <source>The jump after No</source>
            <translation>The jump after No</translation>
        </message>
        <message>
            <source>%1 leads to the step itself: choose another step, or none.</source>
            <translation>%1 leads to the step itself: choose another step, or none.</translation>
        </message>
        <message>
            <source>%1 leads to #%2, which is not there: choose a step that is.</source>
            <translation>%1 leads to #%2, which is not there: choose a step that is.</translation>
        </message>
        <message>
            <source>%1 leads to the prohibited step #%2, which is passed over: permit it, or choose another.</source>
            <translation>%1 leads to the prohibited step #%2, which is passed over: permit it, or choose another.</translation>
        </message>
        <message>
            <source>%1 leads to the folder #%2, in which no step is shown: choose another one.</source>
            <translation>%1 leads to the folder #%2, in which no step is shown: choose another one.</translation>
        </message>
        <message>
            <source>The jump after No is never taken, since the step asks no question: take it away, or make "yesNo" the condition.</source>
            <translation>The jump after No is never taken, since the step asks no question: take it away, or make "yesNo" the condition.</translation>
        </message>
        <message>
            <source>No way reaches this step: let a step or a jump lead to it, or prohibit it.</source>
            <translation>No way reaches this step: let a step or a jump lead to it, or prohibit it.</translation>
        </message>
        <message>
            <source>No way reaches the %1 steps from here to #%2: let a step or a jump lead to them, or prohibit them.</source>
            <translation>No way reaches the %1 steps from here to #%2: let a step or a jump lead to them, or prohibit them.</translation>
        </message>
        <message>
            <source>Since the last save no way reaches this step any more: let a step or a jump lead to it again, or prohibit it.</source>
            <translation>Since the last save no way reaches this step any more: let a step or a jump lead to it again, or prohibit it.</translation>
        </message>
        <message>
            <source>Since the last save no way reaches the %1 steps from here to #%2 any more: let a step or a jump lead to them again, or prohibit them.</source>
            <translation>Since the last save no way reaches the %1 steps from here to #%2 any more: let a step or a jump lead to them again, or prohibit them.</translation>
        </message>
        <message>
            <source>All steps are prohibited, so that learners see none: permit one.</source>
            <translation>All steps are prohibited, so that learners see none: permit one.</translation>
        </message>
        <message>
            <source>No way leads out of the circle of %1: let a jump or an answer lead to a step outside of it.</source>
            <translation>No way leads out of the circle of %1: let a jump or an answer lead to a step outside of it.</translation>
        </message>
        <message>
            <source>This step leads to itself again, by way of its jump: let the jump lead to another step.</source>
            <translation>This step leads to itself again, by way of its jump: let the jump lead to another step.</translation>
        </message>
        <message>
            <source>The value of "%1" is left out: write a whole number.</source>
            <translation>The value of "%1" is left out: write a whole number.</translation>
        </message>
        <message>
            <source>The value of "%1" is left out: write a text in quotes.</source>
            <translation>The value of "%1" is left out: write a text in quotes.</translation>
        </message>
        <message>
            <source>The value of "%1" is left out: write true or false.</source>
            <translation>The value of "%1" is left out: write true or false.</translation>
        </message>
        <message>
            <source>The file holds characters that are not UTF-8: write them anew, as UTF-8.</source>
            <translation>The file holds characters that are not UTF-8: write them anew, as UTF-8.</translation>
        </message>
        <message>
            <source>What follows the list of steps is left out: take it into the list, or take it away.</source>
            <translation>What follows the list of steps is left out: take it into the list, or take it away.</translation>
        </message>
        <message>
            <source>This can't be read as an item, so that all of the item at the top is left out: write it as an item, or take it away.</source>
            <translation>This can't be read as an item, so that all of the item at the top is left out: write it as an item, or take it away.</translation>
        </message>
        <message>
            <source>What stands in this item is left out, since it is no folder: write "folder":true, or take it away.</source>
            <translation>What stands in this item is left out, since it is no folder: write "folder":true, or take it away.</translation>
        </message>
        <message>
            <source>"%1" stands twice, and the first one is left out: take one away.</source>
            <translation>"%1" stands twice, and the first one is left out: take one away.</translation>
        </message>
        <message>
            <source>A folder has no "%1", so that it is left out: write it at its steps, or take it away.</source>
            <translation>A folder has no "%1", so that it is left out: write it at its steps, or take it away.</translation>
        </message>
        <message>
            <source>A text</source>
            <translation>A text</translation>
        </message>
        <message>
            <source>The hint is that of #%1: write qsTr("#%2").</source>
            <translation>The hint is that of #%1: write qsTr("#%2").</translation>
        </message>
        <message>
            <source>The id must be a whole number from 0 up: give the item one of its own.</source>
            <translation>The id must be a whole number from 0 up: give the item one of its own.</translation>
        </message>
        <message>
            <source>A translation call can't be read (%1): write it as qsTr("#12"), with the id of its step.</source>
            <translation>A translation call can't be read (%1): write it as qsTr("#12"), with the id of its step.</translation>
        </message>
        <message>
            <source>The file holds no list of steps: write "var scenario = [" before them, and "];" after them.</source>
            <translation>The file holds no list of steps: write "var scenario = [" before them, and "];" after them.</translation>
        </message>
        <message>
            <source>The file can't be read from here on (%1): mend what stands here, or just before.</source>
            <translation>The file can't be read from here on (%1): mend what stands here, or just before.</translation>
        </message>
        <message>
            <source>The translations can't be read from here on (%1): mend the file.</source>
            <translation>The translations can't be read from here on (%1): mend the file.</translation>
        </message>
        <message>
            <source>it is not what such a file holds</source>
            <translation>it is not what such a file holds</translation>
        </message>
        <message>
            <source>Japanese</source>
            <translation>Japanese</translation>
        </message>
        <message>
            <source>English</source>
            <translation>English</translation>
        </message>
        <message>
            <source>The hint has the same words in both languages: translate it.</source>
            <translation>The hint has the same words in both languages: translate it.</translation>
        </message>
        <message>
            <source>The hint in %1 is %2 pixels high, and its window has room for %3: shorten it, or make two steps of it.</source>
            <translation>The hint in %1 is %2 pixels high, and its window has room for %3: shorten it, or make two steps of it.</translation>
        </message>
        <message>
            <source>The hint has changed since it was translated into %1: look at the translation.</source>
            <translation>The hint has changed since it was translated into %1: look at the translation.</translation>
        </message>
        <message>
            <source>The name</source>
            <translation>The name</translation>
        </message>
        <message>
            <source>The key of the control</source>
            <translation>The key of the control</translation>
        </message>
        <message>
            <source>The condition</source>
            <translation>The condition</translation>
        </message>
        <message>
            <source>The name of the icon</source>
            <translation>The name of the icon</translation>
        </message>
        <message>
            <source>The command</source>
            <translation>The command</translation>
        </message>
        <message>
            <source>%1 holds "%2", with which the saved file could not be read again: write it without.</source>
            <translation>%1 holds "%2", with which the saved file could not be read again: write it without.</translation>
        </message>
        <message>
            <source>This comment holds "%1", so that all from there to the next "*/" is left out: write it without.</source>
            <translation>This comment holds "%1", so that all from there to the next "*/" is left out: write it without.</translation>
        </message>
        <message>
            <source>Another item has the id #%1, too, so that both are one: give one of them an id of its own.</source>
            <translation>Another item has the id #%1, too, so that both are one: give one of them an id of its own.</translation>
        </message>
        <message>
            <source>#%1 has the same name: give one of them another.</source>
            <translation>#%1 has the same name: give one of them another.</translation>
        </message>
        <message>
            <source>Only one of x and y has a value: give the step both, or neither for no place.</source>
            <translation>Only one of x and y has a value: give the step both, or neither for no place.</translation>
        </message>
        <message>
            <source>The place (%1, %2) is on no screen: take it over from the mouse again.</source>
            <translation>The place (%1, %2) is on no screen: take it over from the mouse again.</translation>
        </message>
        <message>
            <source>The place (%1, %2) is outside of the host editor's window: take it over from the mouse again.</source>
            <translation>The place (%1, %2) is outside of the host editor's window: take it over from the mouse again.</translation>
        </message>
        <message>
            <source>No icon is called "%1", so that none is shown: choose one of %2.</source>
            <translation>No icon is called "%1", so that none is shown: choose one of %2.</translation>
        </message>
        <message>
            <source>The host editor has not reported "%1" since the program was started: see whether the key is right, or open the window that the control is in.</source>
            <translation>The host editor has not reported "%1" since the program was started: see whether the key is right, or open the window that the control is in.</translation>
        </message>
        <message>
            <source>There is no hint: write one, or a blank if none is to be shown.</source>
            <translation>There is no hint: write one, or a blank if none is to be shown.</translation>
        </message>
        <message>
            <source>The hint is missing in %1: write it.</source>
            <translation>The hint is missing in %1: write it.</translation>
        </message>
        <message>
            <source>No hint is there in %1 yet: translate them for learners who read it.</source>
            <translation>No hint is there in %1 yet: translate them for learners who read it.</translation>
        </message>
        <message>
            <source>The map needs Graphviz, which is not there: install it, or have the map written to a file whose name ends in .dot.</source>
            <translation>The map needs Graphviz, which is not there: install it, or have the map written to a file whose name ends in .dot.</translation>
        </message>
        <message>
            <source>Graphviz was stopped after a minute: the tutorial is too large for a map.</source>
            <translation>Graphviz was stopped after a minute: the tutorial is too large for a map.</translation>
        </message>
        <message>
            <source>Graphviz could not draw the map: %1</source>
            <translation>Graphviz could not draw the map: %1</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Start</translation>
        </message>
        <message>
            <source>End</source>
            <translation>End</translation>
        </message>
        <message>
            <source>(no step)</source>
            <translation>(no step)</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>steps: %1, ways: %2, ends: %3</source>
            <translation>steps: %1, ways: %2, ends: %3</translation>
        </message>
        <message>
            <source>problems: %1</source>
            <translation>problems: %1</translation>
        </message>
        <message>
            <source>steps: %1, shown: %2, reached: %3</source>
            <translation>steps: %1, shown: %2, reached: %3</translation>
        </message>
        <message>
            <source>reached by no way: %1</source>
            <translation>reached by no way: %1</translation>
        </message>
        <message>
            <source>ways: %1</source>
            <translation>ways: %1</translation>
        </message>
        <message>
            <source>longest way, with %1 different steps: %2</source>
            <translation>longest way, with %1 different steps: %2</translation>
        </message>
        <message>
            <source>circle: %1</source>
            <translation>circle: %1</translation>
        </message>
        <message>
            <source>circle that no way leaves: %1</source>
            <translation>circle that no way leaves: %1</translation>
        </message>
        <message>
            <source>and %1 more circles</source>
            <translation>and %1 more circles</translation>
        </message>
        <message>
            <source>and %1 more ends</source>
            <translation>and %1 more ends</translation>
        </message>
        <message>
            <source>end: #%1 %2, shortest way, with %3 steps: %4</source>
            <translation>end: #%1 %2, shortest way, with %3 steps: %4</translation>
        </message>
        <message>
            <source>No entry is called "%1", so that it is left out: correct its name, or take it away.</source>
            <translation>No entry is called "%1", so that it is left out: correct its name, or take it away.</translation>
        </message>
    </context>
    <context>
        <name>TutorialEditor::Manager</name>
        <message>
            <source>Failed to save.</source>
            <translation>The file could not be written.</translation>
        </message>
        <message>
            <source>It is larger than %1 MiB: %2</source>
            <translation>It is larger than %1 MiB: %2</translation>
        </message>
        <message>
            <source>It is no file: %1</source>
            <translation>It is no file: %1</translation>
        </message>
        <message>
            <source>Tutorial not loaded yet.</source>
            <translation>No tutorial is open.</translation>
        </message>
        <message>
            <source>folder</source>
            <translation>folder</translation>
        </message>
        <message>
            <source>item</source>
            <translation>item</translation>
        </message>
        <message>
            <source>%1, with all in it: %2 can't be read</source>
            <translation>%1, with all in it: %2 can't be read</translation>
        </message>
        <message>
            <source>%1 can't be read</source>
            <translation>%1 can't be read</translation>
        </message>
        <message>
            <source>entry %1</source>
            <translation>entry %1</translation>
        </message>
        <message>
            <source>%1: another item has the same id</source>
            <translation>%1: another item has the same id</translation>
        </message>
        <message>
            <source>%1: what stands in it, for it is no folder</source>
            <translation>%1: what stands in it, for it is no folder</translation>
        </message>
        <message>
            <source>%1: the value of "%2"</source>
            <translation>%1: the value of "%2"</translation>
        </message>
        <message>
            <source>Characters that are not UTF-8</source>
            <translation>Characters that are not UTF-8</translation>
        </message>
        <message>
            <source>What follows the steps</source>
            <translation>What follows the steps</translation>
        </message>
    </context>
    <context>
        <name>TutorialEventDialog</name>
        <message>
            <source>Clear</source>
            <translation>Clear</translation>
        </message>
        <message>
            <source>Tracking control</source>
            <translation>Tracked controls</translation>
        </message>
        <message>
            <source>Tutorial event</source>
            <translation>Events</translation>
        </message>
        <message>
            <source>Coordinates</source>
            <translation>Coordinates</translation>
        </message>
        <message>
            <source>Events</source>
            <translation>Events</translation>
        </message>
    </context>
    <context>
        <name>TutorialItemListModel</name>
        <message>
            <source>/</source>
            <translation>/</translation>
        </message>
        <message>
            <source>item</source>
            <translation>item</translation>
        </message>
        <message>
            <source>"%1" is not taken: with "%2" in it, the saved tutorial could not be opened again.</source>
            <translation>"%1" is not taken: with "%2" in it, the saved tutorial could not be opened again.</translation>
        </message>
    </context>
    <context>
        <name>TutorialManager</name>
        <message>
            <source>%1 is there already.</source>
            <translation>%1 is there already.</translation>
        </message>
        <message>
            <source>%1 is not there any more.</source>
            <translation>%1 is not there any more.</translation>
        </message>
        <message>
            <source>Failed to read %1.</source>
            <translation>Failed to read %1.</translation>
        </message>
        <message>
            <source>Failed to save translation.</source>
            <translation>The hints could not be written.</translation>
        </message>
        <message>
            <source>Failed to write %1.</source>
            <translation>Failed to write %1.</translation>
        </message>
        <message>
            <source>Not stale any more: %1</source>
            <translation>Not stale any more: %1</translation>
        </message>
        <message>
            <source>Not translated: %1</source>
            <translation>Not translated: %1</translation>
        </message>
        <message>
            <source>Skipped, for there is no such item: %1</source>
            <translation>Skipped, for there is no such item: %1</translation>
        </message>
        <message>
            <source>Stale, for the text to be translated has changed: %1</source>
            <translation>Stale, for the text to be translated has changed: %1</translation>
        </message>
        <message>
            <source>Taken over changes of yours: %1</source>
            <translation>Taken over changes of yours: %1</translation>
        </message>
        <message>
            <source>Taken: %1</source>
            <translation>Taken: %1</translation>
        </message>
        <message>
            <source>The file can't be read as XLIFF.</source>
            <translation>The file can't be read as XLIFF.</translation>
        </message>
        <message>
            <source>The file holds no hint of this tutorial.</source>
            <translation>The file holds no hint of this tutorial.</translation>
        </message>
        <message>
            <source>The file is a translation from %1 to %2.</source>
            <translation>The file is a translation from %1 to %2.</translation>
        </message>
        <message>
            <source>The hints can't be read, and nothing is saved until they can:
%1</source>
            <translation>The hints can't be read, and nothing is saved until they can:
%1</translation>
        </message>
        <message>
            <source>The program "lconvert" does not come to an end.</source>
            <translation>The program "lconvert" does not come to an end.</translation>
        </message>
        <message>
            <source>The program "lconvert" is not there. It belongs to Qt's tools (qttools5-dev-tools).</source>
            <translation>The program "lconvert" is not there. It belongs to Qt's tools (qttools5-dev-tools).</translation>
        </message>
        <message>
            <source>folder</source>
            <translation>folder</translation>
        </message>
        <message>
            <source>not closed %1: </source>
            <translation>not closed %1: </translation>
        </message>
        <message>
            <source>not found %1 or %2: </source>
            <translation>not found %1 or %2: </translation>
        </message>
        <message>
            <source>not matched %1...%2: </source>
            <translation>not matched %1...%2: </translation>
        </message>
        <message>
            <source>unable to parse as string: </source>
            <translation>unable to parse as string: </translation>
        </message>
        <message>
            <source>unterminated "...": </source>
            <translation>unterminated "...": </translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>and %1 more</translation>
        </message>
        <message>
            <source>The file holds what the tutorial leaves out:</source>
            <translation>The file holds what the tutorial leaves out:</translation>
        </message>
    </context>
    <context>
        <name>TutorialSelectDialog</name>
        <message>
            <source>Open tutorial</source>
            <translation>Open tutorial</translation>
        </message>
        <message>
            <source>Tutorial file</source>
            <translation>Tutorial file</translation>
        </message>
    </context>
    <context>
        <name>TutorialSettingItem</name>
        <message>
            <source>(Next)</source>
            <translation>(Next)</translation>
        </message>
        <message>
            <source>&lt;=</source>
            <translation>&lt;=</translation>
        </message>
        <message>
            <source>Add folder</source>
            <translation>Add folder</translation>
        </message>
        <message>
            <source>Add item</source>
            <translation>Add item</translation>
        </message>
        <message>
            <source>Command:</source>
            <translation>Command:</translation>
        </message>
        <message>
            <source>Condition:</source>
            <translation>Condition:</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copy</translation>
        </message>
        <message>
            <source>Cut</source>
            <translation>Cut</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>Hint:</source>
            <translation>Hint:</translation>
        </message>
        <message>
            <source>Icon:</source>
            <translation>Icon:</translation>
        </message>
        <message>
            <source>Jump(No):</source>
            <translation>Jump (No):</translation>
        </message>
        <message>
            <source>Jump:</source>
            <translation>Jump:</translation>
        </message>
        <message>
            <source>Paste</source>
            <translation>Paste</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Settings</translation>
        </message>
        <message>
            <source>Show arrow</source>
            <translation>Show arrow</translation>
        </message>
        <message>
            <source>The tutorial is needed to be reloaded to apply the translation.
Do you save tutorial?</source>
            <translation>The tutorial is loaded again in the other language.
Save it first?</translation>
        </message>
        <message>
            <source>There are problems in this folder.</source>
            <translation>There are problems in this folder.</translation>
        </message>
        <message>
            <source>Track:</source>
            <translation>Track:</translation>
        </message>
        <message>
            <source>Translation:</source>
            <translation>Translation:</translation>
        </message>
        <message>
            <source>Tutorial item list</source>
            <translation>Steps</translation>
        </message>
        <message>
            <source>Tutorial item menu</source>
            <translation>Steps</translation>
        </message>
        <message>
            <source>X:</source>
            <translation>X:</translation>
        </message>
        <message>
            <source>Y:</source>
            <translation>Y:</translation>
        </message>
        <message>
            <source>empty</source>
            <translation>empty</translation>
        </message>
        <message>
            <source>Move up</source>
            <translation>Move up</translation>
        </message>
        <message>
            <source>Move down</source>
            <translation>Move down</translation>
        </message>
        <message>
            <source>Move into the folder</source>
            <translation>Move into the folder</translation>
        </message>
        <message>
            <source>Move out of the folder</source>
            <translation>Move out of the folder</translation>
        </message>
        <message>
            <source>Prohibit or permit (Space)</source>
            <translation>Prohibit or permit (Space)</translation>
        </message>
        <message>
            <source>Track this window</source>
            <translation>Track this window</translation>
        </message>
    </context>
    <context>
        <name>UndoRedo</name>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Redo</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Undo</translation>
        </message>
        <message>
            <source>Command List</source>
            <translation>Command List</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>&amp;Add folder</source>
            <translation>&amp;Add folder</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>&amp;Edit</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;File</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Help</translation>
        </message>
        <message>
            <source>&amp;License</source>
            <translation>&amp;License</translation>
        </message>
        <message>
            <source>Translation</source>
            <translation>Translation</translation>
        </message>
        <message>
            <source>Tutorial &amp;event</source>
            <translation>&amp;Events</translation>
        </message>
        <message>
            <source>&amp;Open tutorial</source>
            <translation>&amp;Open tutorial</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Redo</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Undo</translation>
        </message>
        <message>
            <source>&amp;Version</source>
            <translation>&amp;Version</translation>
        </message>
        <message>
            <source>-</source>
            <translation>-</translation>
        </message>
        <message>
            <source>Check tutorial</source>
            <translation>Check tutorial</translation>
        </message>
        <message>
            <source>Close tutorial</source>
            <translation>Close tutorial</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copy</translation>
        </message>
        <message>
            <source>Create &amp;item</source>
            <translation>Create &amp;item</translation>
        </message>
        <message>
            <source>Cut</source>
            <translation>Cut</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>Exit</source>
            <translation>Exit</translation>
        </message>
        <message>
            <source>Failed to open new project</source>
            <translation>The tutorial could not be opened.</translation>
        </message>
        <message>
            <source>Failed to save project.</source>
            <translation>The tutorial could not be saved.</translation>
        </message>
        <message>
            <source>License</source>
            <translation>License</translation>
        </message>
        <message>
            <source>Open tutorial folder</source>
            <translation>Open tutorial folder</translation>
        </message>
        <message>
            <source>Paste</source>
            <translation>Paste</translation>
        </message>
        <message>
            <source>Save change?</source>
            <translation>Save the changes?</translation>
        </message>
        <message>
            <source>Save tutorial</source>
            <translation>Save tutorial</translation>
        </message>
        <message>
            <source>Start current</source>
            <translation>Start current</translation>
        </message>
        <message>
            <source>Start tutorial</source>
            <translation>Start tutorial</translation>
        </message>
        <message>
            <source>Tutorial Editor</source>
            <translation>Tutorial editor</translation>
        </message>
        <message>
            <source>Tutorial editor</source>
            <translation>Tutorial editor</translation>
        </message>
        <message>
            <source>Version:</source>
            <translation>Version:</translation>
        </message>
        <message>
            <source>It goes from the file with this save. Do you save all the same?</source>
            <translation>This save takes it from the file. Save all the same?</translation>
        </message>
        <message>
            <source>The file was changed by someone else since it was opened.
Yes writes over it. No opens it again, without your changes.</source>
            <translation>The file was changed by someone else since it was opened.
Yes writes over it. No opens it again, without your changes.</translation>
        </message>
        <message>
            <source>Move up</source>
            <translation>Move up</translation>
        </message>
        <message>
            <source>Move down</source>
            <translation>Move down</translation>
        </message>
        <message>
            <source>Move into the folder</source>
            <translation>Move into the folder</translation>
        </message>
        <message>
            <source>Move out of the folder</source>
            <translation>Move out of the folder</translation>
        </message>
        <message>
            <source>Prohibit or permit (Space)</source>
            <translation>Prohibit or permit (Space)</translation>
        </message>
        <message>
            <source>Lan&amp;guage</source>
            <translation>Lan&amp;guage</translation>
        </message>
    </context>
    <context>
        <name>TreeListItem</name>
        <message>
            <source>Level %1</source>
            <translation>Level %1</translation>
        </message>
        <message>
            <source>open</source>
            <translation>open</translation>
        </message>
        <message>
            <source>closed</source>
            <translation>closed</translation>
        </message>
        <message>
            <source>prohibited</source>
            <translation>prohibited</translation>
        </message>
    </context>
    <context>
        <name>TreeListRenameField</name>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
    </context>
    <context>
        <name>TreeListProhibition</name>
        <message>
            <source>Prohibited</source>
            <translation>Prohibited</translation>
        </message>
    </context>
    <context>
        <name>SplitView</name>
        <message>
            <source>Divider</source>
            <translation>Divider</translation>
        </message>
    </context>
    <context>
        <name>ProblemRow</name>
        <message>
            <source>Error</source>
            <translation>Error</translation>
        </message>
        <message>
            <source>Warning</source>
            <translation>Warning</translation>
        </message>
        <message>
            <source>Remark</source>
            <translation>Remark</translation>
        </message>
    </context>
    <context>
        <name>ProblemList</name>
        <message>
            <source>Problems</source>
            <translation>Problems</translation>
        </message>
    </context>
</TS>
