// usage: node bench/table.js <Qt version> <file.json...>
//
// Makes one table, in Markdown, of what the benchmark programs wrote: either
// Google Benchmark's output, or an array of rows {name, size, value, unit}. A
// row that has no size, as the start of a process, has the size 1.
//
// "saveFloor" is a floor of the row "save": the same measure of something that
// can't be avoided, from the same run. More words may follow ("saveFloorCopy"),
// and a row may have several floors. A figure stands with its ratio to the
// first of them. What lacks its figures is told after the table and fails.
"use strict";

const fs = require("fs");
const os = require("os");
const path = require("path");

// Rows whose floor is another's too, by the program that measures them.
const sharedFloors = {
    screens: {
        addItem: "insertFloor",
        undo: "insertFloor"
    },
    document: {
        translate: "floorCopyBytes",
        write: "floorCopyBytes",
        keepCopy: "floorReadTree",
        keepCopyAndWrite: "floorCopyBytes",
        send: "floorCopyBytes",
        addItem: "floorReadRecords",
        undoOfAdd: "floorCopyRecordList",
        moveFolder: "floorReadTree",
        undoOfMove: "floorReadTree",
        moveAll: "floorReadTree",
        deleteFolder: "floorReadRecords",
        undoOfDelete: "floorCopyRecordList",
        deleteWithJumps: "floorWriteRecords",
        prohibitAll: "floorWriteRecords",
        copyAndPaste: "floorReadRecords",
        undoOfPaste: "floorReadRecords",
        refresh: "floorMakeRows",
        refreshPartialOfNothing: "floorReadRows",
        refreshPartialOfOneChange: "floorReadRows",
        refreshPartialOfAllMoved: "floorReadRows",
        editAndRefresh: "floorReadRows",
        moveAndRefresh: "floorReadRows",
        deleteAndRefresh: "floorReadRows",
        getTreeSelectedIdListOfAll: "floorReadRows",
        setSelectedIdListToAll: "floorReadRows",
        setSelectedIdListFromEvenToOdd: "floorReadRows",
        getTreeJson: "floorReadRecords"
    }
};

const faults = [];

function rowsOfGoogleBenchmark(entry) {
    const [name, size] = entry.run_name.split("/");
    if (entry.error_occurred) {
        faults.push(`${entry.run_name}: ${entry.error_message}`);
        return [];
    }
    if (entry.run_type === "aggregate")
        return [];
    const value = entry.run_name.endsWith("_time") ? entry.real_time : entry.cpu_time;
    return [{ name, size: Number(size || 1), value, unit: entry.time_unit }];
}

function readRows(file) {
    try {
        const content = JSON.parse(fs.readFileSync(file, "utf8"));
        const rows = Array.isArray(content) ? content : content.benchmarks.flatMap(rowsOfGoogleBenchmark);
        if (rows.length === 0)
            throw new Error("it has no rows");
        return rows;
    } catch (error) {
        faults.push(`${path.basename(file, ".json")} left no figures: ${error.message}`);
        return [];
    }
}

// By name, each with its unit and its values by size.
function seriesOf(rows) {
    const series = new Map();
    for (const { name, size, value, unit } of rows) {
        if (!series.has(name))
            series.set(name, { name, unit, values: new Map() });
        series.get(name).values.set(size, value);
    }
    return series;
}

const isFloor = name => /.Floor|^floor/.test(name);

function addFloors(title, series) {
    const names = [...series.keys()];
    const used = new Set();
    for (const row of series.values()) {
        const own = names.filter(name => name.startsWith(`${row.name}Floor`));
        const shared = (sharedFloors[title] || {})[row.name];
        if (shared && !series.has(shared))
            faults.push(`${row.name} lacks its floor, ${shared}`);
        row.floors = own.concat(series.has(shared) ? shared : []).map(name => series.get(name));
        row.floors.forEach(floor => used.add(floor.name));
    }
    for (const name of names.filter(name => isFloor(name) && !used.has(name)))
        faults.push(`${name} is the floor of nothing`);
}

const scales = {
    time: [[1e9, "s"], [1e6, "ms"], [1e3, "µs"], [1, "ns"]],
    bytes: [[1e9, "GB"], [1e6, "MB"], [1e3, "kB"], [1, "B"]]
};
// The kind of each, and what one of it is in the smallest of that kind.
const units = {
    ns: ["time", 1], us: ["time", 1e3], ms: ["time", 1e6], s: ["time", 1e9],
    B: ["bytes", 1], kB: ["bytes", 1e3], KiB: ["bytes", 1024], MB: ["bytes", 1e6], MiB: ["bytes", 1048576]
};

const thousands = number => String(number).replace(/\B(?=(\d{3})+$)/g, ",");

// Three digits.
function digits(value) {
    const rounded = Number(value.toPrecision(3));
    return rounded >= 1000 ? thousands(rounded) : String(rounded);
}

function figure(value, unit) {
    if (!units[unit])
        return `${digits(value)} ${unit}`.trim();
    const [kind, factor] = units[unit];
    const [scale, name] = scales[kind].find(([least]) => value * factor >= least * 0.9995) || scales[kind].slice(-1)[0];
    return `${digits(value * factor / scale)} ${name}`;
}

const times = value => `${Number(value.toPrecision(value >= 10 ? 3 : 2))} ×`;
const words = name => name.replace(/[A-Z]+/g, word => ` ${word.toLowerCase()}`).trim();
const sizesOf = row => [...row.values.keys()].sort((a, b) => a - b);

function cell(row, size) {
    const value = row.values.get(size);
    if (value === undefined)
        return "";
    const floor = row.floors.length > 0 ? row.floors[0].values.get(size) : 0;
    return figure(value, row.unit) + (floor ? ` (${times(value / floor)})` : "");
}

// From each size to the next, as if that one were ten times larger; of a rate, that of the time for all.
function growth(row) {
    const sizes = sizesOf(row);
    const cost = size => row.unit === "/s" ? size / row.values.get(size) : row.values.get(size);
    return sizes.slice(1).map((size, i) => {
        const factor = cost(size) / cost(sizes[i]);
        return Number.isFinite(factor) ? times(factor ** (1 / Math.log10(size / sizes[i]))) : "";
    }).join(", ");
}

// At the largest size.
function floorsOf(row) {
    const size = sizesOf(row).pop();
    return row.floors.map((floor, i) => {
        const value = floor.values.get(size);
        if (value === undefined) {
            faults.push(`${floor.name} has no figure for the size ${size}`);
            return "";
        }
        const name = words(floor.name.replace(/^.*?[fF]loor/, ""));
        const ratio = i > 0 ? ` (${times(row.values.get(size) / value)})` : "";
        return `${name && `${name}: `}${figure(value, floor.unit)}${ratio}`;
    }).join("; ");
}

function print(headings, lines) {
    const widths = headings.map((heading, i) => Math.max(...[headings, ...lines].map(line => line[i].length)));
    const show = line => console.log(`| ${line.map((text, i) => text.padEnd(widths[i])).join(" | ")} |`);
    show(headings);
    console.log(`|${widths.map((width, i) => "-".repeat(width + 1) + (i > 0 ? ":" : "-")).join("|")}|`);
    lines.forEach(show);
}

const [qtVersion, ...files] = process.argv.slice(2);
const groups = files.map(file => [path.basename(file, ".json"), seriesOf(readRows(file))]);
groups.forEach(([title, series]) => addFloors(title, series));
const all = groups.flatMap(([, series]) => [...series.values()]);
const sizes = [...new Set(all.flatMap(sizesOf))].filter(size => size > 1).sort((a, b) => a - b);

const processor = os.cpus()[0];
const model = processor ? processor.model.trim() : "unknown processor";
console.log(`${model}, ${os.cpus().length} cores, Qt ${qtVersion}\n`);
const columns = [1, ...sizes];
const lines = groups.flatMap(([title, series]) => [
    [`**${title}**`, ...columns.map(() => ""), "", ""],
    ...[...series.values()].filter(row => !isFloor(row.name)).map(row => [
        words(row.name), ...columns.map(size => cell(row, size)), growth(row), floorsOf(row)])
]);
print(["", "once", ...sizes.map(thousands), "per ten times", "floor"], lines);
faults.forEach(fault => console.error(`table.js: ${fault}`));
process.exitCode = faults.length > 0 ? 1 : 0;
