<?xml version='1.0' encoding='utf-8'?>
<!DOCTYPE TS>
<TS language="en_US" version="2.1">
    <context>
        <name>StepSpeech</name>
        <message>
            <source>Click</source>
            <translation>Click</translation>
        </message>
        <message>
            <source>Double-click</source>
            <translation>Double-click</translation>
        </message>
        <message>
            <source>Right-click</source>
            <translation>Right-click</translation>
        </message>
        <message>
            <source>Look</source>
            <translation>Look</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>Wait</translation>
        </message>
        <message>
            <source>Use the keyboard</source>
            <translation>Use the keyboard</translation>
        </message>
        <message>
            <source>The arrow points at %1</source>
            <translation>The arrow points at %1</translation>
        </message>
    </context>
    <context>
        <name>TutorialSideViewStep0</name>
        <message>
            <source>#2</source>
            <translation>Welcome!
This short tour shows you the little drawing editor in front of you. It takes about three minutes.
Press Next to begin.</translation>
        </message>
        <message>
            <source>#3</source>
            <translation>Shall we look round the window first?
No takes you straight to drawing.</translation>
        </message>
        <message>
            <source>#4</source>
            <translation>These are your tools. The highlighted one is what the mouse does on the canvas.</translation>
        </message>
        <message>
            <source>#5</source>
            <translation>This is the canvas. Your drawing takes shape here.</translation>
        </message>
        <message>
            <source>#6</source>
            <translation>Every shape you draw gets a line in this list.</translation>
        </message>
        <message>
            <source>#7</source>
            <translation>Name, line width and layer of the selected shape stand here. You will change all three in a moment.</translation>
        </message>
        <message>
            <source>#9</source>
            <translation>Let us draw something.
Click Rectangle to take that tool.</translation>
        </message>
        <message>
            <source>#10</source>
            <translation>Press the left mouse button here, drag to the lower right, and let go.</translation>
        </message>
        <message>
            <source>#11</source>
            <translation>A rectangle! Now click Ellipse.</translation>
        </message>
        <message>
            <source>#12</source>
            <translation>Drag again, this time below the rectangle.</translation>
        </message>
        <message>
            <source>#13</source>
            <translation>Well done! Take a moment to look at your drawing.</translation>
        </message>
        <message>
            <source>#14</source>
            <translation>Do you see both shapes on the canvas?</translation>
        </message>
        <message>
            <source>#15</source>
            <translation>No harm done, we simply draw them once more.
Hold the button down all the while you drag.</translation>
        </message>
        <message>
            <source>#17</source>
            <translation>Click the first line to select the rectangle.</translation>
        </message>
        <message>
            <source>#18</source>
            <translation>Now double-click the same line. The cursor then moves to the name.</translation>
        </message>
        <message>
            <source>#19</source>
            <translation>Type a name of your own, three letters or more.</translation>
        </message>
        <message>
            <source>#20</source>
            <translation>The line may be bolder. Set its width to 6.</translation>
        </message>
        <message>
            <source>#21</source>
            <translation>Choose Front. The shape then lies above all others.</translation>
        </message>
        <message>
            <source>#22</source>
            <translation>Shapes can be moved, too. Click Select.</translation>
        </message>
        <message>
            <source>#23</source>
            <translation>Take the rectangle with the mouse and drag it to another place.</translation>
        </message>
        <message>
            <source>#25</source>
            <translation>A grid helps to line things up. Tick this box.</translation>
        </message>
        <message>
            <source>#26</source>
            <translation>Shall we look at the settings as well?
No skips this part.</translation>
        </message>
        <message>
            <source>#27</source>
            <translation>Open the View menu.</translation>
        </message>
        <message>
            <source>#28</source>
            <translation>Choose Settings.</translation>
        </message>
        <message>
            <source>#29</source>
            <translation>Give the canvas a warmer colour: choose Cream.</translation>
        </message>
        <message>
            <source>#30</source>
            <translation>Click OK to close the settings.</translation>
        </message>
        <message>
            <source>#32</source>
            <translation>One last trick. Click here with the right mouse button.</translation>
        </message>
        <message>
            <source>#33</source>
            <translation>Choose Duplicate to get a copy of the selected shape.</translation>
        </message>
        <message>
            <source>#34</source>
            <translation>That is all you need. Have fun drawing!
Press Next to end the tour.</translation>
        </message>
    </context>
</TS>
