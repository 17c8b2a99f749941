// usage: node convert-coffee-script.js <package folder> [repetitions]
//
// Reads a JSON array of CoffeeScript sources and writes a JSON array of the
// records that the conversion page is to give for them, each as its text. With
// repetitions it writes conversions per second instead.
"use strict";

const path = require("path");
const { compile } = require(path.resolve(process.argv[2], "lib", "coffee-script", "coffee-script.js"));

function convert(source) {
    try {
        return { error: "", javascript: compile(source, { bare: true }), line: -1 };
    } catch ({ location, message }) {
        if (location == null)
            return { error: message, javascript: "", line: -1 };
        const line = location.first_line + 1;
        return { error: `Error at line ${line}: ${message}`, javascript: "", line };
    }
}

const sources = JSON.parse(require("fs").readFileSync(0, "utf8"));
const repetitions = Number(process.argv[3] || 0);
if (repetitions === 0) {
    process.stdout.write(JSON.stringify(sources.map((source) => JSON.stringify(convert(source)))));
} else {
    const begin = process.hrtime.bigint();
    for (let i = 0; i < repetitions; ++i)
        sources.forEach((source) => JSON.stringify(convert(source)));
    const seconds = Number(process.hrtime.bigint() - begin) / 1e9;
    process.stdout.write((repetitions * sources.length / seconds).toFixed(0));
}
