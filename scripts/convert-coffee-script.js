// usage: node convert-coffee-script.js <package folder>
//
// Reads a JSON array of CoffeeScript sources and writes a JSON array of the
// records that the conversion page is to give for them, each as its text.
"use strict";

const path = require("path");

// Gives the function that converts one source.
function loadCompiler(packageFolder) {
    const { compile } = require(path.resolve(packageFolder, "lib", "coffee-script", "coffee-script.js"));
    return source => {
        try {
            return { error: "", javascript: compile(source, { bare: true }), line: -1 };
        } catch ({ location, message }) {
            if (location == null)
                return { error: message, javascript: "", line: -1 };
            const line = location.first_line + 1;
            return { error: `Error at line ${line}: ${message}`, javascript: "", line };
        }
    };
}

if (require.main === module) {
    const convert = loadCompiler(process.argv[2]);
    const sources = JSON.parse(require("fs").readFileSync(0, "utf8"));
    process.stdout.write(JSON.stringify(sources.map(source => JSON.stringify(convert(source)))));
}

module.exports = { loadCompiler };
