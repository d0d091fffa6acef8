// The engine as the page sees it: in a worker, so that the page stays responsive, or on the page's own thread where the
// browser lets no page of file:// have one. It takes breaks there.

export async function connect(onState) {
    const worker = await startWorker();
    if (worker) {
        const calls = new Map();
        let last = 0;
        worker.onmessage = ({ data }) => {
            if (data.state) {
                onState(data.state);
                return;
            }
            const { resolve, reject } = calls.get(data.call);
            calls.delete(data.call);
            if (data.error === undefined) {
                resolve(data.result);
            } else {
                reject(new Error(data.error));
            }
        };
        return (method, ...parameters) => new Promise((resolve, reject) => {
            calls.set(++last, { resolve, reject });
            worker.postMessage({ call: last, method, parameters });
        });
    }
    const engine = new globalThis.krmEngine(onState);
    return async (method, ...parameters) => engine[method](...parameters);
}

function startWorker() {
    return new Promise((resolve) => {
        try {
            const script = document.getElementById("krm-engine").textContent;
            const worker = new Worker(URL.createObjectURL(new Blob([script], { type: "text/javascript" })));
            worker.onerror = () => resolve(null);
            worker.onmessage = () => resolve(worker);
        } catch {
            resolve(null);
        }
    });
}
