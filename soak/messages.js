// Every kind of message that a host sends, in a random order that is the same in each run.
"use strict";

const { FromHost, encode } = require("../bench/hostMessages.js");

let state = 20180123;
function below(end) {
    state = Math.imul(state, 1664525) + 1013904223 >>> 0;
    return Math.floor(state / 4294967296 * end);
}
const oneOf = list => list[below(list.length)];

const presets = ["none.txt", "../qml/main.qml", "", "/etc/passwd"];
const hints = ["", "A hint", "<b>Bold</b> and <i>long</i> ".repeat(20), "ヒントの文 &amp; more\nlines", "word ".repeat(400)];
const key = () => oneOf(["MainWindow", "", "Popup"]) || `key${below(50)}`;
const x = () => below(1400) - 60;

// By how often they come.
const kinds = [
    [30, () => encode(oneOf([FromHost.kWindowPosition, FromHost.kControlPosition]), key(), x(), x())],
    [12, () => encode(FromHost.kIndicator, FromHost.kUpdateXy, x(), x())],
    [10, () => encode(FromHost.kIndicator, FromHost.kUpdate, x(), x(), key(), oneOf(hints), below(8), below(7) - 1)],
    [8, () => encode(FromHost.kAlive)],
    [8, () => encode(FromHost.kWindowStack, FromHost.kPush, key()) + encode(FromHost.kWindowStack, FromHost.kPop)],
    [3, () => encode(FromHost.kEventLog, FromHost.kCoords, `${x()}, ${x()}`)],
    [3, () => encode(FromHost.kEventLog, FromHost.kAppend, `<b>${key()}</b>`)],
    [2, () => encode(FromHost.kEventLog, FromHost.kRaisedHand, key(), key())],
    [3, () => encode(FromHost.kContents, "any", "thing")],
    [3, () => encode(FromHost.kLog, "a line")],
    [2, () => encode(FromHost.kShowTooltip, oneOf(hints), x(), x())],
    [2, () => encode(FromHost.kHideTooltip)],
    [1, () => encode(FromHost.kState, oneOf([FromHost.kShow, FromHost.kHide, "other"]))],
    [1, () => encode(FromHost.kStart, 0, 0, 1280, 1024)],
    [1, () => encode(oneOf([FromHost.kStart, FromHost.kStop]))],
    [1, () => encode(FromHost.kRequestPresetData, oneOf(presets))],
    [1, () => encode(FromHost.kFromServer, oneOf([FromHost.kRawLocale, FromHost.kStandardLocale, "en_US", "none"]))],
    [1, () => encode(FromHost.kTutorialList)],
    [1, () => encode("none", "such")],
    [1, () => `0\x02${FromHost.kAlive}\x02\x02${FromHost.kTutorialList}\0`],
    [1, () => "0\x02\0"]
];
const table = kinds.reduce((all, [weight, kind]) => all.concat(Array(weight).fill(kind)), []);

// The records of so many messages.
function randomRecords(count) {
    let records = "";
    for (let i = 0; i < count; ++i)
        records += oneOf(table)();
    return records;
}

module.exports = { randomRecords };
