import QtQuick 2.9
import Morvi.kess 1.0

/// Turns CoffeeScript into JavaScript in a hidden page, and answers each
/// request once, in order. A request that the page doesn't answer, because its
/// script runs for ever or takes the page's process with it, is answered with
/// an error, and the others go on in a new page.
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
    /// Lost pages in a row that answered nothing.
    property int failedPages: 0
    /// When the page became ready, in milliseconds.
    property double readySince: 0
    property alias webEngineView: viewLoader.item
    property alias viewSource: viewLoader.source

    /// How often a request may be under way when the page's process ends.
    readonly property int maximumAttempts: 2
    /// With more of them, requests are answered with an error until a page is ready.
    readonly property int maximumFailedPages: 3
    /// Times in milliseconds.
    readonly property int answerLimit: 10000
    readonly property int maximumAnswerLimit: 3600000
    readonly property int maximumRestartDelay: 60000

    function requestCoffeeJs(key, coffeeScript) {
        console.log("requestCoffeeJs:", key, coffeeScript);
        var request = { "key": key, "source": coffeeScript, "attempts": 0, "begun": false };
        if (!ready && failedPages > maximumFailedPages)
            refuse(request, "The conversion is not available.");
        else if (!ready || list.length > 0)
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

    // `finish` is called once the page has answered, before the answer goes out.
    function convert(request, finish) {
        running.push(request);
        if (running.length === 1)
            watchOldest();
        // The page takes scripts in turn: with this answer it is the source's turn.
        webEngineView.runJavaScript("0", function() {
            request.begun = running.indexOf(request) >= 0;
            if (running[0] === request)
                watchOldest();
        });
        webEngineView.runJavaScript("convertCoffee(" + request.source + ")", function(result) {
            var index = running.indexOf(request);
            if (index < 0)
                return;
            running.splice(index, 1);
            failedPages = 0;
            watchOldest();
            finish();
            answer(request.key, result);
        });
    }

    // The compiler's time grows with the square of the source. This is ten
    // times what 300 kB of the shortest usual lines take.
    function limitFor(request) {
        if (!request.begun)
            return answerLimit;
        var length = request.source.length;
        return Math.min(answerLimit + 3e-5 * length * length, maximumAnswerLimit);
    }

    function watchOldest() {
        answerTimer.stop();
        if (running.length === 0)
            return;
        answerTimer.interval = limitFor(running[0]);
        answerTimer.start();
    }

    function answer(key, result) {
        var text = result === undefined || result === null ? "" : JSON.stringify(result);
        TutorialManager.callbackCoffeeJs(key, text);
    }

    function refuse(request, error) {
        answer(request.key, { "error": error, "javascript": "", "line": -1 });
    }

    // Gives up the page. What it hasn't answered goes to the next one, in the
    // old order. Only the oldest can be what holds the page up, and only if its
    // turn had come; else it was something that an earlier source left there.
    function replacePage(reason, processEnded) {
        if (failedPages < maximumFailedPages)
            console.warn("conversion page:", reason);
        if (ready && Date.now() - readySince > answerLimit)
            failedPages = 0;
        var lost = running;
        running = [];
        answerTimer.stop();
        processTimer.stop();
        ready = false;
        viewLoader.running = false;
        if (list.length > 0 && list[0] === lost[0])
            list.shift();
        var oldest = lost[0];
        if (oldest && oldest.begun && (!processEnded || ++oldest.attempts >= maximumAttempts)) {
            lost.shift();
            failedPages = 0;
            refuse(oldest, "The conversion did not end.");
        }
        lost.forEach(function(request) { request.begun = false; });
        list = lost.concat(list);
        ++failedPages;
        if (failedPages > maximumFailedPages)
            refuseAll();
        restartTimer.interval = Math.min(50 * Math.pow(2, failedPages), maximumRestartDelay);
        restartTimer.start();
    }

    function refuseAll() {
        if (failedPages === maximumFailedPages + 1)
            console.warn("conversion page: lost again and again; requests get an error until one is ready");
        var refused = list;
        list = [];
        refused.forEach(function(request) { refuse(request, "The conversion is not available."); });
    }

    onReadyChanged: {
        if (!ready)
            return;
        readySince = Date.now();
        if (failedPages > maximumFailedPages)
            console.warn("conversion page: ready again");
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
                service.replacePage("its process ended, " + reason, true);
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
        onTriggered: service.replacePage("no answer within " + interval + " ms", false)
    }

    Timer {
        id: restartTimer
        onTriggered: viewLoader.running = true
    }
}
