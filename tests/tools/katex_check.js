#!/usr/bin/env node
// Reads "formula<TAB>latex" lines and parses each LaTeX with KaTeX in display
// mode. Formulas listed in the file given as the first argument are known to
// give LaTeX that does not parse; the check fails if one of them parses, so
// the list stays true. Lines whose LaTeX is "error: timeout" are skipped.
"use strict";
const fs = require("fs");
const path = require("path");
const katex = require(path.join(__dirname, "node_modules", "katex"));

const known = new Set(
  (process.argv[2] ? fs.readFileSync(process.argv[2], "utf8") : "")
    .split("\n")
    .filter((l) => l && !l.startsWith("#")),
);
let failures = 0;
let checked = 0;
for (const line of fs.readFileSync(0, "utf8").split("\n")) {
  if (!line) continue;
  const [formula, latex] = line.split("\t");
  if (latex === undefined || latex === "error: timeout") continue;
  let error = null;
  try {
    katex.renderToString(latex, { displayMode: true, throwOnError: true, strict: "ignore" });
  } catch (e) {
    error = e.message;
  }
  checked++;
  if (error && !known.has(formula)) {
    failures++;
    console.log(`FAIL ${formula}\t${latex}\t${error}`);
  } else if (!error && known.has(formula)) {
    failures++;
    console.log(`PARSES BUT LISTED ${formula}\t${latex}`);
  }
}
console.log(`${checked} checked, ${failures} failures`);
process.exit(failures ? 1 : 0);
