// Logs and recordings as the library writes them, by hand.

/** A line for each text, behind a time and a thread where they are given. */
export const lines = (prefix, ...texts) => texts.map((text) => `${prefix}${text}\n`).join("");

const base = (type, id) => [`[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=${type}`, `[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=${id}`];
export const request = (id, ecu, ...own) => [...base(1, id), `[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=${ecu}`, ...own];
export const answer = (id, ...own) => [...base(1, id), "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0", ...own];

const dtc = "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog]";
/** One trouble code of an answer, with fewer lines than the library writes. */
export const code = (index, name, number, text, trip = 0) => [
    `${dtc} Data[${index}].m_uchDTCKind=0`, `${dtc} Data[${index}].m_ulDTCCode=${number}`, `${dtc} Data[${index}].m_strDTC=${name}`,
    `${dtc} Data[${index}].m_strDTCName=${text}`, `[${dtc} Data[${index}]] m_uchSSRNo[0]=1`, `[${dtc} Data[${index}]] m_uchSSRNo[1]=7`,
    `${dtc} Data[${index}].m_cTripTime.m_ushId=3`, `${dtc} Data[${index}].m_cTripTime.m_strName=Trip time`, `${dtc} Data[${index}].m_cTripTime.m_strUnit=min`,
    `${dtc} Data[${index}].m_cTripTime.m_cDispDataList[0].m_strData=${trip}`, `${dtc} Data[${index}].m_cTripTime.m_cDispDataList[0].m_dData=${trip}.000000`,
];
export const codesEnd = [`${dtc} m_bDTCType=1`, `${dtc} m_ulReadynessStatus=0`];

const ask = "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog]";
export const askForCodes = (ecu) => request(2, ecu, `${ask} m_uchPhaseType=1`, `${ask} m_uchGetFFDType=0`);

const at = (second) => `2024-11-07T17:20:${String(second).padStart(2, "0")}.048Z 1 `;
const ecus = "[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog]";

/** A short session: ECUs, trouble codes three times, the battery's voltage four times, the VIN. */
export const session = [
    "# Operation log of a session\n",
    lines(at(0), "== GetGroupEcuList request (type 1, ID 12)", ...request(12, 0)),
    lines(at(0), "== GetGroupEcuList answer (type 1, ID 12)", ...answer(12, `${ecus} Data[0].m_ushGroupId=1`, `${ecus} Data[0].m_cEcuList[0].m_ulEcuId=2024`,
        `${ecus} Data[0].m_cEcuList[0].m_strEcuName=Engine`, `${ecus} Data[0].m_cEcuList[1].m_ulEcuId=2025`, `${ecus} Data[0].m_cEcuList[1].m_strEcuName=Gearbox`)),
    lines(at(1), "== GetDTC request (type 1, ID 2)", ...askForCodes(2024)),
    lines(at(1), "== GetDTC answer (type 1, ID 2)", ...answer(2, ...code(0, "P0301", 769, "Cylinder 1 misfire detected", 61), ...code(1, "P0171", 369, "System too lean, bank 1", 62), ...codesEnd)),
    lines(at(2), "== GetDTC request (type 1, ID 2)", ...askForCodes(2025)),
    lines(at(2), "== GetDTC answer (type 1, ID 2)", ...answer(2, ...codesEnd)),
    ...[12100, 12350, 11900, 12600].map((value, i) =>
        lines(at(3 + i), "== ReadVBatt request (type 1, ID 43)", ...request(43, 2024)) +
        lines(at(3 + i), "== ReadVBatt answer (type 1, ID 43)", ...answer(43, `[CKRMCReadVBattCmdAdaptDataRcv::ErrWriteOperationLog] m_ulVBattValue=${value}`))),
    lines(at(8), "== GetVinCode request (type 1, ID 79)", ...request(79, 2024)),
    lines(at(8), "== GetVinCode answer (type 1, ID 79)", ...answer(79, "[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strVinCode=KRM00000000000001")),
    "the application says goodbye\n",
].join("");

const kHeader = '{"format":"krm recording","version":1,"library":"1.0.0"}\n';
export const recorded = (exchange, second, id, command, direction, content, family = "Cmd", type = 1) =>
    `${JSON.stringify({ exchange: 0, time: `2026-11-22T09:35:${String(second).padStart(2, "0")}.123456Z`, type, id, message: { command, family, direction, content } }).replace('"exchange":0', `"exchange":${exchange}`)}\n`;

/** Much the same as a recording: with what the log leaves out. */
export const recording = [
    kHeader,
    recorded(1, 1, 2, "GetDTC", "request", { m_ulEcuId: 2024, m_uchPhaseType: 1, m_uchGetFFDType: 0 }),
    recorded(1, 1, 2, "GetDTC", "answer", {
        m_bNotSupport: false, Data: [{ m_uchDTCKind: 0, m_ulDTCCode: 369, m_strDTC: "P0171", m_strDTCName: "System too lean, bank 1", m_uchSSRNo: [1, 7] }],
        m_bDTCType: true, m_ulReadynessStatus: 0,
    }),
    ...[20.5, 21.25, 90].map((value, i) => recorded("18446744073709551615", 2 + i, 21, "GetDataMonitorValue", "answer", {
        m_bNotSupport: false, m_ushValueReserved: 0,
        Data: [...(i === 1 ? [{ m_ushId: 4, m_strName: "Load", m_strUnit: "%", m_cDispDataList: [{ m_strData: "5", m_dData: 5 }] }] : []),
            { m_ushId: 5, m_strName: "Coolant", m_strUnit: "°C", m_cDispDataList: [{ m_strData: String(value), m_dData: value }] }],
    })),
    recorded(3, 6, 900, "ReadPaintCode", "answer", { m_bNotSupport: false, m_strPaintCode: { $bytes: "67FC6E" } }),
    recorded(4, 7, 3, "GetPcViewerResource", "answer", { m_cResourceMap: [["a.b", "grau"], ["c\"]", "gris"]] }, "Vdc", 2),
].join("");

/** So many lines of a log, cheaply made. */
export function longLog(count) {
    const one = lines("", ...request(43, 2024)) + lines("", ...answer(43, "[CKRMCReadVBattCmdAdaptDataRcv::ErrWriteOperationLog] m_ulVBattValue=12345"));
    return one.repeat(Math.ceil(count / 7));
}
