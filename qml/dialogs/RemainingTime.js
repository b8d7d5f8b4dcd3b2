.pragma library

// How long a work will still take, in milliseconds, told from what was done in the last step; -1 when nothing
// was.
function remainingMs(total, current, currentBefore, stepMs) {
    const perSecond = (current - currentBefore) / (stepMs / 1000);
    return perSecond > 0 ? (total - current) / perSecond * 1000 : -1;
}

function twoDigits(value) {
    return String(value).padStart(2, "0");
}

// Hours, minutes and seconds, each of two digits.
function parts(milliseconds) {
    const seconds = Math.round(milliseconds / 1000);
    return {
        hours: twoDigits(Math.floor(seconds / 3600)),
        minutes: twoDigits(Math.floor(seconds / 60) % 60),
        seconds: twoDigits(seconds % 60)
    };
}
