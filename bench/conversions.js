// usage: scripts/with-x -- node bench/conversions.js <build folder> [seconds of idling]
//
// What the conversion costs in the program with its link, beside the same
// compiler in Node: conversions per second, the times from the start to the
// connection, the first "alive" and the first answer, and the processor time
// and memory of all its processes while it idles.
"use strict";

const { execFileSync, spawn } = require("child_process");
const fs = require("fs");
const net = require("net");
const os = require("os");
const path = require("path");

const folder = path.resolve(process.argv[2]);
const idleSeconds = Number(process.argv[3] || 0);
const source = path.resolve(__dirname, "..");
const repetitions = 20;

const corpus = path.join(source, "tests", "end_to_end", "coffee");
const sources = fs.readdirSync(corpus).sort().map((name) => fs.readFileSync(path.join(corpus, name), "utf8"));

const home = fs.mkdtempSync(path.join(os.tmpdir(), "trelvane-bench-"));
const suffix = `-bench-${process.pid}`;
let begin = 0n;
const elapsed = () => Number(process.hrtime.bigint() - begin) / 1e9;
const report = (what, value) => console.log(`${what.padEnd(44)} ${value}`);

// Processes of the tree, with what they have used: processor seconds and MiB.
function usage(root) {
    const parents = new Map();
    for (const name of fs.readdirSync("/proc").filter((entry) => /^\d+$/.test(entry))) {
        try {
            parents.set(Number(name), Number(fs.readFileSync(`/proc/${name}/stat`, "utf8").replace(/.*\) /, "").split(" ")[1]));
        } catch (gone) {
            continue;
        }
    }
    const belongs = (pid) => pid === root || (parents.has(pid) && belongs(parents.get(pid)));
    const sum = { processes: 0, seconds: 0, memory: 0 };
    for (const pid of [...parents.keys()].filter(belongs)) {
        const fields = fs.readFileSync(`/proc/${pid}/stat`, "utf8").replace(/.*\) /, "").split(" ");
        const share = /^Pss:\s+(\d+)/m.exec(fs.readFileSync(`/proc/${pid}/smaps_rollup`, "utf8"));
        sum.processes += 1;
        sum.seconds += (Number(fields[11]) + Number(fields[12])) / 100;
        sum.memory += Number(share[1]) / 1024;
    }
    return sum;
}

const wait = (seconds) => new Promise((resolve) => setTimeout(resolve, seconds * 1000));

async function idle(what, pid) {
    const before = usage(pid);
    await wait(idleSeconds);
    const after = usage(pid);
    report(`processor time in ${idleSeconds} s, ${what}`, `${(after.seconds - before.seconds).toFixed(2)} s`);
    report(`memory of ${after.processes} processes, ${what}`, `${after.memory.toFixed(0)} MiB`);
}

async function measure(socket, program) {
    let pending = Buffer.alloc(0);
    let answered = () => {};
    let sawAlive = false;
    socket.on("data", (bytes) => {
        pending = Buffer.concat([pending, bytes]);
        for (let end = pending.indexOf(0); end >= 0; end = pending.indexOf(0)) {
            const fields = pending.toString("utf8", 2, end).split("\x01");
            pending = pending.subarray(end + 1);
            if (fields[0] === "alive" && !sawAlive) {
                sawAlive = true;
                report("start to the first \"alive\"", `${elapsed().toFixed(2)} s`);
            }
            if (fields[0] === "callbackCoffeeJs")
                answered();
        }
    });
    const send = (...fields) => socket.write(`0\x02${fields.join("\x01")}\0`);
    const alive = setInterval(() => send("alive"), 1000);

    const convert = (count) => new Promise((resolve) => {
        let left = count;
        answered = () => --left === 0 && resolve();
        for (let i = 0; i < count; ++i)
            send("coffeeJs", i, JSON.stringify(sources[i % sources.length]));
    });

    report("start to the connection", `${elapsed().toFixed(2)} s`);
    await convert(1);
    report("start to the first answer", `${elapsed().toFixed(2)} s`);
    await convert(sources.length);
    const first = elapsed();
    await convert(repetitions * sources.length);
    report("conversions per second through the link", (repetitions * sources.length / (elapsed() - first)).toFixed(0));
    const arguments_ = ["convert-coffee-script.js", path.join(folder, "npm/node_modules/coffee-script"), repetitions];
    report("conversions per second in Node", execFileSync(process.execPath, arguments_, {
        cwd: path.join(source, "scripts"), input: JSON.stringify(sources) }));
    if (idleSeconds > 0) {
        await idle("no guidance", program.pid);
        send("start", 0, 0, 800, 600);
        send("indicator", "update", 200, 200, "", "A hint", 7, 0);
        await wait(2);
        await idle("running guidance", program.pid);
    }
    clearInterval(alive);
    socket.end();
}

let program = null;
const server = net.createServer((socket) => measure(socket, program));
server.listen(path.join(os.tmpdir(), `qelm${suffix}`), () => {
    begin = process.hrtime.bigint();
    program = spawn(path.join(folder, "bin", "trelvane"), [suffix], {
        env: { ...process.env, HOME: home, XDG_CONFIG_HOME: home, XDG_DATA_HOME: home, XDG_CACHE_HOME: home },
        stdio: "ignore"
    });
    program.on("exit", () => {
        server.close();
        fs.rmSync(home, { recursive: true, force: true });
    });
});
