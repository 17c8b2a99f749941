// usage: scripts/with-x -- node bench/process.js <build folder> [--json <file>] [--idle <seconds>] [--only <rows,...>]
//
// What the program costs as a process beside its host editor, each figure next
// to the least that a process of the same toolkit needs: from its start to the
// connection, messages over the real socket, and idling.
"use strict";

const { spawn } = require("child_process");
const fs = require("fs");
const net = require("net");
const os = require("os");
const path = require("path");

const { FromHost, ToHost, encode, socketPath } = require("./hostMessages.js");

const rounds = 5;
const messageCounts = [1000, 10000, 100000];

const folder = path.resolve(process.argv[2]);
const option = (name, standard) => {
    const index = process.argv.indexOf(name);
    return index < 0 ? standard : process.argv[index + 1];
};
const idleSeconds = Number(option("--idle", 10));
const jsonFile = option("--json", "");

const program = suffix => [path.join(folder, "bin", "trelvane"), suffix];
const floor = (...words) => suffix => [path.join(folder, "bin", "trelvane_floor"), suffix, ...words];

const rows = [];
function report(name, size, value, unit) {
    rows.push({ name, size, value: Number(value.toPrecision(4)), unit });
    console.log(name, size, value.toFixed(2), unit);
}

const median = values => values.sort((a, b) => a - b)[values.length >> 1];
const wait = seconds => new Promise(resolve => setTimeout(resolve, seconds * 1000));
const milliseconds = () => Number(process.hrtime.bigint()) / 1e6;

function treeOf(root) {
    const parents = new Map();
    for (const name of fs.readdirSync("/proc").filter(entry => /^\d+$/.test(entry))) {
        try {
            const stat = fs.readFileSync(`/proc/${name}/stat`, "utf8");
            parents.set(Number(name), Number(stat.replace(/.*\) /, "").split(" ")[1]));
        } catch (gone) {
            continue;
        }
    }
    const belongs = pid => pid === root || (parents.has(pid) && belongs(parents.get(pid)));
    return [...parents.keys()].filter(belongs);
}

// Processor time of all threads, in milliseconds.
function processorTime(pids) {
    let sum = 0;
    for (const pid of pids) {
        for (const thread of fs.readdirSync(`/proc/${pid}/task`))
            sum += Number(fs.readFileSync(`/proc/${pid}/task/${thread}/schedstat`, "utf8").split(" ")[0]) / 1e6;
    }
    return sum;
}

function memory(pids) {
    const share = pid => /^Pss:\s+(\d+)/m.exec(fs.readFileSync(`/proc/${pid}/smaps_rollup`, "utf8"))[1];
    return pids.reduce((sum, pid) => sum + Number(share(pid)) / 1024, 0);
}

// A process under measurement, with the host's end of its link.
class Subject {
    constructor(home, socket, program, begin) {
        this.home = home;
        this.socket = socket;
        this.program = program;
        this.begin = begin;
        this.connected = milliseconds() - begin;
        this.processor = processorTime([program.pid]);
        this.answered = () => {};
        socket.on("data", bytes => {
            if (bytes.includes(ToHost.kTutorialList))
                this.answered();
        });
        socket.on("error", () => {});
        this.alive = setInterval(() => this.send(FromHost.kAlive), 1000);
    }

    static async start(command) {
        const home = fs.mkdtempSync(path.join(os.tmpdir(), "trelvane-bench-"));
        // The log is written only where its folder is there.
        fs.mkdirSync(path.join(home, "Harnwick", "Trelvane"), { recursive: true });
        const suffix = `-bench-${process.pid}`;
        const server = net.createServer();
        await new Promise(resolve => server.listen(socketPath(suffix), resolve));
        const begin = milliseconds();
        const [file, ...args] = command(suffix);
        const program = spawn(file, args, {
            env: { ...process.env, HOME: home, XDG_CONFIG_HOME: home, XDG_DATA_HOME: home, XDG_CACHE_HOME: home },
            stdio: "ignore"
        });
        const socket = await new Promise((resolve, reject) => {
            server.on("connection", resolve);
            program.on("error", reject);
            program.on("exit", () => reject(new Error(`${file} ended without a connection`)));
        });
        server.close();
        return new Subject(home, socket, program, begin);
    }

    send(...fields) {
        this.socket.write(encode(...fields));
    }

    // Everything sent before has been handled once this is answered.
    settle() {
        return new Promise(resolve => {
            this.answered = resolve;
            this.send(FromHost.kTutorialList);
        });
    }

    // What the start leaves to do later, as the page, is no part of what follows.
    async rest() {
        await this.settle();
        await wait(5);
    }

    async end() {
        clearInterval(this.alive);
        const ended = new Promise(resolve => this.program.on("exit", resolve));
        this.socket.destroy();
        await ended;
        fs.rmSync(this.home, { recursive: true, force: true });
    }
}

async function measureStarts() {
    const subjects = { "": program, Floor: floor(), FloorWindow: floor("window") };
    const times = {};
    const add = (name, value) => (times[name] = times[name] || []).push(value);
    // They take turns, so that what else the machine does falls on all.
    for (let i = 0; i < rounds; ++i) {
        for (const [name, command] of Object.entries(subjects)) {
            const subject = await Subject.start(command);
            add(`startToConnection${name}`, subject.connected);
            add(`startProcessor${name}`, subject.processor);
            await subject.settle();
            add(`startToAnswer${name}`, milliseconds() - subject.begin);
            await subject.end();
        }
    }
    for (const [name, values] of Object.entries(times))
        report(name, 1, median(values), "ms");
}

async function measureMessages() {
    const subjects = { "": program, Floor: floor(), FloorLog: floor("log") };
    for (const [name, command] of Object.entries(subjects)) {
        const subject = await Subject.start(command);
        await subject.rest();
        for (const count of messageCounts) {
            const records = Array.from({ length: count }, (_, i) =>
                encode(FromHost.kWindowPosition, `key${i % 50}`, i % 1280, i % 1024)).join("");
            const times = [];
            for (let i = 0; i < rounds; ++i) {
                const before = processorTime([subject.program.pid]);
                subject.socket.write(records);
                await subject.settle();
                times.push(processorTime([subject.program.pid]) - before);
            }
            report(`messages${name}`, count, 1000 * count / median(times), "/s");
        }
        await subject.end();
    }
}

async function idle(name, subject) {
    const before = processorTime(treeOf(subject.program.pid));
    await wait(idleSeconds);
    const after = treeOf(subject.program.pid);
    report(`idle${name}`, 1, (processorTime(after) - before) / idleSeconds / 10, "%");
    report(`idleMemory${name}`, 1, memory(after), "MiB");
}

async function measureIdle() {
    const subjects = { "": program, Floor: floor(), FloorTimers: floor("timers") };
    for (const [name, command] of Object.entries(subjects)) {
        const subject = await Subject.start(command);
        await subject.rest();
        await idle(name, subject);
        if (command === program) {
            subject.send(FromHost.kStart, 0, 0, 800, 600);
            subject.send(FromHost.kIndicator, FromHost.kUpdate, 200, 200, "", "A hint", 7, 0);
            await wait(2);
            await idle("Guiding", subject);
        }
        await subject.end();
    }
}

async function main() {
    const all = { start: measureStarts, messages: measureMessages, idle: measureIdle };
    for (const name of option("--only", Object.keys(all).join(",")).split(","))
        await all[name]();
    if (jsonFile)
        fs.writeFileSync(jsonFile, JSON.stringify(rows, null, 1));
}

main().catch(error => {
    console.error(error.message);
    process.exit(1);
});
