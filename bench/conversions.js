// usage: scripts/with-x -- node bench/conversions.js <build folder> [--json <file>]
//
// Conversions per second in the program with its link, when so many are asked
// for at once, beside the same compiler in this process. Both have the same
// sources and have warmed up alike, and they take turns.
"use strict";

const { spawn } = require("child_process");
const fs = require("fs");
const net = require("net");
const os = require("os");
const path = require("path");

const { FromHost, ToHost, encode, socketPath } = require("./hostMessages.js");
const { loadCompiler } = require("../scripts/convert-coffee-script.js");

const counts = [100, 1000];
const rounds = 9;

const folder = path.resolve(process.argv[2]);
const jsonFile = process.argv[3] === "--json" ? process.argv[4] : "";
const corpus = path.join(__dirname, "..", "tests", "end_to_end", "coffee");
const sources = fs.readdirSync(corpus).sort().map(name => fs.readFileSync(path.join(corpus, name), "utf8"));
const convertHere = loadCompiler(path.join(folder, "npm", "node_modules", "coffee-script"));

const milliseconds = () => Number(process.hrtime.bigint()) / 1e6;
const median = values => values.sort((a, b) => a - b)[values.length >> 1];

class Program {
    constructor(socket, program) {
        this.socket = socket;
        this.answered = () => {};
        this.ended = () => {};
        program.on("exit", () => this.ended());
        let pending = Buffer.alloc(0);
        socket.on("data", bytes => {
            pending = Buffer.concat([pending, bytes]);
            for (let end = pending.indexOf(0); end >= 0; end = pending.indexOf(0)) {
                const [name, key] = pending.toString("utf8", 2, end).split("\x01");
                pending = pending.subarray(end + 1);
                if (name === ToHost.kCallbackCoffeeJs)
                    this.answered(Number(key));
            }
        });
        this.alive = setInterval(() => socket.write(encode(FromHost.kAlive)), 1000);
    }

    static async start(home) {
        // The log is written only where its folder is there.
        fs.mkdirSync(path.join(home, "Harnwick", "Trelvane"), { recursive: true });
        const suffix = `-bench-${process.pid}`;
        const server = net.createServer();
        await new Promise(resolve => server.listen(socketPath(suffix), resolve));
        const program = spawn(path.join(folder, "bin", "trelvane"), [suffix], {
            env: { ...process.env, HOME: home, XDG_CONFIG_HOME: home, XDG_DATA_HOME: home, XDG_CACHE_HOME: home },
            stdio: "ignore"
        });
        const socket = await new Promise((resolve, reject) => {
            server.on("connection", resolve);
            program.on("error", reject);
            program.on("exit", () => reject(new Error("the program ended")));
        });
        server.close();
        return new Program(socket, program);
    }

    convert(count) {
        return new Promise((resolve, reject) => {
            this.ended = () => reject(new Error("the program ended"));
            let next = 0;
            this.answered = key => {
                if (key !== next++)
                    reject(new Error(`answer ${key} is out of order`));
                if (next === count)
                    resolve();
            };
            for (let i = 0; i < count; ++i)
                this.socket.write(encode(FromHost.kCoffeeJs, i, JSON.stringify(sources[i % sources.length])));
        });
    }

    async end() {
        clearInterval(this.alive);
        const ended = new Promise(resolve => {
            this.ended = resolve;
        });
        this.socket.destroy();
        await ended;
    }
}

async function measure(act) {
    const begin = milliseconds();
    await act();
    return milliseconds() - begin;
}

function convertAllHere(count) {
    for (let i = 0; i < count; ++i)
        JSON.stringify(convertHere(sources[i % sources.length]));
}

async function main() {
    const home = fs.mkdtempSync(path.join(os.tmpdir(), "trelvane-bench-"));
    const program = await Program.start(home);
    await program.convert(1000);
    convertAllHere(1000);
    const rows = [];
    for (const count of counts) {
        const through = [];
        const here = [];
        for (let i = 0; i < rounds; ++i) {
            through.push(await measure(() => program.convert(count)));
            here.push(await measure(() => convertAllHere(count)));
        }
        rows.push({ name: "conversions", size: count, value: 1000 * count / median(through), unit: "/s" },
            { name: "conversionsFloorNode", size: count, value: 1000 * count / median(here), unit: "/s" });
    }
    await program.end();
    fs.rmSync(home, { recursive: true, force: true });
    rows.forEach(({ name, size, value, unit }) => console.log(name, size, value.toFixed(0), unit));
    if (jsonFile)
        fs.writeFileSync(jsonFile, JSON.stringify(rows, null, 1));
}

main().catch(error => {
    console.error(error.message);
    process.exit(1);
});
