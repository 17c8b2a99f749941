// usage: scripts/with-x -- node soak/soak.js <build folder> [--fraction F] [--only <parts,...>]
//
// Hours of use in one go, on the real programs. Each part does its work so many times and looks at what the program
// holds after the first tenth and at the end. Prints a table; exits with 1 if anything has grown.
"use strict";

const { spawn } = require("child_process");
const fs = require("fs");
const os = require("os");
const path = require("path");

const { FromHost, ToHost, encode } = require("../bench/hostMessages.js");
const { randomRecords } = require("./messages.js");
const { Program, filesIn, holdings } = require("./Program.js");

const folder = path.resolve(process.argv[2]);
const option = (name, standard) => {
    const index = process.argv.indexOf(name);
    return index < 0 ? standard : process.argv[index + 1];
};
const fraction = Number(option("--fraction", 1));
const counts = { messages: 1e7, tutorials: 20000, conversions: 100000, edits: 1e6 };

// How much more there may be at the end than after the first tenth, memory in MiB. The threads of the page come and go,
// and the memory of its scripts goes up and down: that is printed alone.
const limits = { memory: 5, files: 0, threads: 4, wakeUps: 20, pages: 0, windows: 0, temporaryFiles: 0 };
const maximumLog = 64.001;

// The random edits are in the tests of the tree.
const windows = 4;
const editsOfSession = 240;

let failures = 0;
function row(part, count, figure, tenth, end, wrong) {
    failures += wrong ? 1 : 0;
    const number = value => value.toFixed(Number.isInteger(value) ? 0 : 2).padStart(10);
    console.log(part.padEnd(12), String(count).padStart(9), figure.padEnd(15), number(tenth), number(end),
        wrong ? `  ${wrong}` : "");
}

function leftOver(temporary) {
    const files = filesIn(temporary);
    return [files.length, files.join(" ")];
}

function progress(part, done, memory) {
    console.error(`${part}: ${done}, ${memory.toFixed(2)} MiB`);
}

function compare(part, count, tenth, end) {
    for (const figure of Object.keys(end)) {
        let wrong = "";
        if (figure === "log")
            wrong = end.log > maximumLog && "too large";
        else if (figure in limits)
            wrong = end[figure] > tenth[figure] + limits[figure] && "has grown";
        row(part, count, figure, tenth[figure], end[figure], wrong);
    }
}

// Does the work in small portions. What the first ones touch for the first time is no growth.
async function soak(part, portion, warmUp, work) {
    const program = await Program.start(path.join(folder, "bin", "trelvane"));
    const count = Math.max(Math.ceil(counts[part] * fraction), 10 * portion);
    let done = 0;
    const reach = async end => {
        for (; done < end; done += portion)
            await work(program, portion, done);
    };
    await program.settle();
    await reach(warmUp);
    done = 0;
    await reach(count / 10);
    const tenth = await program.sample();
    for (let tenths = 2; tenths < 10; ++tenths) {
        await reach(count * tenths / 10);
        progress(part, done, holdings(program.process.pid).memory);
    }
    await reach(count);
    compare(part, count, tenth, await program.sample());
    await program.end();
    row(part, count, "filesLeftOver", 0, ...leftOver(program.temporary));
    program.remove();
}

function messages() {
    return soak("messages", 1000, 20000, async (program, portion, done) => {
        program.write(randomRecords(portion));
        await program.settle();
        if (done % 100000 === 0)
            program.send(FromHost.kBye);
    });
}

function tutorials() {
    const names = fs.readdirSync(path.join(__dirname, "..", "qml", "Tutorial"))
        .filter(name => /^Tutorial\w+\.js$/.test(name) && name !== "TutorialList.js")
        .map(name => path.basename(name, ".js"));
    return soak("tutorials", 10, 200, async (program, portion, done) => {
        program.send(FromHost.kFromServer, done % 20 ? FromHost.kStandardLocale : "en_US");
        const answered = program.answers(ToHost.kStart, portion);
        for (let i = 0; i < portion; ++i)
            program.send(FromHost.kTutorial, names[i % names.length]);
        await answered;
    });
}

function conversions() {
    const corpus = path.join(__dirname, "..", "tests", "end_to_end", "coffee");
    const sources = fs.readdirSync(corpus).map(name => JSON.stringify(fs.readFileSync(path.join(corpus, name), "utf8")));
    return soak("conversions", 100, 2000, async (program, portion, done) => {
        const answered = program.answers(ToHost.kCallbackCoffeeJs, portion);
        for (let i = done; i < done + portion; ++i)
            program.write(encode(FromHost.kCoffeeJs, i, sources[i % sources.length]));
        await answered;
    });
}

// The authoring mode's window, which compares its rows with the document after each step. It waits more than it works,
// so that several do it at once.
async function edits() {
    const sessions = Math.max(10, Math.ceil(counts.edits * fraction / editsOfSession / windows));
    await Promise.all(Array.from({ length: windows }, (_, window) => editInWindow(window, sessions)));
}

async function editInWindow(window, sessions) {
    const part = `edits ${window + 1}`;
    const count = sessions * editsOfSession;
    const home = fs.mkdtempSync(path.join(os.tmpdir(), "trelvane-soak-"));
    const temporary = path.join(home, "tmp");
    fs.mkdirSync(temporary);
    const test = spawn(path.join(folder, "bin", "tst_TreeListView"), ["showsRandomEdits"], {
        env: {
            ...process.env, HOME: home, TMPDIR: temporary, SESSION_COUNT: sessions, SESSION_SEED: window * sessions,
            // A loaded machine is no fault: five minutes for a session are not enough there.
            QTEST_FUNCTION_TIMEOUT: 3600000, QT_QPA_PLATFORM: "offscreen", QT_QUICK_BACKEND: "software"
        },
        stdio: ["ignore", "pipe", "ignore"]
    });
    const samples = [];
    const failed = [];
    let over = 0;
    let pending = "";
    test.stdout.on("data", text => {
        const lines = (pending + text).split("\n");
        pending = lines.pop();
        failed.push(...lines.filter(line => /^(FAIL!|QFATAL) /.test(line)));
        for (const line of lines.filter(each => /^(PASS|FAIL!) .*showsRandomEdits\(/.test(each))) {
            over += 1;
            const held = holdings(test.pid);
            // After the last session it may have ended by now.
            if (held)
                samples.push(held);
            if (held && over % Math.ceil(sessions / 10) === 0)
                progress(part, over * editsOfSession, held.memory);
        }
    });
    const code = await new Promise(resolve => test.on("close", resolve));
    failed.forEach(line => console.error(line));
    row(part, count, "failedSessions", 0, failed.length, failed.length || code !== 0 ? `exit code ${code}` : "");
    row(part, count, "sessions", sessions, over, over === sessions ? "" : "not all");
    if (over === sessions) {
        // It is looked at while it works, and may be writing a file just then.
        const end = { ...samples[samples.length - 1], files: Math.min(...samples.slice(-5).map(sample => sample.files)) };
        compare(part, count, samples[Math.ceil(sessions / 10) - 1], end);
    }
    row(part, count, "filesLeftOver", 0, ...leftOver(temporary));
    fs.rmSync(home, { recursive: true, force: true });
}

async function main() {
    const parts = { messages, tutorials, conversions, edits };
    console.log("part             count figure          at a tenth  at the end");
    for (const name of option("--only", Object.keys(parts).join(",")).split(",")) {
        const begin = Date.now();
        await parts[name]();
        console.error(`${name}: ${((Date.now() - begin) / 1000).toFixed(0)} s`);
    }
    process.exit(failures ? 1 : 0);
}

main().catch(error => {
    console.error(error.message);
    process.exit(1);
});
