.pragma library

// Fills the list of recent projects, the newest first. Returns the names of those beyond the limit, to be forgotten.
function fill(model, entries, limit) {
    const sorted = entries.slice().sort((a, b) => b.sortkey - a.sortkey);
    model.clear();
    sorted.slice(0, limit).forEach(entry => model.append(entry));
    return sorted.slice(limit).map(entry => entry.name);
}
