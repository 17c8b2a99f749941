// The words of the link, read from the one place that spells them.
"use strict";

const fs = require("fs");
const os = require("os");
const path = require("path");

const header = fs.readFileSync(path.join(__dirname, "..", "cpp", "Tutorial", "link", "HostMessages.h"), "utf8");

// By direction and the name of the constant.
const words = { FromHost: {}, ToHost: {}, Link: {} };
let direction = "Link";
for (const line of header.split("\n")) {
    const [, namespace] = /^namespace (From|To)Host$/.exec(line) || [];
    const [, constant, word] = /^constexpr .* (k\w+) = word\("(.*)"\);$/.exec(line) || [];
    if (namespace)
        direction = `${namespace}Host`;
    if (constant)
        words[direction][constant] = word;
}

module.exports = {
    FromHost: words.FromHost,
    ToHost: words.ToHost,
    socketPath: suffix => path.join(os.tmpdir(), words.Link.kServerName.replace("%1", suffix)),
    encode: (...fields) => `0\x02${fields.join("\x01")}\0`
};
