// The table of the benchmarks says which floor and which program it lacks, and shows the rest.
"use strict";

const assert = require("assert");
const { spawnSync } = require("child_process");
const fs = require("fs");
const os = require("os");
const path = require("path");

const folder = fs.mkdtempSync(path.join(os.tmpdir(), "bench-table-"));
const table = files => {
    const paths = Object.entries(files).map(([name, content]) => {
        const file = path.join(folder, `${name}.json`);
        if (content)
            fs.writeFileSync(file, JSON.stringify(content));
        return file;
    });
    return spawnSync(process.execPath, [process.argv[2], "5.15.2", ...paths], { encoding: "utf8" });
};
const google = rows => ({ benchmarks: rows.map(([run_name, cpu_time]) =>
    ({ run_name, run_type: "iteration", cpu_time, real_time: 9, time_unit: "us" })) });
const own = (name, size, value, unit) => ({ name, size, value, unit });

const document = google([["load/1000", 1200], ["load/10000", 15000], ["loadFloorParse/1000", 400],
    ["loadFloorParse/10000", 5000], ["send/1000", 80], ["floorCopyBytes/1000", 40]]);
const rates = [own("answers", 100, 2000, "/s"), own("answers", 1000, 2500, "/s"),
    own("answersFloor", 100, 4000, "/s"), own("answersFloor", 1000, 5000, "/s"), own("memory", 1, 2.5, "MiB")];
let run = table({ document, rates });
assert.strictEqual(run.stderr + run.status, "0");
const cells = run.stdout.split("\n").map(line => line.split("|").map(text => text.trim()).slice(1, -1).join("|"));
assert(cells.includes("|once|100|1,000|10,000|per ten times|floor"), run.stdout);
assert(cells.includes("load|||1.2 ms (3 ×)|15 ms (3 ×)|12.5 ×|parse: 5 ms"), run.stdout);
assert(cells.includes("send|||80 µs (2 ×)|||copy bytes: 40 µs"), run.stdout);
assert(cells.includes("answers||2,000 /s (0.5 ×)|2,500 /s (0.5 ×)||8 ×|5,000 /s"), run.stdout);
assert(cells.includes("memory|2.62 MB|||||"), run.stdout);

for (const [files, fault] of [
    [{ rates, lost: null }, "lost left no figures"],
    [{ rates, empty: [] }, "empty left no figures"],
    [{ rates, document: google([["send/1000", 80]]) }, "send lacks its floor"],
    [{ rates, other: [own("a", 10, 1, "s"), own("a", 100, 1, "s"), own("aFloor", 10, 1, "s")] }, "no figure for the size 100"],
    [{ rates, other: [own("bFloor", 1, 1, "s")] }, "bFloor is the floor of nothing"]
]) {
    run = table(files);
    assert(run.status === 1 && run.stderr.includes(fault) && run.stdout.includes("answers"), run.stderr + run.stdout);
}
fs.rmSync(folder, { recursive: true });
