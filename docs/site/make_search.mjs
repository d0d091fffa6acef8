// Makes the search's index: `node make_search.mjs ENTRIES OUT`. ENTRIES is what search_entries.py prints; OUT gets index.js,
// beside it lunr.js and search.js. It is a script and not JSON, since a page of file:// may load no other file.
import { copyFileSync, mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { fileURLToPath } from "node:url";

const require = createRequire(import.meta.url);
const library = "/usr/share/javascript/lunr/lunr";
const here = (name) => fileURLToPath(new URL(name, import.meta.url));
const [entries, out] = process.argv.slice(2);
const index = require("./search.js").build(require(`${library}.js`), JSON.parse(readFileSync(entries, "utf8")));
mkdirSync(out, { recursive: true });
writeFileSync(join(out, "index.js"), `siteSearch.data=${JSON.stringify(index)};\n`);
copyFileSync(`${library}.min.js`, join(out, "lunr.js"));
copyFileSync(here("search.js"), join(out, "search.js"));
