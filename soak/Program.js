// The real program with folders of its own, and the host's end of its link.
"use strict";

const { execFileSync, spawn } = require("child_process");
const fs = require("fs");
const net = require("net");
const os = require("os");
const path = require("path");

const { FromHost, ToHost, encode, socketPath } = require("../bench/hostMessages.js");

const wait = milliseconds => new Promise(resolve => setTimeout(resolve, milliseconds));

function filesIn(folder) {
    let files = [];
    for (const entry of fs.readdirSync(folder, { withFileTypes: true })) {
        const name = path.join(folder, entry.name);
        files = files.concat(name, entry.isDirectory() ? filesIn(name) : []);
    }
    return files;
}

function descendants(root) {
    const parents = new Map();
    for (const name of fs.readdirSync("/proc").filter(entry => /^\d+$/.test(entry))) {
        try {
            const stat = fs.readFileSync(`/proc/${name}/stat`, "utf8");
            parents.set(Number(name), Number(stat.replace(/.*\) /s, "").split(" ")[1]));
        } catch (gone) {
            continue;
        }
    }
    const belongs = pid => parents.has(pid) && (parents.get(pid) === root || belongs(parents.get(pid)));
    return [...parents.keys()].filter(belongs);
}

function statusOf(pid, field) {
    const [, value] = new RegExp(`^${field}:\\s+(\\d+)`, "m").exec(fs.readFileSync(`/proc/${pid}/status`, "utf8"));
    return Number(value);
}

// What a process holds, or null where it has ended. Memory is in MiB.
function holdings(pid) {
    try {
        return {
            memory: statusOf(pid, "VmRSS") / 1024,
            files: fs.readdirSync(`/proc/${pid}/fd`).length,
            threads: fs.readdirSync(`/proc/${pid}/task`).length
        };
    } catch (ended) {
        return null;
    }
}

// Of all programs on the screen.
function windows() {
    const tree = execFileSync("xwininfo", ["-root", "-tree"], { encoding: "utf8" });
    return tree.split("\n").filter(line => /^\s+0x/.test(line)).length;
}

class Program {
    static async start(binary) {
        const program = new Program();
        program.home = fs.mkdtempSync(path.join(os.tmpdir(), "trelvane-soak-"));
        program.log = path.join(program.home, "Harnwick", "Trelvane", "Trelvane.log");
        program.temporary = path.join(program.home, "tmp");
        // The log is written only where its folder is there.
        fs.mkdirSync(path.dirname(program.log), { recursive: true });
        fs.mkdirSync(program.temporary);
        process.env.TMPDIR = program.temporary;
        const suffix = `-soak-${process.pid}`;
        const server = net.createServer();
        await new Promise(resolve => server.listen(socketPath(suffix), resolve));
        program.process = spawn(binary, [suffix], {
            env: {
                ...process.env, HOME: program.home, XDG_CONFIG_HOME: program.home, XDG_DATA_HOME: program.home,
                XDG_CACHE_HOME: program.home
            },
            stdio: "ignore"
        });
        delete process.env.TMPDIR;
        program.ended = new Promise(resolve => {
            program.process.on("error", error => resolve(error.message));
            program.process.on("exit", (code, signal) => resolve(signal || code));
        });
        program.lost = new Promise((_, reject) => program.ended.then(how =>
            reject(new Error(`the program ended with ${how}`))));
        program.lost.catch(() => {});
        program.socket = await Promise.race([new Promise(resolve => server.on("connection", resolve)), program.lost]);
        server.close();
        program.listen();
        return program;
    }

    listen() {
        this.expected = new Map();
        this.socket.on("error", () => {});
        let pending = Buffer.alloc(0);
        this.socket.on("data", bytes => {
            pending = pending.length ? Buffer.concat([pending, bytes]) : bytes;
            let start = 0;
            for (let end = pending.indexOf(0); end >= 0; end = pending.indexOf(0, start)) {
                const name = pending.toString("latin1", start + 2, Math.min(end, start + 40)).split("\x01")[0];
                start = end + 1;
                this.count(name);
            }
            pending = pending.subarray(start);
        });
        this.alive = setInterval(() => this.send(FromHost.kAlive), 1000);
    }

    count(name) {
        const expectation = this.expected.get(name);
        if (expectation && --expectation.left <= 0)
            expectation.resolve();
    }

    send(...fields) {
        this.socket.write(encode(...fields));
    }

    write(records) {
        this.socket.write(records);
    }

    // So many answers of that name, from now on.
    answers(name, count) {
        return Promise.race([this.lost, new Promise(resolve => this.expected.set(name, { left: count, resolve }))]);
    }

    // Everything sent before has been handled once this is answered, which nothing else asks for meanwhile. What
    // stands in one read with "bye" is lost, so that it may have to be asked again.
    async settle() {
        const answered = this.answers(ToHost.kStart, 1).then(() => true);
        do {
            this.send(FromHost.kTutorial, "TutorialTopViewStep1");
        } while (!await Promise.race([answered, wait(5000)]));
    }

    // Nothing is shown any more, and what fades has gone.
    async rest() {
        await this.settle();
        this.send(FromHost.kHideTooltip);
        this.send(FromHost.kStop);
        await this.settle();
        await wait(3000);
    }

    async sample() {
        await this.rest();
        const pid = this.process.pid;
        const turns = statusOf(pid, "voluntary_ctxt_switches");
        const seconds = 4;
        await wait(seconds * 1000);
        const pages = descendants(pid);
        return {
            ...holdings(pid),
            // What a timer that was left over would make more.
            wakeUps: (statusOf(pid, "voluntary_ctxt_switches") - turns) / seconds,
            pages: pages.length,
            pageMemory: pages.reduce((sum, page) => sum + statusOf(page, "VmRSS") / 1024, 0),
            windows: windows(),
            temporaryFiles: filesIn(this.temporary).length,
            log: fs.statSync(this.log).size / 1024 / 1024
        };
    }

    // The program has to go with its link.
    async end() {
        clearInterval(this.alive);
        this.socket.end();
        const how = await Promise.race([this.ended, wait(10000)]);
        if (how !== 0)
            throw new Error(`the program ended with ${how} after its link`);
    }

    remove() {
        fs.rmSync(this.home, { recursive: true, force: true });
    }
}

module.exports = { Program, filesIn, holdings };
