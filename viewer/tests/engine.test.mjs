// What the page knows about files, without a browser.
import assert from "node:assert/strict";
import { test } from "node:test";
import { gzipSync } from "node:zlib";
import catalogue from "../catalogue.json" with { type: "json" };
import { fieldsByLogPath, isLogged } from "../src/engine/catalogue.js";
import { Engine } from "../src/engine/engine.js";
import { LogLine } from "../src/engine/log_line.js";
import { answer, askForCodes, code, codesEnd, lines, recorded, recording, request, session } from "./fixtures.mjs";

async function opened(...contents) {
    const engine = new Engine(() => {});
    const files = await engine.open(contents.map((content, i) => ({ name: `${i}`, blob: new Blob([content]) })));
    return { engine, files };
}
const fieldsOf = (engine, index, number = 0) => engine.files[number].fields(engine.files[number].entries[index]).map(({ path, value }) => `${path}=${value}`);
const names = (engine) => engine.files[0].entries.map(({ kind, command, direction, ecu, count }) => (kind === "other" ? `other ${count}` : `${command} ${direction} ${ecu}`));
async function rows(engine, index, number = 0) {
    const { rows: count } = await engine.message(number, index, false);
    return engine.tree(number, index, false, 0, count);
}

test("the catalogue has all commands, and every field has a meaning", () => {
    assert.equal(catalogue.commands.length, 79);
    assert.equal(new Set(catalogue.commands.flatMap(({ send, receive }) => [send, receive])).size, 158);
    for (const [name, { comment, fields }] of Object.entries(catalogue.classes)) {
        assert.ok(comment, name);
        for (const field of fields) {
            assert.ok(field.meaning && field.type, `${name}::${field.name}`);
        }
    }
    const dtc = catalogue.classes.CKRMCCommandDtcFfdData;
    assert.equal(dtc.fields.find(({ name }) => name === "m_ulDTCCode").logged, "%s.m_ulDTCCode=0x%06X");
    assert.equal(dtc.fields.find(({ name }) => name === "m_strDtcFfdText").logged, null);
    assert.equal(catalogue.classes.CKRMCCommandCanBusCategoryInfo.fields[0].logged, "[%s] Data[%d].m_ulEcuId=%d");
    assert.equal(catalogue.classes.CKRMCGetImportFileInfoDsdiAdaptDataSnd.log, null);
});

test("every path that a dump writes leads to a field", () => {
    for (const { send, receive } of catalogue.commands) {
        for (const name of [send, receive]) {
            for (const [logged, paths] of fieldsByLogPath(name)) {
                assert.ok(paths.length > 0 && logged, `${name} ${logged}`);
            }
        }
    }
    assert.deepEqual(fieldsByLogPath("CKRMCGetCanBusCheckListCmdAdaptDataRcv").get("Info[].Data[].m_strEcuName"), ["Info[].Data[].m_strEcuName"]);
    assert.ok(isLogged("CKRMCGetDTCCmdAdaptDataRcv", "Data[].m_cTripTime.m_cDispDataList[].m_dData"));
    assert.ok(!isLogged("CKRMCGetDataMonitorValueCmdAdaptDataRcv", "Data[].m_strName"));
});

test("a log becomes messages with command, direction and ECU", async () => {
    const { engine, files } = await opened(session);
    assert.equal(files[0].messages, 16);
    assert.equal(files[0].others, 2);
    assert.deepEqual(names(engine).slice(0, 7), ["other 1", "GetGroupEcuList request 0", "GetGroupEcuList answer 0", "GetDTC request 2024", "GetDTC answer 2024",
        "GetDTC request 2025", "GetDTC answer 2025"]);
    assert.equal(names(engine).at(-1), "other 1");
    const outline = await engine.outline(0, 0, 18);
    assert.equal(outline[4].summary.text, "2 in Data: P0301, P0171 · m_bDTCType=1");
    assert.ok(outline[4].summary.hasCodes);
    assert.equal(outline[6].summary.text, "m_bDTCType=1 · 0 in Data");
    assert.equal(outline[4].ecuName, "Engine");
    assert.equal(outline[4].time, "2024-11-07T17:20:01.048Z");
    assert.equal(outline[4].source, "1");
    assert.equal((await engine.message(0, 4, false)).request, 3);
    assert.equal((await engine.message(0, 3, false)).answer, 4);
});

test("a message is a tree, folded to the first level", async () => {
    const { engine } = await opened(session);
    const top = await rows(engine, 4);
    assert.deepEqual(top.map(({ path, count }) => [path, count]), [["m_dwCommandType", 0], ["m_dwCommandID", 0], ["m_bNotSupport", 0], ["Data", 2], ["m_bDTCType", 0],
        ["m_ulReadynessStatus", 0]]);
    assert.equal(top[3].meaning, "trouble codes (DTCs)");
    await engine.toggle(0, 4, "", true, false, true);
    const all = await rows(engine, 4);
    const trip = all.find(({ path }) => path === "Data[0].m_cTripTime");
    assert.equal(trip.label, "Trip time: 61 min");
    const byte = await engine.field(0, 4, "Data[1].m_uchSSRNo[1]");
    assert.equal(byte.value.text, "7");
    assert.equal(byte.type, "unsigned char");
    assert.equal(byte.format, "[%s] m_uchSSRNo[%d]=%d");
    assert.equal((await engine.field(0, 4, "Data[0].m_strDTC")).meaning, "code as displayed");
    assert.equal(await engine.field(0, 4, "Data[7].m_strDTC"), null);
});

test("defaults are hidden, elements of lists are not", async () => {
    const { engine } = await opened(session);
    await engine.toggle(0, 4, "", true, true, true);
    const count = (await engine.message(0, 4, true)).rows;
    const paths = (await engine.tree(0, 4, true, 0, count)).map(({ path }) => path);
    assert.ok(!paths.includes("m_ulReadynessStatus") && !paths.includes("Data[0].m_uchDTCKind") && !paths.includes("m_bNotSupport"));
    assert.ok(paths.includes("Data[0].m_uchSSRNo[0]") && paths.includes("m_bDTCType"));
});

test("lines of two threads are told apart by what stands in front", async () => {
    const one = askForCodes(2024).map((text) => `2024-02-29T23:59:59.999Z 1 ${text}\n`);
    const two = askForCodes(2025).map((text) => `2024-02-29T23:59:59.999Z 2 ${text}\n`);
    const { engine } = await opened(one.flatMap((line, i) => [line, two[i]]).join(""));
    assert.deepEqual(names(engine), ["GetDTC request 2024", "GetDTC request 2025"]);
    assert.equal(fieldsOf(engine, 1).length, 5);
    assert.equal((await engine.filter("thread:2")).counts[0], 1);
});

test("a line of another message begins one, also where the thread's own has no line but its ID", async () => {
    const [type, id] = answer(43);
    const { engine } = await opened(lines("", type, id, "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_bDTCType=1", type, id));
    assert.deepEqual(names(engine), ["ReadVBatt null null", "GetDTC answer null", "ReadVBatt null null"]);
    assert.ok(engine.files[0].entries[1].isCut);
});

test("a line has the class that comes first and is followed by a path", async () => {
    const ask = "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog]", other = "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog]";
    const line = new LogLine();
    const partsOf = (text) => {
        const bytes = new TextEncoder().encode(`${text}\n`);
        const textOf = (from, to) => new TextDecoder().decode(bytes.subarray(from, to));
        return line.find(bytes, 0, bytes.length - 1)
            ? [textOf(0, line.head), textOf(line.classStart, line.classEnd), line.path(bytes), textOf(line.equal + 1, bytes.length - 1)] : null;
    };
    // Behind one with a prefix of just that length, where the other class stands.
    assert.deepEqual(partsOf(`${" ".repeat(ask.length + 5)}${other} p=1`), [" ".repeat(ask.length + 5), "CKRMCGetDTCCmdAdaptDataRcv", "p", "1"]);
    assert.deepEqual(partsOf(`${ask} q=x ${other} p=2`), ["", "CKRMCGetDTCCmdAdaptDataSnd", "q", `x ${other} p=2`]);
    assert.deepEqual(partsOf(`${ask} q x ${other} p=2`), [`${ask} q x `, "CKRMCGetDTCCmdAdaptDataRcv", "p", "2"]);
    assert.deepEqual(partsOf(`7 [${other} Data[2]] m_uchSSRNo[1]=7`), ["7 ", "CKRMCGetDTCCmdAdaptDataRcv", "Data[2].m_uchSSRNo[1]", "7"]);
    assert.deepEqual(partsOf("[[CKRMCX::Y] Data[2]]xm_a=1"), ["[", "CKRMCX", "Data[2]]xm_a", "1"]);
    assert.deepEqual(partsOf("[CKRMCX::Y].m_ulValue=1(1)"), ["", "CKRMCX", ".m_ulValue", "1(1)"]);
    for (const none of [`${ask} words, then a=1`, `${ask} =1`, `${ask} m_ulEcuId`, "[CKRMCX] m_ulEcuId=1", "[CKRMCX::] m_ulEcuId=1", "[CKRMC X::Y] m_ulEcuId=1", "[OtherClass::Y] m_ulEcuId=1"]) {
        assert.equal(partsOf(none), null, none);
    }
});

test("a running number in front of the lines is no thread", async () => {
    const { engine } = await opened([...askForCodes(2024), ...askForCodes(2025)].map((text, i) => `${i} ${text}\n`).join(""));
    assert.deepEqual(names(engine), ["GetDTC request 2024", "GetDTC request 2025"]);
});

test("a time may have a comma", async () => {
    const { engine } = await opened(askForCodes(2024).map((text, i) => `17:20:01,04${i} 12345,6${i} 7 ${text}\n`).join(""));
    const [row] = await engine.outline(0, 0, 1);
    assert.equal(row.source, "7");
    assert.equal(row.time, "17:20:01,040 12345,60");
});

test("lists under one name go to their fields", async () => {
    const start = "[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog]";
    const monitor = request(20, 2024, `${start} Data[0].m_ushDataMonitorId=1`, `${start} Data[0].m_ulEcuId=2024`, `${start} Data[0].m_cPidIdList[0]=12`,
        `${start} Data[0].m_ushChId=3`, `${start} Data[0].m_ulVolId=4`, `${start} Data[1].m_ushChId=5`, `${start} Data[1].m_ulVolId=6`, `${start} m_ushOscTimeId=0`);
    const cancel = "[CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog]";
    const codes = answer(76, `${cancel} Data[0].m_strDTC=P0301`, `${cancel} Data[0].m_cTripTime.m_ushId=1`, `${cancel} Data[0].m_cTripCount.m_ushId=2`, `${cancel} m_bProhibit=0`);
    const { engine } = await opened(lines("", ...monitor, ...codes));
    assert.deepEqual(fieldsOf(engine, 0).slice(3), ["Data[0].m_ushDataMonitorId=1", "Data[0].m_ulEcuId=2024", "Data[0].m_cPidIdList[0]=12",
        "m_cOscInfoList[0].m_ushChId=3", "m_cOscInfoList[0].m_ulVolId=4", "m_cOscInfoList[1].m_ushChId=5", "m_cOscInfoList[1].m_ulVolId=6", "m_ushOscTimeId=0"]);
    assert.ok(fieldsOf(engine, 1).includes("m_cDTCList[0].m_strDTC=P0301"));
    assert.ok(fieldsOf(engine, 1).includes("Data[0].m_cTripCount.m_ushId=2"));
});

test("names that only the log has lead to their fields", async () => {
    const error = "[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog]";
    const words = "[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog]";
    const decision = "[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog]";
    const list = catalogue.classes.CKRMCCommandCarTypeOptionData.fields[0].name;
    const { engine } = await opened(lines("", ...answer(39, `${error} Data[0].a_ulReturnCode=7`), ...answer(55, `${words} m_cTranslationStringDataList[0].ID=5`),
        ...answer(10, `${decision} m_uchStatusId=1`, `${decision}.${list}=3`)));
    assert.equal(fieldsOf(engine, 0)[3], "Data[0].m_cError.a_ulReturnCode=7");
    assert.equal(fieldsOf(engine, 1)[3], "m_cTranslationStringDataList[0].m_ulId=5");
    assert.equal(fieldsOf(engine, 2)[4], `m_cCarTypeOption.${list}=3`);
});

test("an ECU has 32 bits", async () => {
    const written = ["70000", "-2", "-2147483648", "4294967295", "-2147483649", "4294967296", "", "1e3", "0x10", " 5"];
    const { engine } = await opened(lines("", ...written.flatMap((ecu) => request(2, ecu))));
    assert.deepEqual(engine.files[0].entries.map(({ ecu }) => ecu), [70000, 4294967294, 2147483648, 4294967295, null, null, null, null, null, null]);
});

test("a log that is cut begins and ends as it can", async () => {
    const text = lines("", ...answer(2, ...code(0, "P0301", 769, "Cylinder 1 misfire detected"), ...codesEnd));
    const from = text.indexOf("m_strDTC=");
    const { engine, files } = await opened(text.slice(from, text.length - 5));
    assert.equal(files[0].others, 2); // the last line has no value any more
    assert.equal(engine.files[0].entries[1].isCut, true);
    assert.equal(engine.files[0].entries[1].command, "GetDTC");
    assert.equal(engine.files[0].entries[1].id, 2);
    assert.equal(fieldsOf(engine, 1).at(-1), "m_bDTCType=1");
    assert.equal(fieldsOf(engine, 1).length, 9);
});

test("line ends of Windows, Latin-1, NUL, UTF-8 with a mark, an empty file", async () => {
    const vin = (value) => lines("", ...answer(79, `[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strVinCode=${value}`));
    const windows = await opened(vin("A").replaceAll("\n", "\r\n"));
    assert.equal(fieldsOf(windows.engine, 0).at(-1), "m_strVinCode=A");
    assert.equal(windows.engine.files[0].entries[0].id, 79);
    const latin = await opened(Buffer.from(vin("gr\u00fcn"), "latin1"));
    assert.equal(fieldsOf(latin.engine, 0).at(-1), "m_strVinCode=grün");
    const nul = await opened(vin("a\0b"));
    assert.equal(fieldsOf(nul.engine, 0).at(-1), "m_strVinCode=a\0b");
    const marked = await opened(`\uFEFF${vin("grün")}`);
    assert.equal(marked.files[0].messages, 1);
    assert.equal(marked.files[0].others, 0);
    const empty = await opened("");
    assert.deepEqual([empty.files[0].messages, empty.files[0].lines, empty.files[0].others], [0, 0, 0]);
    const packed = await opened(gzipSync(vin("A")));
    assert.equal(packed.files[0].messages, 1);
});

test("a long line is told in parts, and nothing of it is left out", async () => {
    const text = "grün ".repeat(2000);
    const bytes = Buffer.from([...Array(4000)].map((_, i) => 0x80 + (i % 64)));
    for (const content of [text, Buffer.from(text, "latin1"), bytes]) {
        const { engine } = await opened(content);
        let [{ text: told, more: left }] = await engine.raw(0, 0, 1);
        assert.ok(told.length > 1000 && left > 0);
        while (left > 0) {
            const part = await engine.part(0, 0, left, 333);
            assert.ok(part.left < left);
            told += part.text;
            left = part.left;
        }
        assert.equal(told, content === bytes ? new TextDecoder("windows-1252").decode(bytes) : text);
    }
});

test("a recording has what the log leaves out, and classes that nobody knows", async () => {
    const { engine, files } = await opened(recording);
    assert.deepEqual([files[0].kind, files[0].messages, files[0].others, files[0].library], ["recording", 7, 0, "1.0.0"]);
    assert.equal(engine.files[0].entries[2].exchange, "18446744073709551615");
    const value = (await rows(engine, 3)).find(({ path }) => path === "Data");
    assert.equal(value.isUnlogged, true);
    assert.equal((await rows(engine, 1)).find(({ path }) => path === "Data").isUnlogged, false);
    assert.deepEqual(fieldsOf(engine, 5), ["m_bNotSupport=false", "m_strPaintCode=gün"]);
    assert.equal((await engine.message(0, 5, false)).isKnown, false);
    await engine.toggle(0, 6, "", true, false, true);
    assert.deepEqual((await rows(engine, 6)).map(({ path, value: text }) => [path, text?.text]),
        [["m_cResourceMap", undefined], ['m_cResourceMap["a.b"]', "grau"], ['m_cResourceMap["c\\"]"]', "gris"]]);
    assert.equal((await engine.outline(0, 3, 4))[0].summary.text, "2 in Data: Load: 5 %, Coolant: 21.25 °C");
});

test("lines of a recording that can't be read are told and shown", async () => {
    const { engine, files } = await opened(`${recording}\nnot JSON\n{"exchange":1}\n${recorded(9, 9, 2, "GetDTC", "request", {}).slice(0, 60)}`);
    assert.equal(files[0].others, 3);
    assert.deepEqual(engine.files[0].entries.slice(-3).map(({ why }) => why), ["not JSON", "not a message", "cut off"]);
});

for (const [filter, count] of Object.entries({
    "": 18, "command:GetDTC": 4, "command:get*": 8, "-command:Get*": 10, "command:GetDTC direction:answer": 2, "ecu:2024": 12, "ecu:0x7E8": 12, "ecu:2025 direction:request": 1,
    "id:43": 8, "id:1/43": 8, "id:2/43": 0, "family:Cmd": 16, "m_strDTC=P03*": 1, "m_strDTC=P9*": 0, "M_STRDTC=p0301": 1, 'm_strDTC!=""': 1, "m_ulDTCCode>500": 1,
    "m_ulDTCCode>=769": 1, "m_ulDTCCode=0x301": 1, "m_ulDTCCode<369": 0, "m_ulVBattValue>12000": 3, "m_ul*Value<=12100": 2, "Data[1].m_strDTC=P0171": 1, "Data[0].m_strDTC=P0171": 0,
    "Data[*].m_strDTC=P0171": 1, "m_uchSSRNo=7": 1, "value>12500": 1, "value=P0171": 1, misfire: 1, MISFIRE: 1, '"lean, bank"': 1, 'm_strDTCName="System too lean, bank 1"': 1,
    "-misfire": 17, "goodbye": 1, "DTC=P0301": 0, '"DTC=P0301"': 1, "m_strDTC=P0301 ecu:2025": 0, "thread:1": 16, '"-misfire"': 0,
})) {
    test(`the filter ${filter || "(none)"} leaves ${count}`, async () => {
        const { engine } = await opened(session);
        assert.deepEqual(await engine.filter(filter), { counts: [count] });
    });
}

test("filters hold for recordings too", async () => {
    const { engine } = await opened(recording);
    for (const [filter, count] of Object.entries({ "exchange:18446744073709551615": 3, "m_dData>50": 1, "m_strUnit=%": 1, "family:Vdc": 1, "ecu:2024": 2, "m_bDTCType=1": 1, gris: 1, "°c": 3 })) {
        assert.deepEqual(await engine.filter(filter), { counts: [count] }, filter);
    }
});

for (const [filter, offset, message] of [["cmd:GetDTC", 0, /no condition cmd:/], ['a "b', 2, /quote is not closed/], ["m_x>high", 0, /number/], ["x direction:up", 2, /request or answer/],
    ["ecu:", 0, /nothing stands behind/]]) {
    test(`the filter ${filter} is told to be wrong`, async () => {
        const { engine } = await opened(session);
        const result = await engine.filter(filter);
        assert.match(result.error, message);
        assert.equal(result.offset, offset);
    });
}

test("a search counts hits in what is folded, and goes from one to the next", async () => {
    const { engine } = await opened(session);
    assert.deepEqual(await engine.search("trip time"), { counts: [2] });
    assert.deepEqual(await engine.hit(0, 1), { index: 4, path: "Data[1].m_cTripTime.m_strName", line: 42 });
    assert.equal((await rows(engine, 4)).find(({ path }) => path === "Data").hits, 2);
    assert.equal((await engine.outline(0, 4, 5))[0].hits, 2);
    assert.deepEqual(await engine.search("GOODBYE"), { counts: [1] });
    assert.equal((await engine.hit(0, 0)).path, null);
    await engine.filter("command:ReadVBatt");
    assert.deepEqual(await engine.search("trip time"), { counts: [0] });
    assert.deepEqual(await engine.search("m_ulVBattValue=12350"), { counts: [1] });
});

test("what a chart can draw is offered for one", async () => {
    const list = "[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog]";
    const { engine } = await opened(lines("", ...answer(79, `${list} m_ulA=-1(4294967295)`, `${list} m_ulB=0x1F`, `${list} m_ulC=`, `${list} m_ulD=1 x`)));
    const isNumber = async (path) => (await engine.field(0, 0, path)).isNumber;
    assert.deepEqual([await isNumber("m_ulA"), await isNumber("m_ulB"), await isNumber("m_ulC"), await isNumber("m_ulD")], [true, true, false, false]);
});

test("a field over time, also where its place in the list changes", async () => {
    const log = await opened(session);
    const volts = await log.engine.chart(0, 8, "m_ulVBattValue");
    assert.deepEqual(volts.series[0].points.map(({ value }) => value), [12100, 12350, 11900, 12600]);
    assert.equal(volts.hasTimes, true);
    assert.equal(volts.series[0].points[1].time - volts.series[0].points[0].time, 1000);
    const { engine } = await opened(recording);
    assert.equal((await engine.field(0, 3, "Data[1].m_cDispDataList[0].m_dData")).pathToChart, "Data[m_ushId=5].m_cDispDataList[0].m_dData");
    const coolant = await engine.chart(0, 3, "Data[m_ushId=5].m_cDispDataList[0].m_dData");
    assert.deepEqual(coolant.series.map(({ name, points }) => [name, points.map(({ value }) => value)]), [["Coolant", [20.5, 21.25, 90]]]);
    assert.equal((await engine.chart(0, 3, "Data[*].m_cDispDataList[0].m_dData")).series.length, 2);
    assert.equal((await engine.chart(0, 3, "Data[*].m_strName")).notNumbers, 4);
});

test("two files are compared by keys", async () => {
    const other = session.replace("System too lean, bank 1", "System too rich").replace("m_strVinCode=KRM", "m_strVinCode=XYZ")
        .replace(/(.*Data\[0\].*P0301[^]*?)(?=.*Data\[1\])/, "$1");
    const { engine } = await opened(session, other);
    const result = await engine.compare("", "");
    assert.deepEqual(result, { pairs: 16, equal: 14, alone: 0 });
    assert.equal(await engine.choosePairs(true), 2);
    const [codes, vin] = await engine.pairOutline(0, 2);
    assert.deepEqual([codes.command, vin.command], ["GetDTC", "GetVinCode"]);
    await engine.pair(codes.pair, false);
    assert.deepEqual((await engine.pairRows(0, 5)).map(({ kind, path, a, b }) => [kind, path, a.text, b.text]),
        [["changed", "Data[1].m_strDTCName", "System too lean, bank 1", "System too rich"]]);
    assert.deepEqual(await engine.compare("", "m_strVinCode, Data[*].m_strDTC*"), { pairs: 16, equal: 16, alone: 0 });
});

test("an element that came in front changes nothing behind it", async () => {
    const log = (...codes) => lines("", ...askForCodes(2024), ...answer(2, ...codes.flatMap((name, i) => code(i, name, parseInt(name.slice(1), 16), `text of ${name}`)), ...codesEnd));
    const { engine } = await opened(log("P0301", "P0420"), log("P0171", "P0301", "P0420"));
    await engine.compare("", "");
    await engine.choosePairs(true);
    await engine.pair(1, false);
    assert.deepEqual((await engine.pairRows(0, 9)).map(({ kind, path }) => [kind, path]), [["added", "Data[0]"]]);
    await engine.compare("Data=m_uchDTCKind", "");
    await engine.choosePairs(true);
    const found = await engine.pair(1, false);
    assert.ok(found.rows > 1, "by a key that all have in common, the elements are taken in their order");
});

test("a log and a recording of the same are equal but for what the log leaves out", async () => {
    const log = lines("", ...askForCodes(2024), ...answer(2, ...code(0, "P0171", 369, "System too lean, bank 1").slice(0, 6), ...codesEnd));
    const { engine } = await opened(log, recording.split("\n").slice(0, 3).join("\n"));
    assert.deepEqual(await engine.compare("", ""), { pairs: 2, equal: 2, alone: 0 });
});

test("what is offered is what there is", async () => {
    const { engine } = await opened(session);
    assert.deepEqual((await engine.offers(0)).map(({ name, count }) => [name, count]), [["Trouble codes", 1], ["Vehicle", 1]]);
});
