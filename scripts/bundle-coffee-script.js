// usage: node bundle-coffee-script.js <package folder> <output file>
//
// Puts the modules of the npm package coffee-script together into one script
// for a page, which leaves the compiler in the global object CoffeeScript.
"use strict";

const fs = require("fs");
const path = require("path");

const [folder, output] = process.argv.slice(2);
const { version } = require(path.resolve(folder, "package.json"));
const licence = fs.readFileSync(path.join(folder, "LICENSE"), "utf8");
const names = ["helpers", "rewriter", "lexer", "parser", "scope", "nodes", "sourcemap", "coffee-script", "browser"];

const modules = names.map((name) => {
    const source = fs.readFileSync(path.join(folder, "lib", "coffee-script", name + ".js"), "utf8");
    return `${JSON.stringify("./" + name)}: function(require, module, exports) {\n${source}\n}`;
});

fs.writeFileSync(output, `/* CoffeeScript ${version}\n\n${licence.trim()}\n*/
(function(root) {
    var modules = {
${modules.join(",\n")}
    };
    var loaded = {"../../package.json": {version: ${JSON.stringify(version)}}};
    // What else the modules ask for belongs to Node, and only their functions
    // for files use it.
    function load(name) {
        if (!loaded[name]) {
            var module = {exports: {}};
            if (modules[name])
                modules[name].call(root, load, module, module.exports);
            loaded[name] = module.exports;
        }
        return loaded[name];
    }
    load("./browser");
    root.CoffeeScript = load("./coffee-script");
})(this);
`);
