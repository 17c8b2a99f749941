import QtQuick 2.9
import Morvi.kess 1.0

/// Turns CoffeeScript into JavaScript in a hidden page, and answers each
/// request once, in order. A request that the page doesn't answer, because its
/// script runs for ever or takes the page's process with it, is answered with
/// an error, and the others go on in a new page.
///
/// The way to the page and back costs more than most conversions, so that
/// requests that wait for each other take it together, as a batch. Those of a
/// batch that was lost take it alone: one of them may be to blame.
Item {
    id: service

    /// The page's process is started only while this is set.
    property bool active: false
    /// The page takes conversions.
    property bool ready: false
    /// Requests that wait, the oldest first.
    property var list: []
    /// Batches that the page has and hasn't answered, the oldest first.
    property var running: []
    /// Lost pages in a row that answered nothing.
    property int failedPages: 0
    /// The page can't be loaded, as in a build without the web engine.
    readonly property bool missing: viewLoader.status === Loader.Error
    property alias webEngineView: viewLoader.item
    property alias viewSource: viewLoader.source

    /// How often a request may be under way when the page's process ends.
    readonly property int maximumAttempts: 2
    /// With more of them, requests are answered with an error until a page is ready.
    readonly property int maximumFailedPages: 3
    /// One batch can run while the answers of the one before are on their way.
    readonly property int maximumRunning: 2
    /// So that no answer waits long for those of its batch.
    readonly property int maximumBatch: 32
    readonly property int maximumBatchLength: 20000
    /// Times in milliseconds.
    readonly property int answerLimit: 10000
    readonly property int maximumAnswerLimit: 3600000
    /// A limit is over after so many turns of the event loop, of a like time each: all the time that a machine or a
    /// process was halted is one of them, in which the page could do nothing either.
    readonly property int turnsOfLimit: 10
    readonly property int maximumRestartDelay: 60000

    function requestCoffeeJs(key, coffeeScript) {
        console.log("requestCoffeeJs:", key, coffeeScript);
        var request = { "key": key, "source": coffeeScript, "attempts": 0, "alone": false };
        if (missing || !ready && failedPages > maximumFailedPages) {
            refuse(request, "The conversion is not available.");
            return;
        }
        list.push(request);
        processList();
    }

    function processList() {
        while (ready && list.length > 0 && running.length < maximumRunning)
            convert({ "requests": takeBatch(), "begun": false });
    }

    function takeBatch() {
        var count = 1;
        var length = list[0].source.length;
        if (list[0].alone)
            return [list.shift()];
        while (count < Math.min(list.length, maximumBatch) && !list[count].alone
               && length + list[count].source.length <= maximumBatchLength)
            length += list[count++].source.length;
        return list.splice(0, count);
    }

    function convert(batch) {
        running.push(batch);
        if (running.length === 1)
            watchOldest();
        // The page takes scripts in turn: with this answer it is the batch's turn.
        webEngineView.runJavaScript("0", function() {
            batch.begun = running.indexOf(batch) >= 0;
            if (running[0] === batch)
                watchOldest();
        });
        webEngineView.runJavaScript(scriptOf(batch.requests), function(result) {
            var index = running.indexOf(batch);
            if (index < 0)
                return;
            running.splice(index, 1);
            failedPages = 0;
            watchOldest();
            var results = batch.requests.length === 1 ? [result] : result || [];
            batch.requests.forEach(function(request, i) { answer(request.key, results[i]); });
            processList();
        });
    }

    function scriptOf(requests) {
        var calls = requests.map(function(request) { return "convertCoffee(" + request.source + ")"; });
        if (calls.length === 1)
            return calls[0];
        // JSON allows these two in a text, scripts do only of late.
        return "runEach(" + JSON.stringify(calls).replace(/\u2028/g, "\\u2028").replace(/\u2029/g, "\\u2029") + ")";
    }

    // The compiler's time grows with the square of the source. This is ten
    // times what 300 kB of the shortest usual lines take.
    function limitFor(batch) {
        if (!batch.begun)
            return answerLimit;
        var squares = batch.requests.reduce(function(sum, request) {
            return sum + request.source.length * request.source.length;
        }, 0);
        return Math.min(answerLimit + 3e-5 * squares, maximumAnswerLimit);
    }

    function watchOldest() {
        answerTimer.stop();
        if (running.length === 0)
            return;
        answerTimer.turns = 0;
        answerTimer.interval = limitFor(running[0]) / turnsOfLimit;
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
        var oldest = running[0];
        var lost = running.reduce(function(requests, batch) { return requests.concat(batch.requests); }, []);
        running = [];
        answerTimer.stop();
        processTimer.stop();
        provenTimer.stop();
        ready = false;
        viewLoader.running = false;
        if (oldest && oldest.begun)
            blame(oldest.requests, lost, processEnded);
        list = lost.concat(list);
        ++failedPages;
        if (failedPages > maximumFailedPages)
            refuseAll();
        restartTimer.interval = Math.min(50 * Math.pow(2, failedPages), maximumRestartDelay);
        restartTimer.start();
    }

    // Refuses a request that was alone, the first of the lost, where it is to blame.
    function blame(requests, lost, processEnded) {
        if (requests.length > 1) {
            requests.forEach(function(request) { request.alone = true; });
        } else if (!processEnded || ++requests[0].attempts >= maximumAttempts) {
            failedPages = 0;
            refuse(lost.shift(), "The conversion did not end.");
        }
    }

    function refuseAll() {
        if (failedPages === maximumFailedPages + 1)
            console.warn("conversion page: lost again and again; requests get an error until one is ready");
        var refused = list;
        list = [];
        refused.forEach(function(request) { refuse(request, "The conversion is not available."); });
    }

    onMissingChanged: {
        if (missing)
            refuseAll();
    }
    onReadyChanged: {
        if (!ready)
            return;
        if (failedPages > maximumFailedPages)
            console.warn("conversion page: ready again");
        provenTimer.start();
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

    // A page that has been ready for so long is not lost in a row with those before.
    Timer {
        id: provenTimer
        interval: service.answerLimit
        onTriggered: service.failedPages = 0
    }

    Timer {
        id: answerTimer

        property int turns: 0

        repeat: true
        onTriggered: {
            if (++turns >= service.turnsOfLimit)
                service.replacePage("no answer within " + interval * turns + " ms", false);
        }
    }

    Timer {
        id: restartTimer
        onTriggered: viewLoader.running = true
    }
}
