import QtQuick 2.9
import Morvi.kess 1.0

/// Turns CoffeeScript into JavaScript in a hidden page, and answers each
/// request once. A request that the page doesn't answer, because its script
/// runs for ever or takes the page's process with it, is tried again in a new
/// page and then answered with an error, so that it never holds up the others.
Item {
    id: service

    /// The page's process is started only while this is set.
    property bool active: false
    /// The page takes conversions.
    property bool ready: false
    /// Requests that wait, the oldest first.
    property var list: []
    /// Requests that the page has and hasn't answered, the oldest first.
    property var running: []
    /// New pages in a row that answered nothing.
    property int failedPages: 0
    /// How long the page may take for one answer, in milliseconds.
    property int answerLimit: 10000
    property alias webEngineView: viewLoader.item
    property alias viewSource: viewLoader.source

    readonly property int maximumAttempts: 2
    readonly property int maximumFailedPages: 3

    function requestCoffeeJs(key, coffeeScript) {
        console.log("requestCoffeeJs:", key, coffeeScript);
        var request = { "key": key, "source": coffeeScript, "attempts": 0 };
        if (!ready || list.length > 0)
            list.push(request);
        else
            convert(request, function() {});
    }

    function processList() {
        if (!ready || list.length === 0)
            return;
        convert(list[0], function() {
            list.shift();
            Qt.callLater(processList);
        });
    }

    // `finish` is called once the page has answered, in front of the answer.
    function convert(request, finish) {
        ++request.attempts;
        running.push(request);
        if (!answerTimer.running)
            answerTimer.start();
        webEngineView.runJavaScript("convertCoffee(" + request.source + ")", function(result) {
            var index = running.indexOf(request);
            if (index < 0)
                return;
            running.splice(index, 1);
            failedPages = 0;
            if (running.length > 0)
                answerTimer.restart();
            else
                answerTimer.stop();
            finish();
            answer(request.key, result);
        });
    }

    function answer(key, result) {
        var text = result === undefined || result === null ? "" : JSON.stringify(result);
        TutorialManager.callbackCoffeeJs(key, text);
    }

    // Gives up the page. What it hasn't answered goes to the next one, in the
    // old order; only the oldest can be what holds it up.
    function replacePage(reason) {
        console.warn("conversion page:", reason);
        answerTimer.stop();
        processTimer.stop();
        ready = false;
        viewLoader.running = false;
        var lost = running;
        running = [];
        var waiting = list.filter(function(request) { return lost.indexOf(request) < 0; });
        for (var i = 1; i < lost.length; ++i)
            --lost[i].attempts;
        var suspect = lost.length > 0 ? lost[0] : null;
        if (suspect && suspect.attempts >= maximumAttempts) {
            lost.shift();
            failedPages = 0;
            answer(suspect.key, { "error": "The conversion did not end.", "javascript": "", "line": -1 });
        }
        list = lost.concat(waiting);
        if (++failedPages > maximumFailedPages)
            console.warn("conversion page: given up");
        else
            restartTimer.start();
    }

    onReadyChanged: {
        if (ready)
            processList();
    }

    Loader {
        id: viewLoader

        property bool running: true

        // The link needs its first seconds for itself.
        asynchronous: true
        active: service.active && running
        source: "ConversionView.qml"
        onLoaded: {
            item.loaded.connect(processTimer.start);
            item.lost.connect(function(reason) {
                service.replacePage("its process ended, " + reason);
            });
        }
    }

    // The load being reported isn't taken as enough.
    Timer {
        id: processTimer
        interval: 1000
        onTriggered: service.ready = true
    }

    Timer {
        id: answerTimer
        interval: service.answerLimit
        onTriggered: service.replacePage("no answer within " + interval + " ms")
    }

    Timer {
        id: restartTimer
        interval: 100
        onTriggered: viewLoader.running = true
    }
}
