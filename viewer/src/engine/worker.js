// The engine as a script: in a worker it answers messages; on a page it is there for calling.
import { Engine } from "./engine.js";

if (typeof document === "undefined") {
    const engine = new Engine((state) => postMessage({ state }));
    onmessage = async ({ data: { call, method, parameters } }) => {
        try {
            postMessage({ call, result: await engine[method](...parameters) });
        } catch (error) {
            postMessage({ call, error: String(error?.message ?? error) });
        }
    };
    postMessage({ state: {} }); // it runs
} else {
    globalThis.krmEngine = Engine;
}
