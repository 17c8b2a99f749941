// usage: scripts/with-x -- node bench/process.js <build folder> [--json <file>] [--idle <seconds>]
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

const starts = 5;
const messageCounts = [1000, 10000, 100000];

const folder = path.resolve(process.argv[2]);
const option = (name, standard) => {
    const index = process.argv.indexOf(name);
    return index < 0 ? standard : process.argv[index + 1];
};
const idleSeconds = Number(option("--idle", 10));
const jsonFile = option("--json", "");

const subjects = {
    "": suffix => [path.join(folder, "bin", "trelvane"), suffix],
    Floor: suffix => [path.join(folder, "bin", "trelvane_floor"), "application", suffix],
    FloorWindow: suffix => [path.join(folder, "bin", "trelvane_floor"), "window", suffix]
};

const rows = [];
function report(name, size, value, unit) {
    rows.push({ name, size, value: Number(value.toPrecision(4)), unit });
    console.log(`${name.padEnd(32)} ${String(size).padStart(7)} ${value.toFixed(2).padStart(12)} ${unit}`);
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
        this.connected = milliseconds() - begin;
        this.processor = processorTime([program.pid]);
        this.answered = () => {};
        socket.on("data", bytes => {
            if (bytes.includes("tutorialList"))
                this.answered();
        });
        socket.on("error", () => {});
        this.alive = setInterval(() => this.send("alive"), 1000);
    }

    static async start(command) {
        const home = fs.mkdtempSync(path.join(os.tmpdir(), "trelvane-bench-"));
        // The log is written only where its folder is there.
        fs.mkdirSync(path.join(home, "Harnwick", "Trelvane"), { recursive: true });
        const suffix = `-bench-${process.pid}`;
        const server = net.createServer();
        await new Promise(resolve => server.listen(path.join(os.tmpdir(), `qelm${suffix}`), resolve));
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
        this.socket.write(`0\x02${fields.join("\x01")}\0`);
    }

    // Everything sent before has been handled once this is answered.
    settle() {
        return new Promise(resolve => {
            this.answered = resolve;
            this.send("tutorialList");
        });
    }

    async end() {
        clearInterval(this.alive);
        const ended = new Promise(resolve => this.program.on("exit", resolve));
        this.socket.destroy();
        await ended;
        fs.rmSync(this.home, { recursive: true, force: true });
    }
}

async function measureStart(name, command) {
    const connected = [];
    const processor = [];
    for (let i = 0; i < starts; ++i) {
        const subject = await Subject.start(command);
        connected.push(subject.connected);
        processor.push(subject.processor);
        await subject.end();
    }
    report(`startToConnection${name}`, 1, median(connected), "ms");
    report(`startProcessor${name}`, 1, median(processor), "ms");
}

async function measureMessages(name, command) {
    const subject = await Subject.start(command);
    // The first page and the screens are no part of the link.
    await subject.settle();
    await wait(5);
    for (const count of messageCounts) {
        let records = "";
        for (let i = 0; i < count; ++i)
            records += `0\x02windowPosition\x01key${i % 50}\x01${i % 1280}\x01${i % 1024}\0`;
        const times = [];
        for (let i = 0; i < 5; ++i) {
            const before = processorTime([subject.program.pid]);
            subject.socket.write(records);
            await subject.settle();
            times.push(processorTime([subject.program.pid]) - before);
        }
        report(`messages${name}`, count, median(times), "ms");
    }
    await subject.end();
}

async function idle(name, pid) {
    const before = processorTime(treeOf(pid));
    await wait(idleSeconds);
    const after = treeOf(pid);
    report(name, 1, (processorTime(after) - before) / idleSeconds / 10, "% of a core");
    report(`${name}Memory`, after.length, memory(after), "MiB");
}

async function measureIdle(name, command) {
    const subject = await Subject.start(command);
    await subject.settle();
    await wait(5);
    await idle(`idle${name}`, subject.program.pid);
    if (name === "") {
        subject.send("start", 0, 0, 800, 600);
        subject.send("indicator", "update", 200, 200, "", "A hint", 7, 0);
        await wait(2);
        await idle("idleGuidance", subject.program.pid);
    }
    await subject.end();
}

async function main() {
    const which = option("--only", "start,messages,idle").split(",");
    for (const [name, command] of Object.entries(subjects)) {
        if (which.includes("start"))
            await measureStart(name, command);
        if (which.includes("messages") && name !== "FloorWindow")
            await measureMessages(name, command);
        if (which.includes("idle") && idleSeconds > 0)
            await measureIdle(name, command);
    }
    if (jsonFile)
        fs.writeFileSync(jsonFile, JSON.stringify(rows, null, 1) + "\n");
}

main().catch(error => {
    console.error(error.message);
    process.exit(1);
});
