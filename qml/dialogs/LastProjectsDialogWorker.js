// Fills the list of recent projects, the newest first. Those beyond the limit are sent back to be forgotten.
WorkerScript.onMessage = function (message) {
    const entries = message.entries.slice().sort((a, b) => b.sortkey - a.sortkey);
    message.model.clear();
    entries.slice(0, message.limit).forEach(entry => message.model.append(entry));
    message.model.sync();
    WorkerScript.sendMessage({ forgotten: entries.slice(message.limit).map(entry => entry.name) });
};
